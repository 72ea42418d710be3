// SPDX-License-Identifier: MIT
#include "tests/workbench/timeline/TimelineTest.h"

#include <QToolTip>

/// The edits of the menu, by mouse and keys.
class tst_timeline_edits : public TimelineTest
{
    Q_OBJECT

private:
    /// Each edit is one step with a name of its own, which is taken back and done again exactly.
    void is(const Exposures& after, const char* name)
    {
        QCOMPARE(history().count(), 1);
        QCOMPARE(history().text(0), QString::fromLatin1(name));
        QCOMPARE(robotShows(), after);
        history().undo();
        QCOMPARE(robotShows(), asOpened());
        history().redo();
        QCOMPARE(robotShows(), after);
    }
    bool isEnabled(const QString& text)
    {
        for (const QAction* action : view().actions()) {
            if (action->text().remove(u'&') == text)
                return action->isEnabled();
        }
        return false;
    }
    void closeMenu(QMenu* menu)
    {
        QTest::keyClick(menu, Qt::Key_Escape);
        QTRY_VERIFY(!openMenu());
    }

private slots:
    void initTestCase() { makeModels(); }
    void cleanupTestCase() { closeModels(); }
    void init() { openTimeline(); }
    void cleanup() { closeTimeline(); }

    void a_click_selects_an_exposure_and_beside_it_nothing()
    {
        QVERIFY(!view().cursor().selected());
        click(inRow(0, 5));
        QCOMPARE(*view().cursor().selected(), (Exposure{3, 8, _modelA}));
        click(inRow(0, 12));
        QCOMPARE(*view().cursor().selected(), (Exposure{11, 14, _modelB}));
        click(inRow(0, 9));
        QVERIFY(!view().cursor().selected());
        QCOMPARE(view().cursor().row(), 0);
        QCOMPARE(history().count(), 0);
    }

    void delete_clears_the_drawing()
    {
        click(inRow(0, 5));
        key(Qt::Key_Delete);
        is({{11, 14, _modelB}}, "Clear Drawing");
        key(Qt::Key_Delete);
        QCOMPARE(history().count(), 1);
    }

    void a_drawing_is_split_at_the_current_frame()
    {
        goTo(6);
        click(inRow(0, 4));
        key(Qt::Key_B, Qt::ControlModifier);
        is({{3, 5, _modelA}, {6, 8, _modelA}, {11, 14, _modelB}}, "Split Drawing");
    }

    void a_drawing_is_extended_to_the_end()
    {
        click(inRow(0, 5));
        key(Qt::Key_E, Qt::ControlModifier);
        is({{3, openEnd, _modelA}}, "Extend Drawing to End");
        QVERIFY(!isEnabled(QStringLiteral("Extend to End")));
    }

    void a_drawing_is_held_on_one_frame()
    {
        goTo(6);
        click(inRow(0, 5));
        key(Qt::Key_H, Qt::ControlModifier);
        is({{6, 6, _modelA}, {11, 14, _modelB}}, "Hold Drawing on One Frame");
    }

    void a_drawing_is_duplicated_after_itself()
    {
        click(inRow(0, 5));
        key(Qt::Key_D, Qt::ControlModifier);
        is({{3, 8, _modelA}, {9, 14, _modelA}}, "Duplicate Drawing");
        history().undo();
        click(inRow(0, 12));
        key(Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(*view().cursor().selected(), (Exposure{15, 18, _modelB}));
    }

    void what_is_impossible_cannot_be_chosen()
    {
        QVERIFY(!isEnabled(QStringLiteral("Clear Drawing")));
        click(inRow(0, 5));
        QVERIFY(isEnabled(QStringLiteral("Clear Drawing")));
        QVERIFY(!isEnabled(QStringLiteral("Split at Current Frame")));
        QVERIFY(!isEnabled(QStringLiteral("Hold on This Frame Only")));
        goTo(3);
        QVERIFY(!isEnabled(QStringLiteral("Split at Current Frame")));
        QVERIFY(isEnabled(QStringLiteral("Hold on This Frame Only")));
        goTo(8);
        QVERIFY(isEnabled(QStringLiteral("Split at Current Frame")));
        goTo(9);
        QVERIFY(!isEnabled(QStringLiteral("Split at Current Frame")));
        click(inRow(1, 7));
        QVERIFY(!isEnabled(QStringLiteral("Duplicate After")));
        QVERIFY(!isEnabled(QStringLiteral("Extend to End")));
    }

    void the_menu_of_a_drawing_has_its_edits()
    {
        goTo(6);
        QMenu* menu = menuAt(inRow(0, 5));
        QVERIFY(menu);
        QCOMPARE(texts(*menu),
                 (QStringList{"Clear Drawing", "Split at Current Frame", "Extend to End",
                              "Hold on This Frame Only", "Duplicate After"}));
        choose(*menu, QStringLiteral("Split at Current Frame"));
        is({{3, 5, _modelA}, {6, 8, _modelA}, {11, 14, _modelB}}, "Split Drawing");
    }

    void the_menu_of_empty_frames_offers_models_up_to_the_next_drawing()
    {
        const Model other = modelOf({"c"});
        view().models().setLibrary([&](const MO_ElementModule& element) {
            std::vector<TimelineModels::Offer> offers{{QStringLiteral("run & jump"), other},
                                                      {QStringLiteral("none"), nullptr}};
            if (&element == _robot)
                offers.push_back({QStringLiteral("stride"), _modelA});
            return offers;
        });
        QMenu* menu = menuAt(inRow(0, 9));
        QVERIFY(menu);
        // The models of the library first, and each once; the nameless one is called as its
        // element.
        QCOMPARE(menu->actions().size(), 3);
        QCOMPARE(menu->actions().at(0)->text(), QStringLiteral("Show \"run && jump\" Here"));
        QCOMPARE(menu->actions().at(1)->text(), QStringLiteral("Show \"stride\" Here"));
        QCOMPARE(menu->actions().at(2)->text(), QStringLiteral("Show \"robot\" Here"));
        QTest::mouseClick(menu, Qt::LeftButton, {},
                          menu->actionGeometry(menu->actions().at(0)).center());
        QVERIFY(view().cursor().selected());
        QCOMPARE(*view().cursor().selected(), (Exposure{9, 10, other}));
        is({{3, 8, _modelA}, {9, 10, other}, {11, 14, _modelB}}, "Show \"run & jump\"");
    }

    void behind_the_last_drawing_a_model_is_shown_without_end()
    {
        QMenu* menu = menuAt(inRow(0, 20));
        QVERIFY(menu);
        choose(*menu, QStringLiteral("Show \"walk\" Here"));
        is({{3, 8, _modelA}, {11, 14, _modelB}, {20, openEnd, _modelA}}, "Show \"walk\"");
    }

    void the_menu_opens_by_key()
    {
        click(inRow(0, 12));
        QContextMenuEvent onDrawing(QContextMenuEvent::Keyboard, {}, {});
        QApplication::sendEvent(&view(), &onDrawing);
        QVERIFY(openMenu());
        QVERIFY(texts(*openMenu()).contains(QStringLiteral("Clear Drawing")));
        closeMenu(openMenu());
        // Without a selected drawing it is about the current frame.
        goTo(9);
        click(inRow(0, 9));
        QContextMenuEvent onFrame(QContextMenuEvent::Keyboard, {}, {});
        QApplication::sendEvent(&view(), &onFrame);
        QVERIFY(openMenu());
        choose(*openMenu(), QStringLiteral("Show \"walk\" Here"));
        QCOMPARE(robotShows(), (Exposures{{3, 8, _modelA}, {9, 10, _modelA}, {11, 14, _modelB}}));
    }

    void the_menu_by_key_on_a_frame_that_is_taken_edits_what_is_there()
    {
        goTo(5);
        click(QPoint(10, inRow(0, 5).y()));
        QVERIFY(!view().cursor().selected());
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
        QApplication::sendEvent(&view(), &event);
        QVERIFY(openMenu());
        choose(*openMenu(), QStringLiteral("Clear Drawing"));
        QCOMPARE(robotShows(), (Exposures{{11, 14, _modelB}}));
    }

    void there_is_no_menu_beside_the_frames()
    {
        QVERIFY(!menuAt(onRuler(5)));
        QVERIFY(!menuAt(QPoint(inRow(0, 5).x(), canvas()->height() - 3)));
    }

    void an_element_that_is_deleted_under_the_menu_is_left_alone()
    {
        QMenu* menu = menuAt(inRow(0, 9));
        QVERIFY(menu);
        _session->currentScene()->rootGroup()->takeNode(_robot).reset();
        tell();
        choose(*menu, QStringLiteral("Show \"walk\" Here"));
        QCOMPARE(history().count(), 0);
        QCOMPARE(_car->exposures(), (Exposures{{5, openEnd, _modelB}}));
    }

    void a_locked_element_is_not_edited_and_says_so()
    {
        _robot->setEditable(false);
        tell();
        goTo(6);
        QMenu* menu = menuAt(inRow(0, 5));
        QVERIFY(menu);
        QCOMPARE(texts(*menu).first(), QStringLiteral("\"robot\" is locked"));
        for (const QAction* action : menu->actions())
            QVERIFY(action->isSeparator() || !action->isEnabled());
        closeMenu(menu);
        menu = menuAt(inRow(0, 9));
        QVERIFY(menu);
        for (const QAction* action : menu->actions())
            QVERIFY(action->isSeparator() || !action->isEnabled());
        closeMenu(menu);
        click(inRow(0, 5));
        key(Qt::Key_Right, Qt::AltModifier);
        key(Qt::Key_Delete);
        QCOMPARE(robotShows(), asOpened());
        QCOMPARE(history().count(), 0);
        QTRY_VERIFY(QToolTip::text().contains(QStringLiteral("locked")));
        QToolTip::hideText();
        _robot->setEditable(true);
        tell();
        key(Qt::Key_Delete);
        QCOMPARE(history().count(), 1);
    }
};

QTEST_MAIN(tst_timeline_edits)
#include "tst_timeline_edits.moc"
