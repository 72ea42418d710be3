// SPDX-License-Identifier: MIT
#include "workbench/window/ActionPalette.h"

#include "Dialogs.h"
#include "ModelFiles.h"
#include "tests/workbench/WindowTest.h"
#include "workbench/docks/ViewDock.h"

#include <QLineEdit>
#include <QTemporaryDir>
#include <QTreeView>

/// Actions are found by words and performed, as if chosen in their menus.
class tst_action_palette : public WindowTest
{
    Q_OBJECT

private:
    ActionPalette& palette() { return _window->palette(); }
    const QAbstractItemModel& found() { return *palette().list()->model(); }

    void openPalette()
    {
        key(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
        QTRY_VERIFY(palette().isVisible());
        QVERIFY(QTest::qWaitForWindowActive(&palette()));
        QTRY_VERIFY(palette().field()->hasFocus());
    }
    void type(const QString& text) { typeInto(palette().windowHandle(), text); }
    void press(Qt::Key key) { QTest::keyClick(palette().windowHandle(), key); }
    QStringList names()
    {
        QStringList all;
        for (int row = 0; row < found().rowCount(); ++row)
            all << found().index(row, 0).data().toString();
        return all;
    }
    QModelIndex rowOf(const QString& name)
    {
        return found().index(static_cast<int>(names().indexOf(name)), 0);
    }
    QString current()
    {
        return palette().list()->currentIndex().siblingAtColumn(0).data().toString();
    }
    static double zoomOf(const GV_GraphXViewQt& view) { return view.transform().m11(); }

private slots:
    void edits_of_the_time_line_are_found_though_no_menu_has_them()
    {
        openPalette();
        type(QStringLiteral("split"));
        QCOMPARE(names().size(), 1);
        QVERIFY2(names().first().startsWith(QStringLiteral("Timeline")),
                 qPrintable(names().first()));
        palette().field()->clear();
        // What is in a menu is listed once.
        QCOMPARE(names().filter(QStringLiteral("Next Frame")).size(), 1);
    }

    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init() { openWindow(); }
    void cleanup() { closeWindow(); }

    void each_of_its_keys_opens_it()
    {
        openPalette();
        press(Qt::Key_Escape);
        QTRY_VERIFY(!palette().isVisible());
        key(Qt::Key_F1);
        QTRY_VERIFY(palette().isVisible());
    }

    void words_are_found_in_any_order_and_case()
    {
        openPalette();
        QVERIFY(found().rowCount() > 40);
        type(QStringLiteral("PARENT sel"));
        QCOMPARE(names(), QStringList{QStringLiteral("Subnodes \u203a Select Parent")});
        palette().field()->clear();
        QVERIFY(found().rowCount() > 40);
        type(QStringLiteral("no such thing"));
        QCOMPARE(found().rowCount(), 0);
        press(Qt::Key_Return);
        QVERIFY(palette().isVisible());
    }

    void characters_with_a_meaning_in_patterns_are_taken_literally()
    {
        openPalette();
        type(QStringLiteral("("));
        QCOMPARE(found().rowCount(), 0);
        palette().field()->clear();
        type(QStringLiteral(".*"));
        QCOMPARE(found().rowCount(), 0);
    }

    void entries_of_menus_in_menus_are_found()
    {
        openPalette();
        type(QStringLiteral("corner right bottom"));
        QCOMPARE(names(),
                 QStringList{QStringLiteral("View \u203a Navigator Corner \u203a Bottom Right")});
    }

    void keys_stand_beside_the_names()
    {
        openPalette();
        const QModelIndex redo = rowOf(QStringLiteral("Edit \u203a Redo"));
        QVERIFY(redo.isValid());
        const QString keys = redo.siblingAtColumn(1).data().toString();
        QVERIFY2(keys.contains(QStringLiteral("Ctrl+Y")), qPrintable(keys));
        QCOMPARE(rowOf(QStringLiteral("Subnodes \u203a Isolate")).siblingAtColumn(1).data(), "I");
    }

    void what_cannot_be_done_is_grey_and_passed_over()
    {
        openPalette();
        type(QStringLiteral("undo"));
        const QModelIndex undo = rowOf(QStringLiteral("Edit \u203a Undo"));
        QVERIFY(undo.isValid());
        QVERIFY(!undo.flags().testFlag(Qt::ItemIsEnabled));
        QVERIFY(current().isEmpty());
        press(Qt::Key_Return);
        QVERIFY(palette().isVisible());
        const QRect area = palette().list()->visualRect(undo);
        QTest::mouseClick(palette().list()->viewport(), Qt::LeftButton, {}, area.center());
        QTest::mouseDClick(palette().list()->viewport(), Qt::LeftButton, {}, area.center());
        QVERIFY(palette().isVisible());
    }

    void an_action_is_found_and_performed_by_keys_alone()
    {
        graph().setFocus();
        const double zoom = zoomOf(graph());
        openPalette();
        type(QStringLiteral("zoom"));
        QCOMPARE(names(), (QStringList{QStringLiteral("View \u203a Zoom In"),
                                       QStringLiteral("View \u203a Zoom Out")}));
        QCOMPARE(current(), QStringLiteral("View \u203a Zoom In"));
        press(Qt::Key_Down);
        QCOMPARE(current(), QStringLiteral("View \u203a Zoom Out"));
        press(Qt::Key_Down);
        QCOMPARE(current(), QStringLiteral("View \u203a Zoom Out"));
        press(Qt::Key_Up);
        QCOMPARE(current(), QStringLiteral("View \u203a Zoom In"));
        press(Qt::Key_Return);
        QTRY_VERIFY(zoomOf(graph()) > zoom);
        QVERIFY(!palette().isVisible());
    }

    void a_double_click_performs()
    {
        const double zoom = zoomOf(graph());
        openPalette();
        const QModelIndex out = rowOf(QStringLiteral("View \u203a Zoom Out"));
        palette().list()->scrollTo(out);
        const QPoint at = palette().list()->visualRect(out).center();
        QTest::mouseClick(palette().list()->viewport(), Qt::LeftButton, {}, at);
        QVERIFY(palette().isVisible());
        QTest::mouseDClick(palette().list()->viewport(), Qt::LeftButton, {}, at);
        QTRY_VERIFY(zoomOf(graph()) < zoom);
        QVERIFY(!palette().isVisible());
    }

    void leaving_it_performs_nothing()
    {
        const double zoom = zoomOf(graph());
        openPalette();
        type(QStringLiteral("zoom in"));
        press(Qt::Key_Escape);
        QTRY_VERIFY(!palette().isVisible());
        QCoreApplication::processEvents();
        QCOMPARE(zoomOf(graph()), zoom);
        openPalette();
        QVERIFY(palette().field()->text().isEmpty());
        QVERIFY(found().rowCount() > 40);
    }

    void entries_are_those_of_the_moment()
    {
        const QTemporaryDir folder;
        const QString robot = folder.filePath(QStringLiteral("mine & yours.gltf"));
        QVERIFY(ModelFiles::writeRobot(robot));
        openPalette();
        QVERIFY(names().filter(QStringLiteral("mine & yours.gltf")).isEmpty());
        press(Qt::Key_Escape);
        QTRY_VERIFY(!palette().isVisible());
        open({robot});
        subSelect(QStringLiteral("Torso"));
        context().actionManager()->validateActions();
        entry("Subnodes", "Hide")->trigger();
        openPalette();
        QCOMPARE(names().filter(QStringLiteral("mine & yours.gltf")).size(), 1);
        QCOMPARE(names().filter(QStringLiteral("Undo Hide")).size(), 1);
        // What is listed may be gone by the time it is performed.
        type(QStringLiteral("mine yours"));
        QVERIFY(current().contains(QStringLiteral("mine & yours.gltf")));
        emit entry("File", "Open Recent")->menu()->aboutToShow();
        press(Qt::Key_Return);
        QVERIFY(palette().isVisible());
    }

    void a_recent_file_is_opened_again()
    {
        const QTemporaryDir folder;
        const QString robot = folder.filePath(QStringLiteral("twin.gltf"));
        QVERIFY(ModelFiles::writeRobot(robot));
        open({robot});
        QCOMPARE(listed().filter(QStringLiteral("twin")).size(), 1);
        QSignalSpy opened(&_window->files(), &FileActions::allOpened);
        openPalette();
        type(QStringLiteral("recent twin"));
        QCOMPARE(found().rowCount(), 1);
        press(Qt::Key_Return);
        QTRY_COMPARE_WITH_TIMEOUT(opened.count(), 1, 30000);
        QCOMPARE(listed().filter(QStringLiteral("twin")).size(), 2);
    }

    void actions_go_to_the_view_that_had_the_focus()
    {
        auto& other = *dynamic_cast<GV_GraphXViewQt*>(_window->openGraphView()->view()->widget());
        for (GV_GraphXViewQt* view : {&graph(), &other}) {
            view->setFocus();
            const double zoom = zoomOf(*view);
            const double unchanged = zoomOf(view == &other ? graph() : other);
            openPalette();
            type(QStringLiteral("zoom in"));
            press(Qt::Key_Return);
            QTRY_VERIFY(zoomOf(*view) > zoom);
            QCOMPARE(zoomOf(view == &other ? graph() : other), unchanged);
            _window->activateWindow();
            QTRY_VERIFY(view->hasFocus());
        }
    }

    void a_dialog_that_is_performed_stands_above_the_window()
    {
        Dialogs dialogs;
        dialogs.expect(Dialogs::escape());
        openPalette();
        type(QStringLiteral("open models"));
        palette().field()->setText(QStringLiteral("file open"));
        QVERIFY(current().startsWith(QStringLiteral("File \u203a Open")));
        press(Qt::Key_Return);
        QTRY_VERIFY(dialogs.areDone());
        QCOMPARE(dialogs.texts(), QStringList{QStringLiteral("Open Models and Scenes")});
    }
};

QTEST_MAIN(tst_action_palette)
#include "tst_action_palette.moc"
