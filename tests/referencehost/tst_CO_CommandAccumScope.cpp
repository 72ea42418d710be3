// SPDX-License-Identifier: MIT
#include "ChangeLog.h"
#include "host/commands/CO_Command.h"
#include "host/commands/CO_CommandAccumScope.h"
#include "host/commands/CO_CommandManager.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/MO_PegModule.h"
#include "host/scene/TUSceneChangeManager.h"
#include "referencehost/commands/RenameNode.h"

#include <QRegularExpression>
#include <QTest>
#include <QUndoStack>

namespace {

/// Writes down what is done to it, and works or does not.
class Journaled : public CO_Command
{
public:
    Journaled(const char* name, QStringList& journal, const bool& works)
        : _name(QString::fromLatin1(name))
        , _journal(journal)
        , _works(works)
    {
    }
    ~Journaled() override { _journal << QStringLiteral("~") + _name; }

    bool execute() override { return write(u'!'); }
    bool undo() override { return write(u'-'); }
    bool redo() override { return write(u'+'); }

private:
    bool write(QChar what)
    {
        _journal << what + _name;
        return _works;
    }

    QString _name;
    QStringList& _journal;
    const bool& _works;
};

} // namespace

class tst_CO_CommandAccumScope : public QObject
{
    Q_OBJECT

private:
    TUSceneChangeManager _changes;
    TUScene _scene{QStringLiteral("Scene"), &_changes};
    MO_Node* _node = _scene.rootGroup()->insertNode(std::make_unique<MO_PegModule>("old"));
    QStringList _journal;
    bool _works = true;
    std::unique_ptr<CO_CommandManager> _manager;

    bool execute(const char* name)
    {
        return _manager->execute(new Journaled(name, _journal, _works), QString::fromLatin1(name));
    }
    bool rename(const char* name)
    {
        return _manager->execute(new RenameNode(_node, QString::fromLatin1(name)),
                                 QStringLiteral("Rename"));
    }
    QUndoStack& history() { return *_manager->history(); }
    QString journal()
    {
        const QString written = _journal.join(u' ');
        _journal.clear();
        return written;
    }

private slots:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(".?"));
        _works = true;
        _node->setInstanceName(QStringLiteral("old"));
        _changes.notify();
        _manager = std::make_unique<CO_CommandManager>(&_changes);
    }
    void cleanup()
    {
        _manager.reset();
        _journal.clear();
    }

    void many_commands_make_one_step()
    {
        {
            const CO_CommandAccumScope scope(_manager.get(), QStringLiteral("Both"));
            QVERIFY(execute("a"));
            QVERIFY(execute("b"));
            QCOMPARE(history().count(), 0);
        }
        QCOMPARE(history().count(), 1);
        QCOMPARE(history().undoText(), QStringLiteral("Both"));
        QCOMPARE(journal(), QStringLiteral("!a !b"));
    }

    void is_undone_backwards_and_redone_forwards()
    {
        {
            const CO_CommandAccumScope scope(_manager.get(), QString());
            for (const char* name : {"a", "b", "c"})
                execute(name);
        }
        journal();
        history().undo();
        QCOMPARE(journal(), QStringLiteral("-c -b -a"));
        history().redo();
        QCOMPARE(journal(), QStringLiteral("+a +b +c"));
        history().undo();
        QCOMPARE(journal(), QStringLiteral("-c -b -a"));
        QCOMPARE(history().count(), 1);
    }

    void nothing_executed_makes_no_step_and_keeps_what_can_be_redone()
    {
        execute("a");
        history().undo();
        {
            const CO_CommandAccumScope scope(_manager.get(), QStringLiteral("Nothing"));
        }
        QCOMPARE(history().count(), 1);
        QVERIFY(history().canRedo());
    }

    void the_outermost_of_nested_scopes_makes_the_step()
    {
        {
            const CO_CommandAccumScope outer(_manager.get(), QStringLiteral("Outer"));
            execute("a");
            {
                const CO_CommandAccumScope inner(_manager.get(), QStringLiteral("Inner"));
                execute("b");
                const CO_CommandAccumScope innermost(_manager.get(), QStringLiteral("Innermost"));
                execute("c");
            }
            QCOMPARE(history().count(), 0);
            execute("d");
        }
        QCOMPARE(history().count(), 1);
        QCOMPARE(history().undoText(), QStringLiteral("Outer"));
        journal();
        history().undo();
        QCOMPARE(journal(), QStringLiteral("-d -c -b -a"));
    }

    void an_inner_scope_alone_fills_the_step_of_the_outer_one()
    {
        {
            const CO_CommandAccumScope outer(_manager.get(), QStringLiteral("Outer"));
            const CO_CommandAccumScope inner(_manager.get(), QStringLiteral("Inner"));
            execute("a");
        }
        QCOMPARE(history().count(), 1);
        QCOMPARE(history().undoText(), QStringLiteral("Outer"));
    }

    void scopes_one_after_the_other_make_a_step_each()
    {
        for (const char* name : {"First", "Second"}) {
            const CO_CommandAccumScope scope(_manager.get(), QString::fromLatin1(name));
            execute("a");
        }
        execute("b");
        QCOMPARE(history().count(), 3);
        QCOMPARE(history().text(0), QStringLiteral("First"));
        QCOMPARE(history().text(1), QStringLiteral("Second"));
        QCOMPARE(history().text(2), QStringLiteral("b"));
    }

    void a_command_that_fails_is_left_out()
    {
        {
            const CO_CommandAccumScope scope(_manager.get(), QString());
            QVERIFY(execute("a"));
            _works = false;
            QVERIFY(!execute("b"));
            QVERIFY(!_manager->execute(nullptr, QString()));
            _works = true;
            QVERIFY(execute("c"));
        }
        QCOMPARE(journal(), QStringLiteral("!a !b ~b !c"));
        history().undo();
        QCOMPARE(journal(), QStringLiteral("-c -a"));
    }

    void commands_that_all_fail_make_no_step()
    {
        {
            const CO_CommandAccumScope scope(_manager.get(), QString());
            _works = false;
            QVERIFY(!execute("a"));
        }
        QCOMPARE(history().count(), 0);
        QCOMPARE(journal(), QStringLiteral("!a ~a"));
    }

    void a_step_drops_out_only_when_nothing_of_it_can_be_undone()
    {
        bool firstWorks = true;
        {
            const CO_CommandAccumScope scope(_manager.get(), QString());
            _manager->execute(new Journaled("first", _journal, firstWorks), QString());
            execute("second");
        }
        _works = false;
        history().undo();
        QCOMPARE(history().count(), 1);
        firstWorks = false;
        history().redo();
        QCOMPARE(history().count(), 0);
    }

    void a_command_executed_elsewhere_is_gathered_too()
    {
        {
            const CO_CommandAccumScope scope(_manager.get(), QString());
            execute("a");
            _manager->addExecuted(std::make_unique<Journaled>("b", _journal, _works), QString());
            _manager->addExecuted(nullptr, QString());
        }
        QCOMPARE(history().count(), 1);
        QCOMPARE(journal(), QStringLiteral("!a"));
        history().undo();
        QCOMPARE(journal(), QStringLiteral("-b -a"));
    }

    void changes_are_told_once_when_the_outermost_scope_ends()
    {
        ChangeLog log(_changes);
        {
            const CO_CommandAccumScope outer(_manager.get(), QString());
            {
                const CO_CommandAccumScope inner(_manager.get(), QString());
                QVERIFY(rename("new"));
            }
            QVERIFY(rename("newer"));
            QVERIFY(log.told().isEmpty());
        }
        QCOMPARE(log.take(), QStringList{"names newer"});
        history().undo();
        QCOMPARE(_node->instanceName(), QStringLiteral("old"));
        QCOMPARE(log.take(), QStringList{"names old"});
        history().redo();
        QCOMPARE(_node->instanceName(), QStringLiteral("newer"));
        QCOMPARE(log.take(), QStringList{"names newer"});
    }

    void a_listener_may_gather_again_when_told()
    {
        QObject listener;
        int told = 0;
        connect(&_changes, &TUSceneChangeManager::nodeInstanceNamesChanged, &listener, [&] {
            const CO_CommandAccumScope scope(_manager.get(), QStringLiteral("Told"));
            if (++told == 1)
                rename("told");
        });
        {
            const CO_CommandAccumScope scope(_manager.get(), QStringLiteral("Rename"));
            rename("new");
        }
        QCOMPARE(history().count(), 2);
        QCOMPARE(history().undoText(), QStringLiteral("Told"));
        QCOMPARE(_node->instanceName(), QStringLiteral("told"));
    }

    void without_a_manager_nothing_happens()
    {
        {
            const CO_CommandAccumScope scope(nullptr, QStringLiteral("Nobody"));
            QVERIFY(execute("a"));
        }
        QCOMPARE(history().count(), 1);
        QCOMPARE(history().undoText(), QStringLiteral("a"));
    }
};

QTEST_GUILESS_MAIN(tst_CO_CommandAccumScope)
#include "tst_CO_CommandAccumScope.moc"
