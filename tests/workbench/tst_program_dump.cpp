// SPDX-License-Identifier: MIT

#include "tests/workbench/ProgramTest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonValue>
#include <algorithm>

/// Looks at what the program prints of models.
class tst_program_dump : public ProgramTest
{
    Q_OBJECT

private slots:
    void init() { openFolder(); }
    void dump_prints_the_tree_and_nothing_else();
    void dump_is_the_same_every_time();
    void dump_of_several_models_keeps_their_order();
    void dump_as_json_is_one_document();
    void dump_shows_what_the_actions_did();
    void dump_shows_what_is_selected();
    void filtered_dump_keeps_what_leads_to_a_match();
    void extended_dump_has_every_node_with_its_type();
};

void tst_program_dump::dump_prints_the_tree_and_nothing_else()
{
    const Run done = run({_robot, "--dump", "text"});
    QCOMPARE(done.code, 0);
    QCOMPARE(done.error, QByteArray());
    const QList<QByteArray> lines = done.out.split('\n');
    QCOMPARE(lines.first(), QByteArray("robot"));
    QVERIFY(lines.at(1).startsWith("  "));
    QVERIFY(lines.size() > 30);
}

void tst_program_dump::dump_is_the_same_every_time()
{
    QCOMPARE(run({_robot, "--dump", "text", "--extended"}).out,
             run({_robot, "--dump", "text", "--extended"}).out);
}

void tst_program_dump::dump_of_several_models_keeps_their_order()
{
    const QByteArray out = run({_crane, _robot, _crane, "--dump", "text"}).out;
    QVERIFY(out.startsWith("crane\n"));
    QVERIFY(out.contains("\nrobot\n"));
    QVERIFY(out.indexOf("\ncrane_2\n") > out.indexOf("\nrobot\n"));
}

void tst_program_dump::dump_as_json_is_one_document()
{
    const Run done = run({_crane, _robot, "--dump", "json", "--frame", "3"});
    QCOMPARE(done.code, 0);
    QCOMPARE(done.error, QByteArray());
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(done.out, &error);
    QCOMPARE(error.error, QJsonParseError::NoError);
    QCOMPARE(document["frame"], QJsonValue(3));
    QCOMPARE(document["models"].toArray().size(), 2);
    QCOMPARE(document["models"][0]["element"], QJsonValue("crane"));
    QCOMPARE(document["models"][1]["element"], QJsonValue("robot"));
    // Both formats list the same nodes.
    const QByteArray text = run({_robot, "--dump", "text"}).out;
    QCOMPARE(document["models"][1]["nodes"].toArray().size(), text.count('\n') - 1);
}

void tst_program_dump::dump_shows_what_the_actions_did()
{
    const QStringList hide{_robot, "--select", "Head", "--action", "onActionHideNodes"};
    const QList<QByteArray> before =
        run({_robot, "--select", "Head", "--dump", "text"}).out.split('\n');
    const QList<QByteArray> after = run(hide + QStringList{"--dump", "text"}).out.split('\n');
    QCOMPARE(after.size(), before.size());
    QByteArrayList changed;
    for (qsizetype i = 0; i < after.size(); ++i) {
        if (after.at(i) != before.at(i))
            changed += after.at(i).trimmed();
    }
    QCOMPARE(changed, QByteArrayList{"Head [KeyTransform] key disabled selected"});

    const QByteArray json = run(hide + QStringList{"--dump", "json"}).out;
    QByteArrayList disabled;
    for (const QByteArray& line : json.split('\n')) {
        if (line.contains("\"disabled\":true"))
            disabled += line;
    }
    QCOMPARE(disabled.size(), 1);
    QVERIFY2(disabled.first().contains("\"name\":\"Head\""), disabled.first().constData());
}

void tst_program_dump::dump_shows_what_is_selected()
{
    const QByteArray out = run({_robot, "--select", "Head", "--dump", "text"}).out;
    QCOMPARE(out.count(" selected\n"), 1);
    QVERIFY(out.contains("Head [KeyTransform] key selected\n"));
    QVERIFY(!run({_robot, "--dump", "text"}).out.contains(" selected"));
}

void tst_program_dump::filtered_dump_keeps_what_leads_to_a_match()
{
    const QByteArrayList all = run({_robot, "--dump", "text"}).out.split('\n');
    const QByteArrayList kept = run({_robot, "--filter", "hEAD", "--dump", "text"}).out.split('\n');
    QCOMPARE(kept.first(), QByteArray("robot"));
    QVERIFY(kept.size() > 2 && kept.size() < all.size());
    qsizetype at = 0;
    for (const QByteArray& line : kept) {
        at = all.indexOf(line, at);
        QVERIFY2(at >= 0, line.constData());
        const QByteArray name = line.trimmed().toLower();
        const auto isMatch = [](const QByteArray& other) {
            return other.toLower().contains("head");
        };
        const qsizetype next = kept.indexOf(line) + 1;
        if (!name.isEmpty() && !isMatch(line))
            QVERIFY(std::any_of(kept.begin() + next, kept.end(), isMatch));
    }
    const Run none = run({_robot, "--filter", "no such part", "--dump", "text"});
    QCOMPARE(none.code, 0);
    QCOMPARE(none.out, QByteArray("robot\n"));
}

void tst_program_dump::extended_dump_has_every_node_with_its_type()
{
    const QByteArray out = run({_robot, "--dump", "text", "--extended"}).out;
    QVERIFY(out.contains(" [KeyTransform] key\n"));
    QVERIFY(out.contains(" [Group]\n"));
    QVERIFY(out.contains(" [Geometry]\n"));
    QVERIFY(out.count('\n') > run({_robot, "--dump", "text"}).out.count('\n'));
}

QTEST_GUILESS_MAIN(tst_program_dump)
#include "tst_program_dump.moc"
