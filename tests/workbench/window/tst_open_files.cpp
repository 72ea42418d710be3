// SPDX-License-Identifier: MIT
#include "workbench/window/FileActions.h"

#include "Dialogs.h"
#include "Drops.h"
#include "ModelFiles.h"
#include "tests/workbench/WindowTest.h"
#include "workbench/files/ImportProgressDialog.h"
#include "workbench/window/MessageBar.h"

#include <QMimeData>
#include <QStatusBar>
#include <QTemporaryDir>

/// The ways in which files come into the window.
class tst_open_files : public WindowTest
{
    Q_OBJECT

private:
    const QString _robotFile = QStringLiteral(MODELS "/robot.gltf");
    const QString _craneFile = QStringLiteral(MODELS "/crane.gltf");
    std::unique_ptr<QTemporaryDir> _folder;
    std::unique_ptr<Dialogs> _dialogs;

    QString path(const QString& name) const { return _folder->filePath(name); }
    QStringList messages() { return _window->messages().messages(); }
    QMenu* recent()
    {
        QMenu* found = entry("File", "Open Recent")->menu();
        emit found->aboutToShow();
        return found;
    }
    QStringList recentTexts()
    {
        QStringList texts;
        for (const QAction* action : recent()->actions()) {
            if (!action->isSeparator())
                texts << action->text();
        }
        return texts;
    }
    /// A scene file with the crane in it.
    QString sceneWithCrane()
    {
        QString error;
        const QString scene = path(QStringLiteral("crane.subnodes"));
        open({_craneFile});
        if (!_window->files().saveTo(scene, error))
            return {};
        _window->files().newScene();
        return scene;
    }

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init()
    {
        _folder = std::make_unique<QTemporaryDir>();
        openEmptyWindow();
        _dialogs = std::make_unique<Dialogs>();
    }
    void cleanup()
    {
        closeWindow();
        QCOMPARE(_dialogs->unexpected(), QStringList());
    }

    void models_come_one_after_the_other_and_the_first_is_selected()
    {
        open({_robotFile, _craneFile});
        QCOMPARE(listed(), (QStringList{"robot", "crane"}));
        QCOMPARE(listed(true), QStringList{"robot"});
        QVERIFY(_window->isWindowModified());
        QVERIFY(messages().isEmpty());
        QVERIFY2(_window->statusBar()->currentMessage().contains(QStringLiteral("crane")),
                 qPrintable(_window->statusBar()->currentMessage()));
    }

    void a_scene_takes_the_place_of_what_was_open()
    {
        const QString scene = sceneWithCrane();
        QVERIFY(listed().isEmpty());
        open({scene});
        QCOMPARE(listed(), QStringList{"crane"});
        QVERIFY(!_window->isWindowModified());
        QCOMPARE(_window->windowTitle(), QStringLiteral("crane.subnodes[*] - Subnode Workbench"));
        open({scene, _robotFile});
        QCOMPARE(listed(), (QStringList{"crane", "robot"}));
        QVERIFY(_window->isWindowModified());
    }

    void one_that_fails_in_the_middle_stops_none_behind_it()
    {
        const QString broken = path(QStringLiteral("broken.gltf"));
        const QString brokenScene = path(QStringLiteral("broken.subnodes"));
        QVERIFY(ModelFiles::writeBroken(broken));
        QVERIFY(ModelFiles::writeBroken(brokenScene));
        open({_robotFile, broken, _craneFile});
        QCOMPARE(listed(), (QStringList{"robot", "crane"}));
        QCOMPARE(messages().size(), 1);
        // Each scene might have taken the place of what is open.
        _dialogs->expect(Dialogs::click(QStringLiteral("Discard")));
        _dialogs->expect(Dialogs::click(QStringLiteral("Discard")));
        open({brokenScene, path(QStringLiteral("gone.subnodes")), _craneFile});
        QCOMPARE(listed(), (QStringList{"robot", "crane", "crane_2"}));
        QCOMPARE(messages().size(), 3);
        QVERIFY(messages()[1].contains(QStringLiteral("broken.subnodes")));
        QVERIFY(messages()[2].contains(QStringLiteral("gone.subnodes")));
    }

    void what_is_opened_meanwhile_waits_for_its_turn()
    {
        QSignalSpy opened(&_window->files(), &FileActions::allOpened);
        _window->files().open({_robotFile});
        _window->files().open({_craneFile});
        _window->files().open({_robotFile});
        QTRY_COMPARE_WITH_TIMEOUT(opened.count(), 1, 30000);
        QCOMPARE(listed(), (QStringList{"robot", "crane", "robot_2"}));
    }

    void nothing_is_opened_at_once()
    {
        QSignalSpy opened(&_window->files(), &FileActions::allOpened);
        _window->files().open({});
        QCOMPARE(opened.count(), 1);
    }

    void closing_the_window_opens_nothing_more()
    {
        QSignalSpy opened(&_window->files(), &FileActions::allOpened);
        _window->files().open({_robotFile, _craneFile, _robotFile});
        _window->close();
        QTRY_COMPARE_WITH_TIMEOUT(opened.count(), 1, 30000);
        QVERIFY(listed().isEmpty());
    }

    void cancelling_opens_nothing_more()
    {
        QSignalSpy opened(&_window->files(), &FileActions::allOpened);
        _window->files().open({_robotFile, _craneFile, _robotFile});
        emit _window->findChild<ImportProgressDialog*>()->canceled();
        QTRY_COMPARE_WITH_TIMEOUT(opened.count(), 1, 30000);
        QVERIFY(listed().isEmpty());
        open({_craneFile});
        QCOMPARE(listed(), QStringList{"crane"});
    }

    void files_are_dropped_anywhere_in_the_window()
    {
        for (QWidget* place : std::initializer_list<QWidget*>{
                 &graph(), &list(), _window->statusBar(), _window->menuBar()}) {
            const QPoint at = place->mapTo(_window.get(), place->rect().center());
            QSignalSpy opened(&_window->files(), &FileActions::allOpened);
            const auto before = listed().size();
            QVERIFY2(Drops::dropFiles(*_window, at, {_robotFile}),
                     place->metaObject()->className());
            QTRY_COMPARE_WITH_TIMEOUT(opened.count(), 1, 30000);
            QCOMPARE(listed().size(), before + 1);
        }
    }

    void what_is_no_file_is_not_taken()
    {
        QMimeData text;
        text.setText(QStringLiteral("robot.gltf"));
        QVERIFY(!Drops::drop(*_window, QPoint(200, 10), text));
        QMimeData page;
        page.setUrls({QUrl(QStringLiteral("https://example.org/robot.gltf"))});
        QVERIFY(!Drops::drop(*_window, QPoint(200, 10), page));
        QVERIFY(listed().isEmpty());
    }

    void recent_files_are_opened_from_their_menu()
    {
        QCOMPARE(recentTexts().first(), QStringLiteral("No files yet"));
        QVERIFY(!recent()->actions().first()->isEnabled());
        open({_robotFile, _craneFile});
        QCOMPARE(recentTexts().mid(0, 2), (QStringList{"&1 crane.gltf", "&2 robot.gltf"}));
        QCOMPARE(recent()->actions().first()->statusTip(),
                 QFileInfo(_craneFile).absoluteFilePath());
        QSignalSpy opened(&_window->files(), &FileActions::allOpened);
        recent()->actions().at(1)->trigger();
        QTRY_COMPARE_WITH_TIMEOUT(opened.count(), 1, 30000);
        QCOMPARE(listed(), (QStringList{"robot", "crane", "robot_2"}));
        QCOMPARE(recentTexts().first(), QStringLiteral("&1 robot.gltf"));
    }

    void a_recent_file_that_is_gone_is_grey_until_it_is_cleared()
    {
        const QString own = path(QStringLiteral("R&D.gltf"));
        QVERIFY(ModelFiles::writeRobot(own));
        open({own, _craneFile});
        QCOMPARE(recentTexts().at(1), QStringLiteral("&2 R&&D.gltf"));
        QVERIFY(recent()->actions().at(1)->isEnabled());
        QVERIFY(QFile::remove(own));
        QVERIFY(!recent()->actions().at(1)->isEnabled());
        for (QAction* action : recent()->actions()) {
            if (action->text() == QStringLiteral("&Clear Missing")) {
                action->trigger();
                break;
            }
        }
        QCOMPARE(recentTexts().filter(QStringLiteral(".gltf")), QStringList{"&1 crane.gltf"});
    }

    void what_cannot_be_opened_is_not_remembered()
    {
        const QString broken = path(QStringLiteral("broken.gltf"));
        QVERIFY(ModelFiles::writeBroken(broken));
        open({broken, path(QStringLiteral("gone.gltf"))});
        QCOMPARE(recentTexts().first(), QStringLiteral("No files yet"));
    }

    void files_are_chosen()
    {
        QSignalSpy opened(&_window->files(), &FileActions::allOpened);
        _dialogs->expect(Dialogs::escape());
        key(Qt::Key_O, Qt::ControlModifier);
        QTRY_VERIFY(_dialogs->areDone());
        QCOMPARE(opened.count(), 0);
        _dialogs->expect(Dialogs::choose(_robotFile));
        key(Qt::Key_O, Qt::ControlModifier);
        QTRY_COMPARE_WITH_TIMEOUT(opened.count(), 1, 30000);
        QCOMPARE(listed(), QStringList{"robot"});
    }

    void a_scene_is_opened_only_if_what_is_there_may_go()
    {
        const QString scene = sceneWithCrane();
        open({_robotFile});
        _dialogs->expect(Dialogs::click(QStringLiteral("Cancel")));
        open({scene});
        QCOMPARE(listed(), QStringList{"robot"});
        QVERIFY(_dialogs->areDone());
        _dialogs->expect(Dialogs::click(QStringLiteral("Discard")));
        open({scene});
        QCOMPARE(listed(), QStringList{"crane"});
        QVERIFY(_dialogs->areDone());
    }
};

QTEST_MAIN(tst_open_files)
#include "tst_open_files.moc"
