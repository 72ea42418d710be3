// SPDX-License-Identifier: MIT
#include "host/commands/CO_CommandManager.h"
#include "host/commands/CO_MacroCommand.h"
#include "host/scene/TUSceneChangeManager.h"

#include <QRegularExpression>
#include <QStringList>
#include <QTest>
#include <QUndoStack>

namespace {

enum Kind
{
    eWorks,
    eFails,
    eEmpty
};

/// Writes down what is done with it.
class Step : public CO_Command
{
public:
    Step(QStringList& log, const char* name, Kind kind = eWorks)
        : _log(log)
        , _name(QString::fromLatin1(name))
        , _kind(kind)
    {
    }
    ~Step() override { write("delete"); }

    bool empty() const override { return _kind == eEmpty; }
    bool execute() override
    {
        write("do");
        return _kind == eWorks;
    }
    bool undo() override
    {
        write("undo");
        return true;
    }
    bool redo() override
    {
        write("redo");
        return true;
    }

private:
    void write(const char* what) { _log << QString::fromLatin1(what) + u' ' + _name; }

    QStringList& _log;
    QString _name;
    Kind _kind;
};

} // namespace

class tst_CO_MacroCommand : public QObject
{
    Q_OBJECT

private:
    QStringList _log;

    Step* step(const char* name, Kind kind = eWorks) { return new Step(_log, name, kind); }
    QStringList take() { return std::exchange(_log, {}); }

private slots:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(".?"));
        _log.clear();
    }

    void owns_its_parts_and_ignores_null()
    {
        {
            CO_AndCommand all;
            CO_OrCommand any(false);
            all.append(step("a"));
            all.append(nullptr);
            any.append(step("b"));
            any.append(nullptr);
            QVERIFY(all.execute());
            QVERIFY(any.execute());
            QCOMPARE(take(), (QStringList{"do a", "do b"}));
        }
        _log.sort();
        QCOMPARE(take(), (QStringList{"delete a", "delete b"}));
    }

    void is_empty_when_every_part_is()
    {
        CO_AndCommand all;
        CO_OrCommand any(false), executed(true);
        for (CO_MacroCommand* macro :
             std::initializer_list<CO_MacroCommand*>{&all, &any, &executed}) {
            QVERIFY(macro->empty());
            macro->append(step("a", eEmpty));
            macro->append(step("b", eEmpty));
            QVERIFY(macro->empty());
            macro->append(step("c", eFails));
            QVERIFY(!macro->empty());
        }
        QVERIFY(_log.isEmpty());
    }

    void both_kinds_execute_in_order_and_undo_in_reverse()
    {
        CO_AndCommand all;
        CO_OrCommand any(false);
        for (CO_MacroCommand* macro : std::initializer_list<CO_MacroCommand*>{&all, &any}) {
            for (const char* name : {"a", "b", "c"})
                macro->append(step(name));
            QVERIFY(_log.isEmpty());
            QVERIFY(macro->execute());
            QCOMPARE(take(), (QStringList{"do a", "do b", "do c"}));
            for (int round = 0; round < 2; ++round) {
                QVERIFY(macro->undo());
                QCOMPARE(take(), (QStringList{"undo c", "undo b", "undo a"}));
                QVERIFY(macro->redo());
                QCOMPARE(take(), (QStringList{"redo a", "redo b", "redo c"}));
            }
        }
    }

    void or_drops_parts_that_fail()
    {
        CO_OrCommand any(false);
        any.append(step("a", eFails));
        any.append(step("b"));
        any.append(step("c", eFails));
        any.append(step("d"));
        QVERIFY(any.execute());
        QCOMPARE(take().filter(QStringLiteral("do ")),
                 (QStringList{"do a", "do b", "do c", "do d"}));
        QVERIFY(any.undo());
        QCOMPARE(take(), (QStringList{"undo d", "undo b"}));
        QVERIFY(any.redo());
        QCOMPARE(take(), (QStringList{"redo b", "redo d"}));
    }

    void or_fails_when_no_part_succeeds()
    {
        QVERIFY(!CO_OrCommand(false).execute());
        CO_OrCommand any(false);
        any.append(step("a", eFails));
        any.append(step("b", eFails));
        QVERIFY(!any.execute());
        QVERIFY(any.empty());
        take();
        any.undo();
        QVERIFY(_log.isEmpty());
    }

    void or_never_executes_an_empty_part()
    {
        CO_OrCommand any(false);
        any.append(step("a", eEmpty));
        any.append(step("b"));
        QVERIFY(any.execute());
        QCOMPARE(take().filter(QStringLiteral("do ")), QStringList{"do b"});
        any.undo();
        QCOMPARE(take(), QStringList{"undo b"});

        CO_OrCommand nothing(false);
        nothing.append(step("c", eEmpty));
        QVERIFY(!nothing.execute());
        QVERIFY(!_log.contains(QStringLiteral("do c")));
    }

    void or_leaves_parts_alone_that_were_executed_before()
    {
        CO_OrCommand any(true);
        QVERIFY(!any.execute());
        any.append(step("a"));
        any.append(step("b"));
        QVERIFY(any.execute());
        QVERIFY(_log.isEmpty());
        QVERIFY(any.undo());
        QCOMPARE(take(), (QStringList{"undo b", "undo a"}));
        QVERIFY(any.redo());
        QCOMPARE(take(), (QStringList{"redo a", "redo b"}));
    }

    void or_executes_its_parts_once_only()
    {
        CO_OrCommand any(false);
        any.append(step("a"));
        QVERIFY(any.execute());
        take();
        QVERIFY(any.execute());
        QVERIFY(_log.isEmpty());
    }

    void and_undoes_what_came_before_a_part_that_fails()
    {
        CO_AndCommand all;
        all.append(step("a"));
        all.append(step("b"));
        all.append(step("c", eFails));
        all.append(step("d"));
        QVERIFY(!all.execute());
        QCOMPARE(take(), (QStringList{"do a", "do b", "do c", "undo b", "undo a"}));
    }

    void and_has_nothing_to_undo_when_the_first_part_fails()
    {
        CO_AndCommand all;
        all.append(step("a", eFails));
        all.append(step("b"));
        QVERIFY(!all.execute());
        QCOMPARE(take(), QStringList{"do a"});
    }

    void may_be_parts_of_each_other()
    {
        auto* failing = new CO_AndCommand;
        failing->append(step("a"));
        failing->append(step("b", eFails));
        auto* working = new CO_AndCommand;
        working->append(step("c"));
        working->append(step("d"));
        CO_OrCommand any(false);
        any.append(failing);
        any.append(working);
        QVERIFY(any.execute());
        QCOMPARE(take().filter(QRegularExpression(QStringLiteral("^(un)?do "))),
                 (QStringList{"do a", "do b", "undo a", "do c", "do d"}));
        any.undo();
        QCOMPARE(take(), (QStringList{"undo d", "undo c"}));
    }

    void is_one_step_of_the_history()
    {
        TUSceneChangeManager changes;
        CO_CommandManager manager(&changes);
        auto* any = new CO_OrCommand(false);
        any->append(step("a"));
        any->append(step("b"));
        QVERIFY(manager.execute(any, QStringLiteral("Both")));
        QCOMPARE(manager.history()->count(), 1);
        QCOMPARE(manager.history()->undoText(), QStringLiteral("Both"));
        QCOMPARE(take(), (QStringList{"do a", "do b"}));
        manager.history()->undo();
        QCOMPARE(take(), (QStringList{"undo b", "undo a"}));
        manager.history()->redo();
        QCOMPARE(take(), (QStringList{"redo a", "redo b"}));

        auto* all = new CO_AndCommand;
        all->append(step("c"));
        all->append(step("d", eFails));
        QVERIFY(!manager.execute(all, QStringLiteral("Neither")));
        QCOMPARE(manager.history()->count(), 1);
        QVERIFY(_log.contains(QStringLiteral("undo c")));
        // The steps die with the manager and still write.
        manager.history()->clear();
    }
};

QTEST_GUILESS_MAIN(tst_CO_MacroCommand)
#include "tst_CO_MacroCommand.moc"
