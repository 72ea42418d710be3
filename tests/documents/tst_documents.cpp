// SPDX-License-Identifier: MIT

#include "tests/documents/Documents.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

/// The documents of the project hold together; and the checks find what they are there to find.
class tst_documents : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void every_link_and_picture_leads_somewhere();
    void every_picture_is_shown();
    void every_path_in_code_exists();
    void every_name_in_code_is_in_the_sources();

    void a_link_to_nothing_is_found();
    void a_picture_that_nobody_shows_is_found();
    void a_path_that_does_not_exist_is_found();
    void a_name_that_no_source_has_is_found();
    void options_are_read_from_commands_and_code_alone();
    void a_section_ends_at_the_next_heading_of_its_level();

private:
    void write(const QString& path, const QByteArray& content);
    /// Fails with all that was found.
    static void expectNone(const QStringList& found);

    std::unique_ptr<QTemporaryDir> _folder;
    const Documents _own{QStringLiteral(SOURCES)};
};

void tst_documents::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    _folder = std::make_unique<QTemporaryDir>();
    QVERIFY(_folder->isValid());
}

void tst_documents::write(const QString& path, const QByteArray& content)
{
    const QString whole = _folder->filePath(path);
    QVERIFY(QDir().mkpath(QFileInfo(whole).path()));
    QFile file(whole);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

void tst_documents::expectNone(const QStringList& found)
{
    QVERIFY2(found.isEmpty(), qPrintable(found.join(u'\n')));
}

void tst_documents::every_link_and_picture_leads_somewhere()
{
    QVERIFY(_own.files().contains(QStringLiteral("README.md")));
    QVERIFY(_own.files().contains(QStringLiteral("docs/architecture.md")));
    expectNone(_own.brokenLinks());
}

void tst_documents::every_picture_is_shown()
{
    expectNone(_own.unusedPictures());
}

void tst_documents::every_path_in_code_exists()
{
    expectNone(_own.missingPaths());
}

void tst_documents::every_name_in_code_is_in_the_sources()
{
    expectNone(_own.unknownNames());
}

void tst_documents::a_link_to_nothing_is_found()
{
    write(QStringLiteral("README.md"), "# A title: of \"two\"\n"
                                       "[file](docs/there.md) [part](docs/there.md#some-part)\n"
                                       "[own](#a-title-of-two) [web](https://example.org/x)\n"
                                       "```\n[in a block](nowhere.md)\n```\n"
                                       "[gone](docs/gone.md) [no part](docs/there.md#other)\n"
                                       "![picture](docs/images/gone.png) [no own](#other)\n");
    write(QStringLiteral("docs/there.md"), "## Some part\n[up](../README.md) [out](README.md)\n");
    const QStringList expected = {
        QStringLiteral("README.md: docs/gone.md"), QStringLiteral("README.md: docs/there.md#other"),
        QStringLiteral("README.md: docs/images/gone.png"), QStringLiteral("README.md: #other"),
        QStringLiteral("docs/there.md: README.md")};
    QCOMPARE(Documents(_folder->path()).brokenLinks(), expected);
}

void tst_documents::a_picture_that_nobody_shows_is_found()
{
    write(QStringLiteral("docs/images/shown.png"), "");
    write(QStringLiteral("docs/images/forgotten.png"), "");
    write(QStringLiteral("docs/guide.md"), "![shown](images/shown.png)\n");
    QCOMPARE(Documents(_folder->path()).unusedPictures(),
             QStringList{QStringLiteral("forgotten.png")});
}

void tst_documents::a_path_that_does_not_exist_is_found()
{
    write(QStringLiteral("host/there.h"), "");
    write(QStringLiteral("README.md"), "`host/` `host/there.h` `there.h` `build/anything/x`\n"
                                       "`and/or` `host/gone.h` `gone.h` `host/none/`\n");
    const QStringList expected = {QStringLiteral("README.md: host/gone.h"),
                                  QStringLiteral("README.md: gone.h"),
                                  QStringLiteral("README.md: host/none/")};
    QCOMPARE(Documents(_folder->path()).missingPaths(), expected);
}

void tst_documents::a_name_that_no_source_has_is_found()
{
    write(QStringLiteral("host/there.h"), "class MO_There { void hasSome(); };\n");
    write(QStringLiteral("README.md"), "`MO_There` `MO_There::hasSome()` `Plain` `plain`\n"
                                       "`MO_Gone` `MO_There::hasNone` `goneToo()`\n");
    const QStringList expected = {QStringLiteral("README.md: MO_Gone"),
                                  QStringLiteral("README.md: MO_There::hasNone"),
                                  QStringLiteral("README.md: goneToo()")};
    QCOMPARE(Documents(_folder->path()).unknownNames(), expected);
}

void tst_documents::options_are_read_from_commands_and_code_alone()
{
    write(QStringLiteral("guide.md"), "With `--theme dark` or `cmake --preset dev`, and --prose.\n"
                                      "```sh\n"
                                      "cmake --workflow x && subnode-workbench a --size 1x1 \\\n"
                                      "    --no-settings\n"
                                      "./workbench.sh --dump text\n"
                                      "ctest --output-on-failure\n"
                                      "```\n");
    const QSet<QString> expected = {QStringLiteral("--theme"), QStringLiteral("--size"),
                                    QStringLiteral("--no-settings"), QStringLiteral("--dump")};
    QCOMPARE(Documents(_folder->path()).workbenchOptions(QStringLiteral("guide.md")), expected);
}

void tst_documents::a_section_ends_at_the_next_heading_of_its_level()
{
    write(QStringLiteral("guide.md"), "# All\n## Keys\none\n### More\ntwo\n## Other\nthree\n");
    const Documents documents(_folder->path());
    const QStringList expected = {QStringLiteral("one"), QStringLiteral("### More"),
                                  QStringLiteral("two")};
    QCOMPARE(documents.section(QStringLiteral("guide.md"), QStringLiteral("Keys")), expected);
    QCOMPARE(documents.section(QStringLiteral("guide.md"), QStringLiteral("More")),
             QStringList{QStringLiteral("two")});
    QCOMPARE(documents.section(QStringLiteral("guide.md"), QStringLiteral("None")), QStringList());
}

QTEST_GUILESS_MAIN(tst_documents)
#include "tst_documents.moc"
