// SPDX-License-Identifier: MIT
#include "ChangeLog.h"
#include "host/attributes/AT_StringAttr.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/MO_KinematicOutputModule.h"
#include "host/scene/MO_PassThroughModule.h"
#include "host/scene/MO_PegModule.h"
#include "host/scene/MO_TypeKeys.h"
#include "host/scene/TUSceneChangeManager.h"

#include <QRegularExpression>
#include <QTest>

namespace {

/// A node with a title and a note, declared in this order.
class Label : public MO_PegModule
{
public:
    Label()
        : MO_PegModule(QStringLiteral("Label"))
    {
        addAttr(std::make_unique<AT_StringAttr>(this, AT_AttrMeta(QStringLiteral("Title"), true)));
        addAttr(std::make_unique<AT_StringAttr>(this, AT_AttrMeta(QStringLiteral("Note"), false)));
    }
};

/// Counts how many of its kind are alive.
class CountedAttr : public AT_Attr
{
public:
    CountedAttr(MO_Node* node, int& alive)
        : AT_Attr(node, AT_AttrMeta(QStringLiteral("Counted"), false))
        , _alive(alive)
    {
        ++_alive;
    }
    ~CountedAttr() override { --_alive; }

private:
    int& _alive;
};

class Counting : public MO_PegModule
{
public:
    explicit Counting(int& alive)
        : MO_PegModule(QString())
    {
        for (int i = 0; i < 3; ++i)
            addAttr(std::make_unique<CountedAttr>(this, alive));
    }
};

QStringList keywordsOf(const MO_Node& node)
{
    QStringList keywords;
    for (auto it = node.attrsBegin(); it != node.attrsEnd(); ++it)
        keywords << (*it)->meta().keyword();
    return keywords;
}

AT_StringAttr* stringAttr(const MO_Node& node, int index)
{
    return dynamic_cast<AT_StringAttr*>(node.attrsBegin()[index]);
}

} // namespace

class tst_attributes : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(".?")); }

    void a_plain_node_has_none()
    {
        const MO_PegModule peg{QString()};
        QVERIFY(peg.attrsBegin() == peg.attrsEnd());
        const MO_PassThroughModule passThrough{QString()};
        QVERIFY(passThrough.attrsBegin() == passThrough.attrsEnd());
    }

    void a_kinematic_output_names_its_subnode()
    {
        const MO_KinematicOutputModule output{QString()};
        QCOMPARE(keywordsOf(output), QStringList{QStringLiteral("Sub_Node_Name")});
        QVERIFY(output.attrsBegin()[0]->meta().isNodeDirtyOnChange());
        AT_StringAttr* name = stringAttr(output, 0);
        QVERIFY(name);
        QVERIFY(name->localValue().isEmpty());
        QVERIFY(name->setLocalValue(QStringLiteral("arm")));
        QCOMPARE(name->localValue(), QStringLiteral("arm"));
    }

    void a_kinematic_output_goes_by_its_type_name()
    {
        const MO_KinematicOutputModule output{QStringLiteral("Output")};
        QCOMPARE(output.typeName(), STRING_KEY_3D_KINEMATIC_OUTPUT);
        QCOMPARE(output.typeName(), QStringLiteral("3D_KINEMATIC_OUTPUT"));
        QCOMPARE(output.nInPorts(), 1);
        QCOMPARE(output.nOutPorts(), 1);
    }

    void come_in_the_order_of_declaration()
    {
        const Label label;
        QCOMPARE(keywordsOf(label), (QStringList{QStringLiteral("Title"), QStringLiteral("Note")}));
        QVERIFY(label.attrsBegin()[0]->meta().isNodeDirtyOnChange());
        QVERIFY(!label.attrsBegin()[1]->meta().isNodeDirtyOnChange());
    }

    void know_their_node()
    {
        const Label first, second;
        for (const MO_Node* node : {&first, &second}) {
            for (auto it = node->attrsBegin(); it != node->attrsEnd(); ++it)
                QCOMPARE((*it)->node(), node);
        }
    }

    void are_the_same_at_each_iteration()
    {
        const Label label;
        const std::vector<AT_Attr*> once(label.attrsBegin(), label.attrsEnd());
        const std::vector<AT_Attr*> again(label.attrsBegin(), label.attrsEnd());
        QCOMPARE(once.size(), 2u);
        QCOMPARE(again, once);
    }

    void die_with_their_node()
    {
        int alive = 0;
        auto node = std::make_unique<Counting>(alive);
        QCOMPARE(alive, 3);
        node.reset();
        QCOMPARE(alive, 0);
    }

    void setting_tells_whether_the_value_is_another_one()
    {
        const Label label;
        AT_StringAttr& title = *stringAttr(label, 0);
        QVERIFY(!title.setLocalValue(QString()));
        QVERIFY(title.setLocalValue(QStringLiteral("a")));
        QVERIFY(!title.setLocalValue(QStringLiteral("a")));
        QVERIFY(title.setLocalValue(QStringLiteral("A")));
        QVERIFY(title.setLocalValue(QString()));
        QVERIFY(title.localValue().isEmpty());
    }

    void hold_values_of_their_own()
    {
        const Label first, second;
        stringAttr(first, 0)->setLocalValue(QStringLiteral("title"));
        stringAttr(first, 1)->setLocalValue(QStringLiteral("note"));
        QCOMPARE(stringAttr(first, 0)->localValue(), QStringLiteral("title"));
        QCOMPARE(stringAttr(first, 1)->localValue(), QStringLiteral("note"));
        QVERIFY(stringAttr(second, 0)->localValue().isEmpty());
        QVERIFY(stringAttr(second, 1)->localValue().isEmpty());
    }

    void keep_any_text()
    {
        const Label label;
        AT_StringAttr& title = *stringAttr(label, 0);
        const QString odd =
            QString::fromUtf8("\xc3\xa9 \xf0\x9f\xa6\xbe\n") + QChar(0) + QStringLiteral(" tail ");
        QVERIFY(title.setLocalValue(odd));
        QCOMPARE(title.localValue(), odd);
        QVERIFY(title.setLocalValue(odd.trimmed()));
    }

    void setting_a_value_notes_no_change()
    {
        TUSceneChangeManager changes;
        TUScene scene(QStringLiteral("Scene"), &changes);
        const MO_Node* label = scene.rootGroup()->insertNode(std::make_unique<Label>());
        changes.notify();
        const ChangeLog log(changes);
        QVERIFY(stringAttr(*label, 0)->setLocalValue(QStringLiteral("new")));
        changes.notify();
        QVERIFY(log.told().isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_attributes)
#include "tst_attributes.moc"
