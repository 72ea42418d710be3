// SPDX-License-Identifier: MIT

#include "host/models/TD_CelVq3d.h"
#include "host/selection/SLB_NodeWith3DSubNode.h"
#include "host/selection/SL_SelectionCommands.h"
#include "referencehost/services/Diagnostics.h"
#include "tests/responder/ResponderTest.h"

#include <QRandomGenerator>
#include <algorithm>
#include <array>
#include <map>
#include <optional>

namespace {

constexpr int nameCount = 14;

QString nameOf(int number)
{
    return QStringLiteral("n%1").arg(number);
}

/// A model in which every subnode has a name of its own.
CEL_SharedPtr<TD_CelVq3d> modelOfOwnNames(QRandomGenerator& random)
{
    using namespace ModelBuilder;
    std::vector<osg::NodePtr> built{build(group("root"))};
    const std::array kinds{key, key, key, group, transform};
    for (int number = 0; number < nameCount; ++number) {
        const auto parent = static_cast<std::size_t>(random.bounded(int(built.size())));
        const auto kind = kinds.at(static_cast<std::size_t>(random.bounded(int(kinds.size()))));
        built.push_back(build(kind(nameOf(number).toStdString(), {})));
        built.at(parent)->addChild(built.back());
    }
    return model(built.front());
}

} // namespace

/// What holds whatever the user does, in whatever order.
class tst_GT_UndoProperty : public ResponderTest
{
    Q_OBJECT

private:
    /// What can be walked and changed: two elements with models that vary over the frames and are
    /// missing at some, and a node without subnodes.
    void populate(QRandomGenerator& random)
    {
        for (const char* name : {"robot", "car"}) {
            MO_ElementModule& element =
                _stage->addElement(QLatin1String(name), modelOfOwnNames(random), 1, lastFrame - 2);
            element.exposeModel(4, 6, modelOfOwnNames(random));
            element.setX(random.bounded(100));
        }
        _stage->addPeg(QStringLiteral("peg"));
        _stage->notify();
    }

    SL_Selection* selection() { return _stage->context().selection(); }

    void selectNodes(QRandomGenerator& random)
    {
        std::vector<MO_Node*> nodes = _stage->scene().rootGroup()->nodes();
        std::shuffle(nodes.begin(), nodes.end(), random);
        nodes.resize(std::min(nodes.size(), static_cast<std::size_t>(random.bounded(4))));
        // Elements come first more often than not.
        if (random.bounded(4)) {
            MO_Node* element = _stage->scene().rootGroup()->nodes().at(random.bounded(2U));
            std::erase(nodes, element);
            nodes.insert(nodes.begin(), element);
        }
        const SL_SelectionCommands::Scope scope(_stage->context().commandManager(), selection());
        selection()->clear();
        for (MO_Node* node : nodes)
            selection()->add(node);
    }
    void subSelectSome(QRandomGenerator& random)
    {
        auto* node = PublishedResponder::getNodeWithSubNodes(selection());
        if (!node)
            return;
        const SL_SelectionCommands::Scope scope(_stage->context().commandManager(), selection());
        if (random.bounded(2))
            node->clearSubSelection();
        for (int count = random.bounded(4); count > 0; --count)
            node->subSelect(node->subNodeId(AT_ModelNodeKey(nameOf(random.bounded(nameCount)))),
                            random.bounded(3) > 0);
    }
    /// Runs an action so that it can be undone, walks included.
    void runUndoable(const QByteArray& action)
    {
        std::optional<SL_SelectionCommands::Scope> scope;
        if (walkingActions().contains(action))
            scope.emplace(_stage->context().commandManager(), selection());
        run(action);
    }
    /// Something that a user might do.
    void doSomething(QRandomGenerator& random)
    {
        const int choice = random.bounded(20);
        if (choice < 11)
            runUndoable(allActions().at(choice));
        else if (choice < 13)
            selectNodes(random);
        else if (choice < 18)
            subSelectSome(random);
        else
            _stage->goToFrame(1 + random.bounded(lastFrame));
    }

    Diagnostics::Sink _sink;
    int _written = 0;

private slots:
    void initTestCase()
    {
        ResponderTest::initTestCase();
        _sink = Diagnostics::setSink([this](const QString&) { ++_written; });
    }
    void cleanupTestCase() { Diagnostics::setSink(_sink); }

    void whatever_is_done_can_be_undone_and_redone_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed = 1; seed <= 20; ++seed)
            QTest::addRow("%u", seed) << seed;
    }
    void whatever_is_done_can_be_undone_and_redone()
    {
        QFETCH(const quint32, seed);
        QRandomGenerator random(seed);
        populate(random);
        std::map<int, QString> stateAfter{{0, state()}};
        for (int done = 0; done < 300; ++done) {
            doSomething(random);
            const int steps = history().count();
            // Without a step nothing has changed.
            if (const auto known = stateAfter.find(steps); known != stateAfter.end())
                QCOMPARE(state(), known->second);
            else
                stateAfter[steps] = state();
        }
        const int steps = history().count();
        QVERIFY(steps > 60);
        history().setIndex(0);
        QCOMPARE(state(), stateAfter.at(0));
        history().setIndex(steps);
        QCOMPARE(state(), stateAfter.at(steps));
        for (int index = steps; index >= 0; --index) {
            history().setIndex(index);
            if (const auto known = stateAfter.find(index); known != stateAfter.end())
                QCOMPARE(state(), known->second);
        }
    }

    void an_action_is_enabled_exactly_when_it_changes_something_data()
    {
        whatever_is_done_can_be_undone_and_redone_data();
    }
    void an_action_is_enabled_exactly_when_it_changes_something()
    {
        QFETCH(const quint32, seed);
        QRandomGenerator random(1000 + seed);
        populate(random);
        int enabledCount = 0;
        int disabledCount = 0;
        for (int round = 0; round < 50; ++round) {
            for (int moves = 4; moves > 0; --moves)
                doSomething(random);
            const QString before = state();
            const int index = history().index();
            for (const QByteArray& action : allActions()) {
                const bool enabled = isEnabled(action);
                QCOMPARE(state(), before);
                QCOMPARE(history().index(), index);
                const int written = _written;
                runUndoable(action);
                // Writing the scene graph changes nothing but what is written.
                if (action == dumpAction) {
                    QCOMPARE(state(), before);
                    QVERIFY(enabled || _written == written);
                    continue;
                }
                ++(enabled ? enabledCount : disabledCount);
                if ((state() != before) != enabled)
                    QFAIL(qPrintable(action + " in\n" + before.toUtf8()));
                QCOMPARE(history().index() > index, enabled);
                history().setIndex(index);
                QCOMPARE(state(), before);
            }
        }
        QVERIFY(enabledCount > 50);
        QVERIFY(disabledCount > 50);
    }
};

QTEST_MAIN(tst_GT_UndoProperty)
#include "tst_GT_UndoProperty.moc"
