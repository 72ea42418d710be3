// SPDX-License-Identifier: MIT

#include "graphview/GV_WorldViewQt.h"

#include "graphview/GV_GraphXNavigatorQt.h"
#include "host/preferences/PR_Preference.h"
#include "tests/graphview/WorldViewTest.h"

#include <QSignalBlocker>
#include <QWindow>
#include <limits>
#include <optional>

namespace {

const QString cornerKey = QStringLiteral("GV_WORLD_VIEW_STARTING_CORNER");
const QString stateKey = QStringLiteral("GV_WORLD_VIEW_STARTING_STATE");
const QString backgroundKey = QStringLiteral("ST_3DNODEVIEW_BACKGROUND_COLOR");

} // namespace

/// The frame of the overview in its corner.
class tst_GV_WorldViewQt : public WorldViewTest
{
    Q_OBJECT

private:
    AC_ActionInfo moveInfo(int corner)
    {
        AC_ActionInfo info("onActionMoveWorld", AC_ActionInfo::eValidate, corner);
        view().onActionMoveWorldValidate(corner, &info);
        return info;
    }
    AC_ActionInfo showInfo()
    {
        AC_ActionInfo info("onActionShowHideWorldView", AC_ActionInfo::eValidate);
        view().onActionShowHideWorldViewValidate(&info);
        return info;
    }
    static QColor middleOf(QWidget* widget)
    {
        return widget->grab().toImage().pixelColor(widget->rect().center());
    }

private slots:
    void cleanup()
    {
        for (const QString& key : {cornerKey, stateKey, backgroundKey})
            PR_Preference::instance()->reset(key);
        StageTest::cleanup();
    }

    void it_opens_small_in_the_bottom_right_corner()
    {
        QVERIFY(show());
        QCOMPARE(frame().size(), QSize(100, 100));
        QCOMPARE(frame().parentWidget(), static_cast<QWidget*>(&view()));
        QVERIFY(frame().isVisible());
        QCOMPARE(frame().corner(), 3);
        QCOMPARE(frame().pos(), QPoint(397, 297));
        QVERIFY(standsIn(view(), 3));
    }

    void grips_surround_the_navigator()
    {
        QVERIFY(show());
        const QRect inner = view().navigator()->geometry();
        QCOMPARE(view().navigator()->parentWidget(), static_cast<QWidget*>(&frame()));
        QCOMPARE(inner, frame().rect().adjusted(5, 5, -5, -5));
        const auto at = [&](Grip which) { return frame().grip(which)->geometry(); };
        QCOMPARE(at(Grip::eTop), QRect(5, 0, 90, 5));
        QCOMPARE(at(Grip::eBottom), QRect(5, 95, 90, 5));
        QCOMPARE(at(Grip::eLeft), QRect(0, 5, 5, 90));
        QCOMPARE(at(Grip::eRight), QRect(95, 5, 5, 90));
        QCOMPARE(at(Grip::eTopLeft), QRect(0, 0, 5, 5));
        QCOMPARE(at(Grip::eTopRight), QRect(95, 0, 5, 5));
        QCOMPARE(at(Grip::eBottomLeft), QRect(0, 95, 5, 5));
        QCOMPARE(at(Grip::eBottomRight), QRect(95, 95, 5, 5));
    }

    void each_corner_has_its_place_and_its_grips()
    {
        QVERIFY(show());
        for (const int corner : {0, 1, 2, 3, 0, 3, 1, 2}) {
            view().onActionMoveWorld(corner);
            QCOMPARE(frame().corner(), corner);
            QVERIFY2(standsIn(view(), corner), qPrintable(QString::number(corner)));
            for (int other = 0; other < 4; ++other) {
                QVERIFY(moveInfo(other).isEnabled());
                QCOMPARE(moveInfo(other).isChecked(), std::optional(other == corner));
            }
        }
    }

    void numbers_past_the_last_corner_are_ignored()
    {
        QVERIFY(show());
        view().onActionMoveWorld(1);
        for (const int corner : {4, 5, 1000, std::numeric_limits<int>::max()}) {
            view().onActionMoveWorld(corner);
            QCOMPARE(frame().corner(), 1);
            QVERIFY(standsIn(view(), 1));
        }
    }

    void negative_numbers_mean_the_bottom_right_and_are_kept()
    {
        QVERIFY(show());
        view().onActionMoveWorld(0);
        view().onActionMoveWorld(-1);
        QCOMPARE(frame().corner(), -1);
        QVERIFY(standsIn(view(), 3));
        QCOMPARE(moveInfo(3).isChecked(), std::optional(false));
        QCOMPARE(moveInfo(-1).isChecked(), std::optional(true));
        view().resize(350, 450);
        QVERIFY(standsIn(view(), 3));
    }

    void hidden_it_does_not_move()
    {
        QVERIFY(show());
        view().onActionMoveWorld(2);
        view().onActionShowHideWorldView();
        view().onActionMoveWorld(0);
        QCOMPARE(frame().corner(), 2);
        QVERIFY(!moveInfo(0).isEnabled());
        QCOMPARE(moveInfo(2).isChecked(), std::optional(true));
        view().onActionShowHideWorldView();
        QVERIFY(standsIn(view(), 2));
    }

    void it_is_hidden_and_shown_again()
    {
        QVERIFY(show());
        QVERIFY(showInfo().isEnabled());
        QCOMPARE(showInfo().text(), QStringLiteral("Hide Navigator"));
        view().onActionShowHideWorldView();
        QVERIFY(!frame().isVisible());
        QVERIFY(showInfo().isEnabled());
        QCOMPARE(showInfo().text(), QStringLiteral("Show Navigator"));
        view().onActionShowHideWorldView();
        QVERIFY(frame().isVisible());
        QCOMPARE(showInfo().text(), QStringLiteral("Hide Navigator"));
    }

    void it_keeps_its_distance_when_the_view_is_resized()
    {
        QVERIFY(show());
        for (int corner = 0; corner < 4; ++corner) {
            view().onActionMoveWorld(corner);
            for (const QSize size :
                 {QSize(300, 700), QSize(140, 150), QSize(50, 40), QSize(500, 400)}) {
                view().resize(size);
                QCOMPARE(frame().pos(), placeOf(view(), corner));
                QCOMPARE(frame().size(), QSize(100, 100));
            }
            view().onActionShowHideWorldView();
            view().resize(420, 330);
            view().onActionShowHideWorldView();
            QVERIFY(standsIn(view(), corner));
        }
    }

    void the_corner_to_open_in_is_preferred()
    {
        for (const int corner : {0, 1, 2, 3}) {
            PR_Preference::instance()->setEnum(cornerKey, corner);
            const std::unique_ptr<GV_GraphXViewQt> opened = _stage->newView();
            opened->resize(400, 350);
            opened->show();
            QVERIFY(QTest::qWaitForWindowExposed(opened.get()));
            QCOMPARE(opened->worldView()->corner(), corner);
            QVERIFY(standsIn(*opened, corner));
        }
    }

    void a_preferred_corner_that_is_none_means_the_bottom_right()
    {
        for (const int corner : {4, 77, -1, std::numeric_limits<int>::min()}) {
            PR_Preference::instance()->setEnum(cornerKey, corner);
            const std::unique_ptr<GV_GraphXViewQt> opened = _stage->newView();
            opened->show();
            QVERIFY(QTest::qWaitForWindowExposed(opened.get()));
            QVERIFY(standsIn(*opened, 3));
        }
        PR_Preference::instance()->setFontValue(cornerKey, QStringLiteral("somewhere"));
        const std::unique_ptr<GV_GraphXViewQt> opened = _stage->newView();
        QCOMPARE(opened->worldView()->corner(), 3);
    }

    void it_can_open_hidden()
    {
        PR_Preference::instance()->setBoolValue(stateKey, false);
        const std::unique_ptr<GV_GraphXViewQt> closed = _stage->newView();
        closed->show();
        QVERIFY(QTest::qWaitForWindowExposed(closed.get()));
        QVERIFY(!closed->worldView()->isVisible());
        closed->onActionShowHideWorldView();
        QVERIFY(closed->worldView()->isVisible());
        QVERIFY(standsIn(*closed, 3));
        PR_Preference::instance()->setFontValue(stateKey, QStringLiteral("perhaps"));
        const std::unique_ptr<GV_GraphXViewQt> opened = _stage->newView();
        opened->show();
        QVERIFY(opened->worldView()->isVisible());
    }

    void the_background_is_taken_when_it_changed_or_is_forced()
    {
        QVERIFY(show());
        QVERIFY(!frame().refreshBackground(false));
        QVERIFY(frame().refreshBackground(true));
        {
            const QSignalBlocker blocker(PR_Preference::instance());
            PR_Preference::instance()->setRgbaValue(backgroundKey, 0xff204060);
        }
        QCOMPARE(view().navigator()->backgroundBrush(), QBrush(QColor(120, 120, 120)));
        QVERIFY(frame().refreshBackground(false));
        QVERIFY(!frame().refreshBackground(false));
        QCOMPARE(view().navigator()->backgroundBrush(), QBrush(QColor(0x20, 0x40, 0x60)));
    }

    void every_frame_shows_the_preferred_background()
    {
        const std::unique_ptr<GV_GraphXViewQt> other = _stage->newView();
        QVERIFY(show());
        for (const QColor color : {QColor(0x20, 0x40, 0x60), QColor(Qt::white), QColor(Qt::red)}) {
            PR_Preference::instance()->setRgbaValue(backgroundKey, color.rgba());
            for (const GV_GraphXViewQt* each : {&view(), other.get()}) {
                QCOMPARE(each->navigator()->backgroundBrush(), QBrush(color));
                for (int i = 0; i < 8; ++i)
                    QCOMPARE(middleOf(each->worldView()->grip(Grip(i))), color);
            }
        }
        PR_Preference::instance()->reset(backgroundKey);
        QCOMPARE(middleOf(frame().grip(Grip::eTop)), QColor(120, 120, 120));
        QCOMPARE(view().navigator()->backgroundBrush(), QBrush(QColor(120, 120, 120)));
    }

    void its_outer_edge_stands_out_from_the_canvas()
    {
        QVERIFY(show());
        const QImage picture = frame().grab().toImage();
        const QColor background(120, 120, 120);
        for (int i = 0; i < 100; ++i) {
            for (const QPoint at : {QPoint(i, 0), QPoint(i, 99), QPoint(0, i), QPoint(99, i)})
                QVERIFY(picture.pixelColor(at) != background);
        }
        QCOMPARE(picture.pixelColor(50, 2), background);
    }

    void presses_on_it_do_not_reach_the_canvas()
    {
        MO_ElementModule& element = addSelected(robotModel());
        _stage->subSelect(element, {QStringLiteral("hand")});
        QVERIFY(show(QSize(120, 120)));
        const QStringList selected = _stage->selectedNames();
        QTest::mouseClick(view().windowHandle(), Qt::LeftButton, {}, QPoint(60, 60));
        QCOMPARE(_stage->selectedNames(), selected);
        QCOMPARE(view().mouseAction(), GV_GraphXViewQt::eMouseNone);
    }
};

QTEST_MAIN(tst_GV_WorldViewQt)
#include "tst_GV_WorldViewQt.moc"
