// SPDX-License-Identifier: MIT
#include "Probe.h"

#include <OpenSG/OSGBaseFunctions.h>

#include <QTest>

using namespace osg;

class tst_editing : public QObject
{
    Q_OBJECT

private:
    RefPtr<Probe::Ptr> probe;
    typedef std::vector<Probe::Edit> Edits;

private slots:
    void initTestCase() { QVERIFY(osgInit(0, nullptr)); }
    void init() { probe = Probe::create(); }
    void cleanupTestCase() { probe = NullFC; }

    void the_end_tells_what_changed()
    {
        beginEditCP(probe, Transform::MatrixFieldMask);
        QVERIFY(probe->edits.empty());
        endEditCP(probe, Transform::MatrixFieldMask);
        QVERIFY(probe->edits == Edits({{Transform::MatrixFieldMask, ChangedOrigin::External}}));
    }

    void everything_changes_by_default()
    {
        beginEditCP(probe);
        endEditCP(probe);
        QVERIFY(probe->edits == Edits({{FieldBits::AllFields, ChangedOrigin::External}}));
    }

    void an_origin_is_passed_on()
    {
        endEditCP(probe, Transform::MatrixFieldMask, 64);
        QVERIFY(probe->edits == Edits({{Transform::MatrixFieldMask, 64}}));
    }

    void an_edit_ends_with_its_block()
    {
        {
            CPEdit(probe, Transform::MatrixFieldMask);
            CPEdit(probe, Transform::AttachmentsFieldMask);
            QVERIFY(probe->edits.empty());
        }
        QCOMPARE(probe->edits.size(), std::size_t(2));
        QCOMPARE(probe->edits[1].fields, Transform::MatrixFieldMask);
    }

    void null_is_ignored()
    {
        beginEditCP(NullFC);
        endEditCP(NodePtr(), Node::ChildrenFieldMask);
        CPEdit(NodePtr(), Node::ChildrenFieldMask);
    }
};

QTEST_APPLESS_MAIN(tst_editing)
#include "tst_editing.moc"
