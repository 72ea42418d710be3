// SPDX-License-Identifier: MIT
#include "ChangeLog.h"
#include "SampleModel.h"
#include "host/models/AT_ModelNodeKey.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_PegModule.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SLB_NodeWith3DSubNode.h"
#include "host/selection/SL_Selection.h"
#include "host/selection/SL_SubSelectionUtil.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>

using Ids = std::vector<int>;

class tst_SLB_NodeInterface : public QObject
{
    Q_OBJECT

private:
    TUSceneChangeManager _changes;
    MO_ElementModule _element{QStringLiteral("Element")};
    std::unique_ptr<SL_Selection> _selection;
    SLB_NodeInterface* _selected = nullptr;

private slots:
    void initTestCase()
    {
        QVERIFY(osg::osgInit(0, nullptr));
        _element.exposeModel(1, 10, modelOf({"a", "b", "c", "d"}));
    }
    void init()
    {
        QTest::failOnWarning(QRegularExpression(".?"));
        _selection = std::make_unique<SL_Selection>(&_changes);
        _selection->add(&_element);
        _selected = _element.selInterface();
        _changes.notify();
    }
    void cleanup() { _selection.reset(); }

    void starts_without_sub_selection()
    {
        QVERIFY(!_selected->hasSubSelection());
        QVERIFY(!_selected->isSubSelected(1));
        QVERIFY(_selected->subSelectedIds().empty());
    }

    void keeps_ids_in_the_order_of_selecting()
    {
        for (const int id : {3, 1, 4, 1})
            _selected->subSelect(id, true);
        QCOMPARE(_selected->subSelectedIds(), (Ids{3, 1, 4}));
        _selected->subDeselect(3);
        _selected->subSelect(3, true);
        QCOMPARE(_selected->subSelectedIds(), (Ids{1, 4, 3}));
        QVERIFY(_selected->hasSubSelection());
        QVERIFY(_selected->isSubSelected(4));
        QVERIFY(!_selected->isSubSelected(2));
    }

    void makes_an_id_the_only_one_unless_it_is_added()
    {
        _selected->subSelect(1, true);
        _selected->subSelect(2, true);
        _selected->subSelect(3, false);
        QCOMPARE(_selected->subSelectedIds(), Ids{3});
        _selected->subSelect(1, true);
        _selected->subSelect(3, false);
        QCOMPARE(_selected->subSelectedIds(), Ids{3});
        _selected->clearSubSelection();
        QVERIFY(!_selected->hasSubSelection());
    }

    void ignores_ids_that_the_node_does_not_know()
    {
        _selected->subSelect(1, true);
        _changes.notify();
        const ChangeLog log(_changes);
        for (const int id : {0, -1, 5}) {
            _selected->subSelect(id, true);
            _selected->subSelect(id, false);
            _selected->subDeselect(id);
        }
        QCOMPARE(_selected->subSelectedIds(), Ids{1});
        _changes.notify();
        QVERIFY(log.told().isEmpty());
    }

    void notes_real_changes_only()
    {
        ChangeLog log(_changes);
        _selected->subDeselect(1);
        _selected->clearSubSelection();
        _changes.notify();
        QVERIFY(log.told().isEmpty());

        _selected->subSelect(1, false);
        _changes.notify();
        QCOMPARE(log.take(), QStringList{"sub-selection"});
        _selected->subSelect(1, false);
        _selected->subSelect(1, true);
        _changes.notify();
        QVERIFY(log.told().isEmpty());

        _selected->subDeselect(1);
        _changes.notify();
        QCOMPARE(log.take(), QStringList{"sub-selection"});
    }

    void notes_a_sub_selection_that_goes_with_its_node()
    {
        _selected->subSelect(1, true);
        _changes.notify();
        ChangeLog log(_changes);
        _selection->remove(&_element);
        _changes.notify();
        QCOMPARE(log.take(), (QStringList{"selection", "sub-selection"}));
        _selection->add(&_element);
        QVERIFY(!_element.selInterface()->hasSubSelection());
    }

    void knows_ids_of_models_that_are_exposed_later()
    {
        MO_ElementModule element{QString()};
        _selection->add(&element);
        element.selInterface()->subSelect(1, true);
        QVERIFY(!element.selInterface()->hasSubSelection());
        element.exposeModel(1, 1, modelOf({"a"}));
        element.selInterface()->subSelect(1, true);
        QVERIFY(element.selInterface()->hasSubSelection());
    }

    void translates_between_ids_and_keys()
    {
        const auto* subNodes = dynamic_cast<SLB_NodeWith3DSubNode*>(_selected);
        QVERIFY(subNodes);
        QCOMPARE(subNodes->subNodeId(AT_ModelNodeKey("c")), 3);
        QCOMPARE(subNodes->subNodeId(AT_ModelNodeKey("unknown")), -1);
        AT_ModelNodeKey key("mine");
        QVERIFY(!subNodes->subNodeKey(9, key));
        QCOMPARE(key.name(), QStringLiteral("mine"));
        QVERIFY(subNodes->subNodeKey(2, key));
        QCOMPARE(key.name(), QStringLiteral("b"));
    }

    void never_has_one_on_a_node_without_subnodes()
    {
        MO_PegModule peg{QString()};
        _selection->add(&peg);
        SLB_NodeInterface* selected = peg.selInterface();
        selected->subSelect(1, true);
        selected->subSelect(1, false);
        selected->subDeselect(1);
        selected->clearSubSelection();
        QVERIFY(!selected->hasSubSelection());
        QVERIFY(!selected->isSubSelected(1));
        QVERIFY(selected->subSelectedIds().empty());
    }

    void is_read_through_the_helpers_also_when_null()
    {
        using Util = SL_SubSelectionUtil;
        QCOMPARE(Util::getFirstSubSelectedId(nullptr), -1);
        QVERIFY(Util::getSubSelectedIds(nullptr).empty());
        QCOMPARE(Util::getFirstSubSelectedId(_selected), -1);
        QVERIFY(Util::getSubSelectedIds(_selected).empty());
        _selected->subSelect(4, true);
        _selected->subSelect(2, true);
        QCOMPARE(Util::getFirstSubSelectedId(_selected), 4);
        QCOMPARE(Util::getSubSelectedIds(_selected), (Ids{4, 2}));
    }

    void agrees_with_a_plain_list_after_any_changes()
    {
        MO_ElementModule element{QString()};
        constexpr int known = 60;
        element.exposeModel(1, 1, modelOfSize(known));
        _selection->add(&element);
        SLB_NodeInterface* selected = element.selInterface();
        QRandomGenerator random(3);
        Ids expected;
        for (int step = 0; step < 5000; ++step) {
            const int id = random.bounded(1, known + 1);
            const bool add = random.bounded(2) == 0;
            if (!add)
                std::erase(expected, id);
            else if (std::ranges::find(expected, id) == expected.end())
                expected.push_back(id);
            add ? selected->subSelect(id, true) : selected->subDeselect(id);
            // Not looking every time leaves room for what is put off until somebody looks.
            if (random.bounded(5) == 0)
                QCOMPARE(selected->subSelectedIds(), expected);
        }
        QCOMPARE(selected->subSelectedIds(), expected);
    }

    void takes_time_in_proportion_to_the_number_of_ids()
    {
        const auto nanosecondsFor = [&](int count) {
            MO_ElementModule element{QString()};
            element.exposeModel(1, 1, modelOfSize(count));
            _selection->add(&element);
            SLB_NodeInterface* selected = element.selInterface();
            QElapsedTimer timer;
            timer.start();
            for (int id = 1; id <= count; ++id)
                selected->subSelect(id, true);
            for (int id = 1; id <= count; ++id)
                selected->isSubSelected(id);
            for (int id = 1; id <= count; ++id)
                selected->subDeselect(id);
            return timer.nsecsElapsed();
        };
        // A quadratic way would take a hundred times as long for ten times as many.
        const qint64 few = std::min({nanosecondsFor(10000), nanosecondsFor(10000)});
        const qint64 many = std::min({nanosecondsFor(100000), nanosecondsFor(100000)});
        QVERIFY2(many < 40 * few, qPrintable(QStringLiteral("%1 against %2").arg(many).arg(few)));
    }
};

QTEST_GUILESS_MAIN(tst_SLB_NodeInterface)
#include "tst_SLB_NodeInterface.moc"
