// SPDX-License-Identifier: MIT
#include "referencehost/commands/SetExposures.h"

#include "ChangeLog.h"
#include "SampleModel.h"
#include "host/commands/CO_CommandManager.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/TUScene.h"
#include "host/scene/TUSceneChangeManager.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>
#include <QUndoStack>
#include <limits>

using Exposures = SetExposures::Exposures;

/// The command that gives an element other drawings.
class tst_SetExposures : public QObject
{
    Q_OBJECT

private:
    static constexpr int openEnd = std::numeric_limits<int>::max();
    Model _modelA;
    Model _modelB;
    std::unique_ptr<TUSceneChangeManager> _changes;
    std::unique_ptr<TUScene> _scene;
    std::unique_ptr<CO_CommandManager> _commands;
    MO_ElementModule* _element = nullptr;

    bool set(MO_ElementModule* element, const Exposures& exposures)
    {
        return _commands->execute(new SetExposures(element, exposures), QStringLiteral("Set"));
    }
    QUndoStack& history() { return *_commands->history(); }

private slots:
    void initTestCase()
    {
        QVERIFY(osg::osgInit(0, nullptr));
        _modelA = modelOf({"a"});
        _modelB = modelOf({"b"});
    }
    void cleanupTestCase() { _modelA = _modelB = nullptr; }
    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        _changes = std::make_unique<TUSceneChangeManager>();
        _scene = std::make_unique<TUScene>(QStringLiteral("scene"), _changes.get());
        _commands = std::make_unique<CO_CommandManager>(_changes.get());
        auto element = std::make_unique<MO_ElementModule>(QStringLiteral("robot"));
        _element = element.get();
        _scene->rootGroup()->insertNode(std::move(element));
        _element->exposeModel(1, openEnd, _modelA);
        _changes->notify();
    }
    void cleanup()
    {
        _commands.reset();
        _scene.reset();
        _changes.reset();
    }

    void the_drawings_are_replaced_on_every_frame()
    {
        // Also those that lie before the frames that are counted.
        _element->exposeModel(std::numeric_limits<int>::min(), -5, _modelB);
        const Exposures wanted{{3, 4, _modelB}, {5, 9, _modelB}, {20, openEnd, _modelA}};
        QVERIFY(set(_element, wanted));
        QCOMPARE(_element->exposures(), wanted);
        QVERIFY(!_element->modelAt(1));
        QVERIFY(set(_element, {}));
        QVERIFY(_element->exposures().empty());
    }

    void undo_and_redo_are_exact()
    {
        QRandomGenerator random(3);
        std::vector<Exposures> states{_element->exposures()};
        while (states.size() < 40) {
            Exposures wanted;
            for (int first = 1; first < 30; first += 1 + random.bounded(4)) {
                const int last = first + random.bounded(5);
                wanted.push_back({first, last, random.bounded(2) ? _modelA : _modelB});
                first = last;
            }
            if (set(_element, wanted))
                states.push_back(wanted);
        }
        for (std::size_t i = states.size() - 1; i-- > 0;) {
            history().undo();
            QCOMPARE(_element->exposures(), states[i]);
        }
        QVERIFY(!history().canUndo());
        for (std::size_t i = 1; i < states.size(); ++i) {
            history().redo();
            QCOMPARE(_element->exposures(), states[i]);
        }
    }

    void of_exposures_that_overlap_the_later_wins()
    {
        QVERIFY(set(_element, {{1, 10, _modelA}, {4, 5, _modelB}}));
        QCOMPARE(_element->exposures(),
                 (Exposures{{1, 3, _modelA}, {4, 5, _modelB}, {6, 10, _modelA}}));
    }

    void what_changes_nothing_leaves_no_step()
    {
        QVERIFY(!set(_element, _element->exposures()));
        QVERIFY(!set(nullptr, {{1, 2, _modelA}}));
        QCOMPARE(history().count(), 0);
    }

    void listeners_are_told_once_each_time()
    {
        ChangeLog log(*_changes);
        const QStringList once{QStringLiteral("nodes robot")};
        QVERIFY(set(_element, {{1, 2, _modelA}, {3, 4, _modelB}}));
        QCOMPARE(log.take(), once);
        history().undo();
        QCOMPARE(log.take(), once);
        history().redo();
        QCOMPARE(log.take(), once);
    }

    void an_element_that_is_gone_is_left_alone()
    {
        SetExposures command(_element, {});
        QVERIFY(!command.empty());
        _scene->rootGroup()->takeNode(_element).reset();
        QVERIFY(command.empty());
        QVERIFY(!command.execute());
    }
};

QTEST_GUILESS_MAIN(tst_SetExposures)
#include "tst_SetExposures.moc"
