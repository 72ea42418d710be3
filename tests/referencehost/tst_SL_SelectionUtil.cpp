// SPDX-License-Identifier: MIT
#include "ChangeLog.h"
#include "host/scene/MO_PegModule.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"
#include "host/selection/SL_SelectionUtil.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>

class tst_SL_SelectionUtil : public QObject
{
    Q_OBJECT

private:
    TUSceneChangeManager _changes;
    MO_PegModule _nodeA{QStringLiteral("a")}, _nodeB{QStringLiteral("b")};

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(".?")); }

    void adds_removes_and_clears()
    {
        SL_Selection selection(&_changes);
        QVERIFY(!SL_SelectionUtil::getFirstNode(&selection));
        SL_SelectionUtil::addToSelection(&selection, &_nodeB);
        SL_SelectionUtil::addToSelection(&selection, &_nodeA);
        QCOMPARE(SL_SelectionUtil::getFirstNode(&selection), &_nodeB);
        SL_SelectionUtil::removeFromSelection(&selection, _nodeB.selInterface());
        QCOMPARE(SL_SelectionUtil::getFirstNode(&selection), &_nodeA);
        SL_SelectionUtil::clear(&selection);
        QVERIFY(selection.empty());
    }

    void ignores_a_null_selection_node_or_interface()
    {
        SL_Selection selection(&_changes);
        SL_SelectionUtil::addToSelection(nullptr, &_nodeA);
        SL_SelectionUtil::addToSelection(&selection, nullptr);
        SL_SelectionUtil::addToSelection(&selection, &_nodeA);
        SL_SelectionUtil::removeFromSelection(nullptr, _nodeA.selInterface());
        SL_SelectionUtil::removeFromSelection(&selection, nullptr);
        SL_SelectionUtil::clear(nullptr);
        QVERIFY(!SL_SelectionUtil::getFirstNode(nullptr));
        QCOMPARE(selection.nodes(), std::vector<MO_Node*>{&_nodeA});
    }

    void clears_in_time_proportional_to_the_number_of_nodes()
    {
        const auto nanosecondsFor = [&](int count) {
            std::vector<std::unique_ptr<MO_PegModule>> pegs;
            SL_Selection selection(&_changes);
            const SL_Selection::BatchSelectionModeScope scope(&selection);
            for (int i = 0; i < count; ++i)
                selection.add(pegs.emplace_back(std::make_unique<MO_PegModule>(QString())).get());
            QElapsedTimer timer;
            timer.start();
            SL_SelectionUtil::clear(&selection);
            return timer.nsecsElapsed();
        };
        const qint64 few = std::min({nanosecondsFor(10000), nanosecondsFor(10000)});
        const qint64 many = std::min({nanosecondsFor(100000), nanosecondsFor(100000)});
        QVERIFY2(many < 40 * few, qPrintable(QStringLiteral("%1 against %2").arg(many).arg(few)));
    }
};

QTEST_GUILESS_MAIN(tst_SL_SelectionUtil)
#include "tst_SL_SelectionUtil.moc"
