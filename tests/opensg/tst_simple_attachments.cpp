// SPDX-License-Identifier: MIT
#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <QTest>

using namespace osg;

class tst_simple_attachments : public QObject
{
    Q_OBJECT

private:
    NodeRefPtr node;

private slots:
    void initTestCase() { QVERIFY(osgInit(0, nullptr)); }
    void init() { node = makeCoredNode<Group>(); }
    void cleanupTestCase() { node = NullFC; }

    void there_is_no_name_at_first() { QVERIFY(getName(node) == nullptr); }

    void null_has_no_name_and_takes_none()
    {
        setName(NodePtr(), "name");
        setName(NodePtr(), std::string("name"));
        QVERIFY(getName(NodePtr()) == nullptr);
        QVERIFY(getName(NullFC) == nullptr);
    }

    void a_name_is_copied()
    {
        std::string name = "wheel";
        setName(node, name);
        name = "other";
        QCOMPARE(getName(node), "wheel");
        setName(node, "axle");
        QCOMPARE(getName(node), "axle");
    }

    void the_name_stays_where_it_is()
    {
        setName(node, "wheel");
        QCOMPARE(static_cast<const void*>(getName(node)), static_cast<const void*>(getName(node)));
    }

    void an_empty_name_is_a_name()
    {
        setName(node, "");
        QVERIFY(getName(node) != nullptr);
        QCOMPARE(getName(node), "");
        setName(node, std::string());
        QCOMPARE(getName(node), "");
    }

    void a_null_string_removes_the_name()
    {
        setName(node, "wheel");
        setName(node, nullptr);
        QVERIFY(getName(node) == nullptr);
        setName(node, static_cast<const Char8*>(nullptr));
        QVERIFY(getName(node) == nullptr);
    }

    void nodes_and_cores_have_names_of_their_own()
    {
        setName(node, "node");
        QVERIFY(getName(node->getCore()) == nullptr);
        setName(node->getCore(), "core");
        QCOMPARE(getName(node), "node");
        QCOMPARE(getName(node->getCore()), "core");
        setName(node, nullptr);
        QCOMPARE(getName(node->getCore()), "core");
    }

    void a_name_may_be_made_of_the_old_one()
    {
        setName(node, "left wheel");
        setName(node, getName(node) + 5);
        QCOMPARE(getName(node), "wheel");
        setName(node, getName(node));
        QCOMPARE(getName(node), "wheel");
    }

    void any_characters_are_kept()
    {
        const std::string name(10'000, '\xE4');
        setName(node, name);
        QCOMPARE(getName(node), name.c_str());
    }
};

QTEST_APPLESS_MAIN(tst_simple_attachments)
#include "tst_simple_attachments.moc"
