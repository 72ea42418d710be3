// SPDX-License-Identifier: MIT
#include "ChangeLog.h"
#include "host/commands/CO_Command.h"
#include "host/commands/CO_CommandManager.h"
#include "host/scene/MO_PegModule.h"
#include "host/scene/TUSceneChangeManager.h"

#include <QRegularExpression>
#include <QTest>
#include <QUndoStack>

namespace {

/// Swaps a node's name, and writes down what is done to it.
class RenameCmd : public CO_Command
{
public:
    struct Behaviour
    {
        bool empty = false;
        bool works = true;
    };

    RenameCmd(TUSceneChangeManager& changes, MO_Node& node, const char* name, QStringList& journal,
              const Behaviour& behaviour)
        : _changes(changes)
        , _node(node)
        , _name(QString::fromLatin1(name))
        , _journal(journal)
        , _behaviour(behaviour)
    {
    }
    ~RenameCmd() override { _journal << QStringLiteral("destroyed"); }

    bool empty() const override { return _behaviour.empty; }
    bool execute() override
    {
        _journal << QStringLiteral("executed");
        if (!_behaviour.works)
            return false;
        const QString previous = _node.instanceName();
        _node.setInstanceName(_name);
        _name = previous;
        _changes.emitNodeInstanceNameChanged(&_node);
        return true;
    }

private:
    TUSceneChangeManager& _changes;
    MO_Node& _node;
    QString _name;
    QStringList& _journal;
    const Behaviour& _behaviour;
};

} // namespace

class tst_CO_CommandManager : public QObject
{
    Q_OBJECT

private:
    TUSceneChangeManager _changes;
    MO_PegModule _node{QStringLiteral("old")};
    QStringList _journal;
    RenameCmd::Behaviour _behaviour;

    CO_Command* rename(const char* name)
    {
        return new RenameCmd(_changes, _node, name, _journal, _behaviour);
    }

private slots:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(".?"));
        _node.setInstanceName(QStringLiteral("old"));
        _journal.clear();
        _behaviour = {};
    }

    void executes_a_command_once_and_keeps_it_under_its_name()
    {
        CO_CommandManager manager(&_changes);
        QVERIFY(manager.execute(rename("new"), QStringLiteral("Rename Node")));
        QCOMPARE(_journal, QStringList{"executed"});
        QCOMPARE(manager.history()->count(), 1);
        QCOMPARE(manager.history()->undoText(), QStringLiteral("Rename Node"));
        QCOMPARE(_node.instanceName(), QStringLiteral("new"));
    }

    void undoes_and_redoes_exactly()
    {
        CO_CommandManager manager(&_changes);
        manager.execute(rename("new"), QString());
        manager.execute(rename("newer"), QString());
        QUndoStack& history = *manager.history();
        history.undo();
        QCOMPARE(_node.instanceName(), QStringLiteral("new"));
        history.undo();
        QCOMPARE(_node.instanceName(), QStringLiteral("old"));
        history.redo();
        history.redo();
        QCOMPARE(_node.instanceName(), QStringLiteral("newer"));
        QCOMPARE(history.count(), 2);
    }

    void tells_what_changed_after_each_step()
    {
        CO_CommandManager manager(&_changes);
        ChangeLog log(_changes);
        manager.execute(rename("new"), QString());
        QCOMPARE(log.take(), QStringList{"names new"});
        manager.history()->undo();
        QCOMPARE(log.take(), QStringList{"names old"});
        manager.history()->redo();
        QCOMPARE(log.take(), QStringList{"names new"});
    }

    void destroys_an_empty_command_without_executing_it()
    {
        CO_CommandManager manager(&_changes);
        _behaviour.empty = true;
        QVERIFY(!manager.execute(rename("new"), QString()));
        QCOMPARE(_journal, QStringList{"destroyed"});
        QCOMPARE(manager.history()->count(), 0);
    }

    void destroys_a_command_that_fails_and_keeps_what_can_be_redone()
    {
        CO_CommandManager manager(&_changes);
        manager.execute(rename("new"), QString());
        manager.history()->undo();
        _journal.clear();
        _behaviour.works = false;
        QVERIFY(!manager.execute(rename("other"), QString()));
        QCOMPARE(_journal, (QStringList{"executed", "destroyed"}));
        QVERIFY(manager.history()->canRedo());
    }

    void refuses_a_null_command()
    {
        CO_CommandManager manager(&_changes);
        QVERIFY(!manager.execute(nullptr, QStringLiteral("Nothing")));
        QCOMPARE(manager.history()->count(), 0);
    }

    void drops_a_step_that_can_no_longer_be_undone()
    {
        CO_CommandManager manager(&_changes);
        manager.execute(rename("new"), QString());
        _behaviour.works = false;
        manager.history()->undo();
        QCOMPARE(manager.history()->count(), 0);
        QCOMPARE(_journal, (QStringList{"executed", "executed", "destroyed"}));
    }

    void destroys_undone_commands_when_another_one_follows()
    {
        CO_CommandManager manager(&_changes);
        manager.execute(rename("new"), QString());
        manager.history()->undo();
        _journal.clear();
        manager.execute(rename("other"), QString());
        QCOMPARE(_journal, (QStringList{"executed", "destroyed"}));
        QCOMPARE(manager.history()->count(), 1);
    }

    void lets_a_listener_clear_the_history_during_undo()
    {
        CO_CommandManager manager(&_changes);
        manager.execute(rename("new"), QString());
        QObject listener;
        connect(&_changes, &TUSceneChangeManager::nodeInstanceNamesChanged, &listener,
                [&] { manager.history()->clear(); });
        manager.history()->undo();
        QCOMPARE(manager.history()->count(), 0);
        QCOMPARE(_node.instanceName(), QStringLiteral("old"));
    }

    void lets_a_listener_execute_another_command()
    {
        CO_CommandManager manager(&_changes);
        QObject listener;
        int calls = 0;
        connect(&_changes, &TUSceneChangeManager::nodeInstanceNamesChanged, &listener, [&] {
            if (++calls == 1)
                manager.execute(rename("newest"), QString());
        });
        manager.execute(rename("new"), QString());
        QCOMPARE(manager.history()->count(), 2);
        manager.history()->undo();
        manager.history()->undo();
        QCOMPARE(_node.instanceName(), QStringLiteral("old"));
    }

    void destroys_its_commands_with_itself_and_tells_nothing()
    {
        auto manager = std::make_unique<CO_CommandManager>(&_changes);
        manager->execute(rename("new"), QString());
        const ChangeLog log(_changes);
        _changes.emitSelectionChanged();
        manager.reset();
        QCOMPARE(_journal, (QStringList{"executed", "destroyed"}));
        QVERIFY(log.told().isEmpty());
        _changes.notify();
    }
};

QTEST_GUILESS_MAIN(tst_CO_CommandManager)
#include "tst_CO_CommandManager.moc"
