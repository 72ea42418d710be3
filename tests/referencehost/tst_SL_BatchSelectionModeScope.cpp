// SPDX-License-Identifier: MIT
#include "ChangeLog.h"
#include "SampleModel.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_PegModule.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QRegularExpression>
#include <QTest>

#include <functional>

using Scope = SL_Selection::BatchSelectionModeScope;

class tst_SL_BatchSelectionModeScope : public QObject
{
    Q_OBJECT

private:
    TUSceneChangeManager _changes;
    MO_PegModule _peg{QStringLiteral("peg")};
    MO_ElementModule _robot{QStringLiteral("robot")};
    MO_ElementModule _crane{QStringLiteral("crane")};
    std::unique_ptr<SL_Selection> _selection;

    /// What is told when the gesture is made in one scope.
    QStringList toldBy(const std::function<void()>& gesture)
    {
        _changes.notify();
        ChangeLog log(_changes);
        {
            const Scope scope(_selection.get());
            gesture();
            if (!log.told().isEmpty())
                return {QStringLiteral("told before the end")};
        }
        const QStringList told = log.take();
        _changes.notify();
        return log.told().isEmpty() ? told : QStringList{QStringLiteral("told too late")};
    }

private slots:
    void initTestCase()
    {
        QVERIFY(osg::osgInit(0, nullptr));
        _robot.exposeModel(1, 10, modelOf({"a", "b", "c"}));
        _crane.exposeModel(1, 10, modelOf({"a", "b", "c"}));
    }
    void init()
    {
        QTest::failOnWarning(QRegularExpression(".?"));
        _selection = std::make_unique<SL_Selection>(&_changes);
    }
    void cleanup()
    {
        _selection.reset();
        _changes.notify();
    }

    void tells_all_changes_once_at_its_end()
    {
        QCOMPARE(toldBy([&] {
                     _selection->add(&_robot);
                     _selection->add(&_peg);
                     _robot.selInterface()->subSelect(1, true);
                     _robot.selInterface()->subSelect(2, true);
                 }),
                 (QStringList{"selection", "sub-selection"}));
    }

    void tells_at_the_end_of_the_outermost_one()
    {
        QCOMPARE(toldBy([&] {
                     const Scope inner(_selection.get());
                     _selection->add(&_robot);
                     {
                         const Scope innermost(_selection.get());
                         _selection->add(&_peg);
                     }
                 }),
                 QStringList{"selection"});
    }

    void tells_nothing_when_nothing_was_done()
    {
        QCOMPARE(toldBy([] {}), QStringList());
        _changes.emitNodeChanged(&_peg);
        ChangeLog log(_changes);
        {
            const Scope scope(_selection.get());
        }
        QVERIFY(log.told().isEmpty());
    }

    void tells_a_selection_that_was_cleared_and_made_again()
    {
        _selection->add(&_robot);
        _robot.selInterface()->subSelect(1, true);
        QCOMPARE(toldBy([&] {
                     _selection->clear();
                     _selection->add(&_robot);
                     _robot.selInterface()->subSelect(1, true);
                 }),
                 QStringList({"selection", "sub-selection"}));
    }

    void tells_a_new_order_of_the_same_nodes()
    {
        _selection->add(&_robot);
        _selection->add(&_crane);
        QCOMPARE(toldBy([&] {
                     _selection->remove(&_robot);
                     _selection->add(&_robot);
                 }),
                 QStringList{"selection"});
    }

    void tells_sub_selections_apart_from_nodes()
    {
        _selection->add(&_robot);
        QCOMPARE(toldBy([&] { _robot.selInterface()->subSelect(1, true); }),
                 QStringList{"sub-selection"});
        QCOMPARE(toldBy([&] { _robot.selInterface()->clearSubSelection(); }),
                 QStringList{"sub-selection"});
        QCOMPARE(toldBy([&] { _selection->add(&_crane); }), QStringList{"selection"});
    }

    void tells_a_sub_selection_that_comes_or_goes_with_its_node()
    {
        _selection->add(&_robot);
        _robot.selInterface()->subSelect(1, true);
        QCOMPARE(toldBy([&] { _selection->remove(&_robot); }),
                 (QStringList{"selection", "sub-selection"}));
    }

    void tells_a_sub_selection_that_was_lost_by_selecting_again()
    {
        _selection->add(&_robot);
        _robot.selInterface()->subSelect(1, true);
        QCOMPARE(toldBy([&] {
                     _selection->remove(&_robot);
                     _selection->add(&_robot);
                 }),
                 (QStringList{"selection", "sub-selection"}));
    }

    void tells_sub_selections_that_swapped_their_nodes()
    {
        for (MO_ElementModule* element : {&_robot, &_crane})
            _selection->add(element);
        _robot.selInterface()->subSelect(1, true);
        QCOMPARE(toldBy([&] {
                     _robot.selInterface()->clearSubSelection();
                     _crane.selInterface()->subSelect(1, true);
                 }),
                 QStringList{"sub-selection"});
    }

    void tells_a_node_that_died_meanwhile()
    {
        auto element = std::make_unique<MO_ElementModule>(QString());
        element->exposeModel(1, 1, modelOf({"a"}));
        _selection->add(element.get());
        element->selInterface()->subSelect(1, true);
        QCOMPARE(toldBy([&] { element.reset(); }), (QStringList{"selection", "sub-selection"}));
        QVERIFY(_selection->empty());
    }

    void lets_a_listener_open_the_next_one()
    {
        ChangeLog log(_changes);
        int calls = 0;
        QObject listener;
        connect(&_changes, &TUSceneChangeManager::selectionChanged, &listener, [&] {
            if (++calls > 1)
                return;
            const Scope scope(_selection.get());
            _selection->add(&_crane);
        });
        {
            const Scope scope(_selection.get());
            _selection->add(&_robot);
        }
        QCOMPARE(log.take(), (QStringList{"selection", "selection"}));
    }

    void does_nothing_without_a_selection() { const Scope scope(nullptr); }
};

QTEST_GUILESS_MAIN(tst_SL_BatchSelectionModeScope)
#include "tst_SL_BatchSelectionModeScope.moc"
