// SPDX-License-Identifier: MIT
#include "tests/workbench/WindowTest.h"
#include "workbench/docks/LogDock.h"
#include "workbench/timeline/TimelineDock.h"
#include "workbench/window/MessageBar.h"

#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

/// What a window keeps from run to run, and what it leaves alone.
class tst_remembered_window : public WindowTest
{
    Q_OBJECT

private:
    const QString _robotFile = QStringLiteral(MODELS "/robot.gltf");
    std::unique_ptr<QTemporaryDir> _folder;

    void openRemembering(bool remembers = true)
    {
        WindowOptions options;
        options.remembers = remembers;
        openEmptyWindow(options);
        _window->files().setAsks(false);
    }
    void closeAndOpen(bool remembers = true)
    {
        _window->close();
        closeWindow();
        openRemembering(remembers);
    }
    QStringList recentTexts()
    {
        QMenu* recent = entry("File", "Open Recent")->menu();
        emit recent->aboutToShow();
        QStringList texts;
        for (const QAction* action : recent->actions())
            texts << action->text();
        return texts;
    }
    QStringList storedKeys() { return QSettings().allKeys(); }

private slots:
    void initTestCase()
    {
        QVERIFY(osg::osgInit(0, nullptr));
        QCoreApplication::setOrganizationName(QStringLiteral("subnode-views-test"));
        QCoreApplication::setApplicationName(QStringLiteral("tst_remembered_window"));
    }
    void init()
    {
        _folder = std::make_unique<QTemporaryDir>();
        qputenv("XDG_DATA_HOME", QFile::encodeName(_folder->path()));
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, _folder->path());
    }
    void cleanup() { closeWindow(); }

    void docks_come_back_as_they_were()
    {
        openRemembering();
        QVERIFY(!_window->log().isVisible());
        QVERIFY(_window->timeline().isVisible());
        key(Qt::Key_6, Qt::ControlModifier);
        key(Qt::Key_4, Qt::ControlModifier);
        _window->resize(760, 640);
        QVERIFY(_window->log().isVisible());
        QVERIFY(!_window->timeline().isVisible());
        closeAndOpen();
        QVERIFY(_window->log().isVisible());
        QVERIFY(!_window->timeline().isVisible());
        QCOMPARE(_window->size(), QSize(760, 640));
        QVERIFY(!_window->messages().isVisible());
        entry("Window", "Reset Layout")->trigger();
        QVERIFY(!_window->log().isVisible());
        QVERIFY(_window->timeline().isVisible());
    }

    void a_message_that_stood_there_at_the_end_is_gone()
    {
        openRemembering();
        _window->messages().add(QStringLiteral("one"));
        closeAndOpen();
        QVERIFY(!_window->messages().isVisible());
    }

    void recent_files_come_back()
    {
        openRemembering();
        open({_robotFile, QStringLiteral(MODELS "/crane.gltf")});
        closeAndOpen();
        QCOMPARE(recentTexts().mid(0, 2), (QStringList{"&1 crane.gltf", "&2 robot.gltf"}));
    }

    void a_window_that_does_not_remember_leaves_settings_alone()
    {
        openRemembering(false);
        open({_robotFile});
        QCOMPARE(recentTexts().first(), QStringLiteral("&1 robot.gltf"));
        key(Qt::Key_6, Qt::ControlModifier);
        closeAndOpen(false);
        QCOMPARE(storedKeys(), QStringList());
        QVERIFY(!_window->log().isVisible());
        QCOMPARE(recentTexts().first(), QStringLiteral("No files yet"));

        closeWindow();
        openRemembering();
        open({_robotFile});
        key(Qt::Key_6, Qt::ControlModifier);
        closeAndOpen(false);
        QVERIFY(!_window->log().isVisible());
        QCOMPARE(recentTexts().first(), QStringLiteral("No files yet"));
    }

    void a_damaged_layout_is_passed_over()
    {
        openRemembering();
        key(Qt::Key_6, Qt::ControlModifier);
        _window->close();
        closeWindow();
        QSettings store;
        const QStringList keys = storedKeys().filter(QStringLiteral("WindowLayout"));
        QVERIFY(keys.size() >= 3);
        for (const QString& each : keys) {
            const QVariant whole = store.value(each);
            store.setValue(each, QByteArray("damaged"));
            store.sync();
            openRemembering();
            QVERIFY2(!_window->log().isVisible(), qPrintable(each));
            QVERIFY(_window->timeline().isVisible());
            QVERIFY(graph().isVisible());
            closeWindow();
            store.setValue(each, whole);
            store.sync();
        }
        openRemembering();
        QVERIFY(_window->log().isVisible());
    }
};

QTEST_MAIN(tst_remembered_window)
#include "tst_remembered_window.moc"
