// SPDX-License-Identifier: MIT
#include "host/scene/MO_GroupModule.h"
#include "host/scene/MO_PegModule.h"
#include "host/scene/SC_NameGenerator.h"

#include <QRegularExpression>
#include <QSet>
#include <QTest>

class tst_SC_NameGenerator : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<MO_GroupModule> _group;

    MO_Node* add(const QString& name)
    {
        return _group->insertNode(std::make_unique<MO_PegModule>(name));
    }
    QString unique(const char* wanted, int firstNumber = 1, int step = 1) const
    {
        return SC_NameGenerator::uniqueName(QString::fromLatin1(wanted), _group.get(), firstNumber,
                                            step);
    }

private slots:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(".?"));
        _group = std::make_unique<MO_GroupModule>(QStringLiteral("Group"));
    }

    void leaves_a_free_name_as_it_is()
    {
        QCOMPARE(unique("Arm"), QStringLiteral("Arm"));
        add(QStringLiteral("Arm_1"));
        add(QStringLiteral("arm"));
        QCOMPARE(unique("Arm"), QStringLiteral("Arm"));
        QCOMPARE(unique("Group"), QStringLiteral("Group"));
    }

    void a_null_group_has_no_nodes()
    {
        QCOMPARE(SC_NameGenerator::uniqueName(QStringLiteral("Arm"), nullptr, 1, 1),
                 QStringLiteral("Arm"));
    }

    void numbers_a_taken_name()
    {
        add(QStringLiteral("Arm"));
        QCOMPARE(unique("Arm"), QStringLiteral("Arm_1"));
        add(QStringLiteral("Arm_1"));
        add(QStringLiteral("Arm_2"));
        add(QStringLiteral("Arm_4"));
        QCOMPARE(unique("Arm"), QStringLiteral("Arm_3"));
        QCOMPARE(unique("Arm_1"), QStringLiteral("Arm_1_1"));
    }

    void counts_from_the_first_number_in_steps()
    {
        add(QStringLiteral("Arm"));
        QCOMPARE(unique("Arm", 10, 5), QStringLiteral("Arm_10"));
        add(QStringLiteral("Arm_10"));
        add(QStringLiteral("Arm_15"));
        QCOMPARE(unique("Arm", 10, 5), QStringLiteral("Arm_20"));
        QCOMPARE(unique("Arm", 10, 1), QStringLiteral("Arm_11"));
        QCOMPARE(unique("Arm", 0, 10), QStringLiteral("Arm_0"));
        QCOMPARE(unique("Arm", -2, 1), QStringLiteral("Arm_-2"));
    }

    void always_gets_on()
    {
        add(QStringLiteral("Arm"));
        add(QStringLiteral("Arm_1"));
        for (const int step : {0, -1})
            QCOMPARE(unique("Arm", 1, step), QStringLiteral("Arm_2"));
    }

    void a_name_is_free_again_when_its_node_leaves()
    {
        MO_Node* arm = add(QStringLiteral("Arm"));
        add(QStringLiteral("Leg"))->setInstanceName(QStringLiteral("Foot"));
        QCOMPARE(unique("Leg"), QStringLiteral("Leg"));
        QCOMPARE(unique("Foot"), QStringLiteral("Foot_1"));
        _group->takeNode(arm);
        QCOMPARE(unique("Arm"), QStringLiteral("Arm"));
    }

    void nodes_of_other_groups_do_not_count()
    {
        auto* inner = static_cast<MO_GroupModule*>(
            _group->insertNode(std::make_unique<MO_GroupModule>(QStringLiteral("Inner"))));
        inner->insertNode(std::make_unique<MO_PegModule>(QStringLiteral("Arm")));
        QCOMPARE(unique("Arm"), QStringLiteral("Arm"));
        QCOMPARE(SC_NameGenerator::uniqueName(QStringLiteral("Arm"), inner, 1, 1),
                 QStringLiteral("Arm_1"));
    }

    void an_empty_name_is_free_until_a_node_has_it()
    {
        QCOMPARE(unique(""), QString(""));
        add(QString());
        QCOMPARE(unique(""), QStringLiteral("_1"));
    }

    void names_any_number_of_nodes_differently()
    {
        QSet<QString> names;
        for (int i = 0; i < 200; ++i)
            names.insert(add(unique("Arm", 1, 3))->instanceName());
        QCOMPARE(names.size(), 200);
        QVERIFY(names.contains(QStringLiteral("Arm_595")));
    }

    void a_percent_sign_in_a_name_is_nothing_special()
    {
        add(QStringLiteral("a%1"));
        QCOMPARE(unique("a%1", 5), QStringLiteral("a%1_5"));
    }
};

QTEST_GUILESS_MAIN(tst_SC_NameGenerator)
#include "tst_SC_NameGenerator.moc"
