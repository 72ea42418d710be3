// SPDX-License-Identifier: MIT

#include "tests/workbench/ProgramTest.h"

#include <map>

/// What the program prints where the user reads French, or other languages.
class tst_french_program : public ProgramTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void the_environment_chooses_the_language_data();
    void the_environment_chooses_the_language();
    void help_names_the_program_and_what_its_options_take();
    void errors_of_usage_are_translated();
    void reasons_of_the_importer_are_translated();
    void data_does_not_depend_on_the_language_data();
    void data_does_not_depend_on_the_language();
    void actions_keep_their_names();

private:
    using Variables = std::map<QByteArray, QByteArray>;
    static void speak(const Variables& variables);

    Variables _before;
};

namespace {

const QByteArrayList variableNames = {"LC_ALL", "LC_MESSAGES", "LANG", "LANGUAGE"};

} // namespace

/// What is not given is not set.
void tst_french_program::speak(const Variables& variables)
{
    for (const QByteArray& name : variableNames) {
        const auto it = variables.find(name);
        if (it == variables.end())
            qunsetenv(name);
        else
            qputenv(name, it->second);
    }
}

void tst_french_program::init()
{
    _before.clear();
    for (const QByteArray& name : variableNames) {
        if (qEnvironmentVariableIsSet(name))
            _before[name] = qgetenv(name);
    }
    openFolder();
    speak({{"LC_ALL", "fr_FR.UTF-8"}});
}

void tst_french_program::cleanup()
{
    speak(_before);
}

void tst_french_program::the_environment_chooses_the_language_data()
{
    QTest::addColumn<Variables>("variables");
    QTest::addColumn<QByteArray>("help");
    const QByteArray french = "Affiche cette aide.";
    const QByteArray english = "Shows this help.";
    QTest::newRow("all") << Variables{{"LC_ALL", "fr_FR.UTF-8"}} << french;
    QTest::newRow("another country") << Variables{{"LANG", "fr_CA.UTF-8"}} << french;
    QTest::newRow("without a country") << Variables{{"LANG", "fr"}} << french;
    QTest::newRow("messages") << Variables{{"LANG", "de_DE.UTF-8"}, {"LC_MESSAGES", "fr_FR.UTF-8"}}
                              << french;
    QTest::newRow("second choice")
        << Variables{{"LANG", "de_DE.UTF-8"}, {"LANGUAGE", "de:fr"}} << french;
    QTest::newRow("English first")
        << Variables{{"LANG", "en_GB.UTF-8"}, {"LANGUAGE", "en_GB:fr"}} << english;
    QTest::newRow("no translation") << Variables{{"LANG", "de_DE.UTF-8"}} << english;
    QTest::newRow("nonsense") << Variables{{"LANG", "teapot"}} << english;
    QTest::newRow("nothing") << Variables{} << english;
    QTest::newRow("for scripts") << Variables{{"LC_ALL", "C"}, {"LANGUAGE", "fr"}} << english;
    QTest::newRow("for scripts, UTF-8")
        << Variables{{"LC_ALL", "C.UTF-8"}, {"LANG", "fr_FR.UTF-8"}, {"LANGUAGE", "fr"}} << english;
    QTest::newRow("for scripts, otherwise")
        << Variables{{"LANG", "POSIX"}, {"LANGUAGE", "fr"}} << english;
}

void tst_french_program::the_environment_chooses_the_language()
{
    QFETCH(Variables, variables);
    QFETCH(QByteArray, help);
    speak(variables);
    const Run done = run({"--help"});
    QCOMPARE(done.code, 0);
    QVERIFY2(done.out.contains(help), done.out);
    QCOMPARE(done.error, QByteArray());
}

void tst_french_program::help_names_the_program_and_what_its_options_take()
{
    const QByteArray help = run({"--help"}).out;
    QVERIFY2(help.contains(" subnode-workbench [options] [FICHIER...]\n"), help);
    QVERIFY2(help.contains("--select <NOM>"), help);
    QVERIFY2(!help.contains("FILE"), help);
    QVERIFY2(help.endsWith("\n"), help);
}

void tst_french_program::errors_of_usage_are_translated()
{
    const Run done = run({"--size", "huge"});
    QCOMPARE(done.code, 2);
    QCOMPARE(QString::fromUtf8(done.error),
             QStringLiteral("subnode-workbench: --size demande une largeur et une hauteur, par "
                            "exemple 1000x800, et non \u00ab\u202fhuge\u202f\u00bb.\n"));
    QCOMPARE(done.out, QByteArray());
}

void tst_french_program::reasons_of_the_importer_are_translated()
{
    write(QStringLiteral("empty.gltf"), {});
    const Run done = run({path(QStringLiteral("empty.gltf")), "--quit"});
    QCOMPARE(done.code, 1);
    QVERIFY2(
        QString::fromUtf8(done.error).endsWith(QStringLiteral("empty.gltf: le fichier est vide\n")),
        done.error);
}

void tst_french_program::data_does_not_depend_on_the_language_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::newRow("text") << QStringList{"--dump", "text", "--extended"};
    QTest::newRow("json") << QStringList{"--dump", "json", "--select", "Head"};
    QTest::newRow("formats") << QStringList{"--formats"};
    QTest::newRow("version") << QStringList{"--version"};
}

void tst_french_program::data_does_not_depend_on_the_language()
{
    QFETCH(QStringList, options);
    const QString scene = path(QStringLiteral("scene.subnodes"));
    const QStringList arguments = QStringList{_robot} + options + QStringList{"--save", scene};
    const auto saved = [&scene] {
        QFile file(scene);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const Run french = run(arguments);
    const QByteArray frenchScene = saved();
    QFile::remove(scene);
    speak({{"LC_ALL", "C.UTF-8"}});
    const Run english = run(arguments);
    QCOMPARE(french.code, 0);
    QVERIFY(!french.out.isEmpty());
    QCOMPARE(french.out, english.out);
    QCOMPARE(french.error, english.error);
    QCOMPARE(frenchScene, saved());
}

void tst_french_program::actions_keep_their_names()
{
    const Run done =
        run({_robot, "--select", "Head", "--action", "onActionDisableSubnode", "--dump", "text"});
    QCOMPARE(done.code, 0);
    QVERIFY2(QString::fromUtf8(done.out).contains(
                 QRegularExpression(QStringLiteral(" Head \\[.*\\] key disabled"))),
             done.out);
}

QTEST_GUILESS_MAIN(tst_french_program)
#include "tst_french_program.moc"
