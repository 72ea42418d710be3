// SPDX-License-Identifier: MIT
#include "workbench/files/RecentFiles.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

class tst_recent_files : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }
    void the_newest_comes_first_and_each_once();
    void at_most_ten_are_kept();
    void they_are_there_the_next_time();
    void without_a_store_they_last_for_the_run();
    void files_that_vanished_stay_until_they_are_cleared();
    void what_others_wrote_into_the_settings_is_sorted_out();
};

void tst_recent_files::the_newest_comes_first_and_each_once()
{
    RecentFiles files(nullptr);
    QSignalSpy changed(&files, &RecentFiles::changed);
    files.add("/a/one.gltf");
    files.add("/a/two.subnodes");
    files.add("/a/b/../one.gltf");
    files.add("");
    QCOMPARE(files.paths(), (QStringList{"/a/one.gltf", "/a/two.subnodes"}));
    QCOMPARE(changed.count(), 3);
    files.add("/a/one.gltf");
    QCOMPARE(changed.count(), 3);
    files.add("here.obj");
    QCOMPARE(files.paths().first(), QDir::currentPath() + "/here.obj");
}

void tst_recent_files::at_most_ten_are_kept()
{
    RecentFiles files(nullptr);
    for (int i = 0; i < 12; ++i)
        files.add(QStringLiteral("/a/%1").arg(i));
    QCOMPARE(files.paths().size(), 10);
    QCOMPARE(files.paths().first(), QStringLiteral("/a/11"));
    QCOMPARE(files.paths().last(), QStringLiteral("/a/2"));
}

void tst_recent_files::they_are_there_the_next_time()
{
    const QTemporaryDir folder;
    QSettings store(folder.filePath("s.ini"), QSettings::IniFormat);
    RecentFiles(&store).add("/a/ü, one.gltf");
    RecentFiles(&store).add("/a/two.gltf");
    store.sync();
    QSettings again(folder.filePath("s.ini"), QSettings::IniFormat);
    QCOMPARE(RecentFiles(&again).paths(), (QStringList{"/a/two.gltf", "/a/ü, one.gltf"}));
}

void tst_recent_files::without_a_store_they_last_for_the_run()
{
    RecentFiles files(nullptr);
    files.add("/a");
    QCOMPARE(files.paths(), QStringList("/a"));
    files.clear();
    QVERIFY(files.paths().isEmpty());
    QVERIFY(RecentFiles(nullptr).paths().isEmpty());
}

void tst_recent_files::files_that_vanished_stay_until_they_are_cleared()
{
    const QTemporaryDir folder;
    QFile there(folder.filePath("there.obj"));
    QVERIFY(there.open(QIODevice::WriteOnly));
    RecentFiles files(nullptr);
    files.add(folder.filePath("gone.obj"));
    files.add(there.fileName());
    QCOMPARE(files.paths().size(), 2);
    files.clearMissing();
    QCOMPARE(files.paths(), QStringList(there.fileName()));
}

void tst_recent_files::what_others_wrote_into_the_settings_is_sorted_out()
{
    const QTemporaryDir folder;
    QSettings store(folder.filePath("s.ini"), QSettings::IniFormat);
    store.setValue("recentFiles", QStringList{"relative", "/a", "/a", ""});
    QCOMPARE(RecentFiles(&store).paths(), QStringList("/a"));
    store.setValue("recentFiles", 17);
    QVERIFY(RecentFiles(&store).paths().isEmpty());
}

QTEST_MAIN(tst_recent_files)
#include "tst_recent_files.moc"
