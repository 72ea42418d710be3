// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphXViewCtrl.h"
#include "tests/graphview/CanvasTest.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMenu>
#include <QToolTip>

namespace {

using namespace ModelBuilder;

constexpr QPoint empty(450, 300);
constexpr QPoint header(100, 14);

} // namespace

/// What the panel puts up over the canvas: its popup menu and tool tips.
class tst_GV_GraphXViewQtMenu : public CanvasTest
{
    Q_OBJECT

private:
    using View = GV_GraphXViewQt;

    bool defineMenu()
    {
        return _stage->context().actionManager()->loadDefinitions(
            "<definitions>"
            "<action id='ALL' responder='GV_GraphView' slot='selectAll' text='Select All'/>"
            "<action id='SHOW' responder='GV_GraphView' slot='onActionShowNodes' text='Show'/>"
            "<menu id='3D_NODES_POPUP_MENU' text='Nodes'>"
            "<item action='ALL'/><separator/><item action='SHOW'/></menu>"
            "</definitions>");
    }
    QMenu* popup() { return view().menu(TULayoutView::ePopupMenu); }
    bool isPopupAt(const QPoint& position)
    {
        return popup()->isVisible() && QApplication::activePopupWidget() == popup() &&
               popup()->pos() == view().viewport()->mapToGlobal(position);
    }
    bool sendContextMenu(QContextMenuEvent::Reason reason, const QPoint& position)
    {
        QContextMenuEvent event(reason, position, view().viewport()->mapToGlobal(position));
        QCoreApplication::sendEvent(view().viewport(), &event);
        return event.isAccepted();
    }
    /// What the tool tip says with the mouse at rest there; empty when there is none.
    QString tipAt(const QPoint& position)
    {
        QHelpEvent event(QEvent::ToolTip, position, view().viewport()->mapToGlobal(position));
        QCoreApplication::sendEvent(view().viewport(), &event);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    }

private slots:
    void init()
    {
        // The platform cannot bring popups to the front, which does no harm here.
        QTest::failOnWarning(
            QRegularExpression(QStringLiteral("^(?!This plugin does not support)")));
        _stage = std::make_unique<GraphStage>();
        _stage->addElement(QStringLiteral("robot"));
        QVERIFY(show());
    }
    void cleanup()
    {
        if (QWidget* open = QApplication::activePopupWidget())
            open->close();
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
        StageTest::cleanup();
    }

    void a_right_press_opens_the_menu_at_the_pointer()
    {
        QVERIFY(defineMenu());
        for (const QPoint& position : {empty, header, QPoint(3, 3)}) {
            press(position, Qt::RightButton);
            QVERIFY(isPopupAt(position));
            popup()->close();
            release(position, Qt::RightButton);
        }
        QStringList texts;
        for (const QAction* action : popup()->actions())
            texts.append(action->text());
        QCOMPARE(texts,
                 QStringList({QStringLiteral("Select All"), QString(), QStringLiteral("Show")}));
    }

    void the_menu_shows_what_can_be_done_now()
    {
        QVERIFY(defineMenu());
        MO_ElementModule& element = addSelected(robotModel());
        _stage->subSelect(element, {QStringLiteral("leg")});
        press(empty, Qt::RightButton);
        QVERIFY(!popup()->actions().last()->isEnabled());
        popup()->close();
        _stage->setVisible(element, {QStringLiteral("leg")}, false);
        press(empty, Qt::RightButton);
        QVERIFY(popup()->actions().last()->isEnabled());
        popup()->actions().last()->trigger();
        QVERIFY(!controller()->hasSelectedSubNodeWithState(GV_GraphXViewCtrl::eHidden));
    }

    void a_right_press_starts_no_gesture()
    {
        QVERIFY(defineMenu());
        press(header, Qt::RightButton);
        QCOMPARE(view().mouseAction(), View::eMouseNone);
        moveTo(empty);
        QVERIFY(!marqueeItem(view())->isVisible());
        QVERIFY(_stage->selectedNames().isEmpty());
        popup()->close();
        release(empty, Qt::RightButton);
        press(empty);
        QCOMPARE(view().mouseAction(), View::eMouseMarquee);
    }

    void a_right_press_holds_no_button()
    {
        QVERIFY(definePanKey());
        press(empty, Qt::RightButton);
        // Were it held, the left button would not be the only one.
        holdPanKey();
        press(empty);
        moveTo(empty + QPoint(10, 20));
        QCOMPARE(pan(), (Math::Point2d{12, 22}));
        letPanKeyGo();
    }

    void a_right_press_leaves_a_marquee_alone()
    {
        press(empty);
        press(empty, Qt::RightButton);
        QCOMPARE(view().mouseAction(), View::eMouseMarquee);
        moveTo(header);
        QVERIFY(marqueeItem(view())->isVisible());
        QCOMPARE(marqueeItem(view())->rect(), QRectF(98, 12, 350, 286));
    }

    void without_a_definition_no_menu_opens()
    {
        press(empty, Qt::RightButton);
        QVERIFY(!popup());
        QVERIFY(!QApplication::activePopupWidget());
        QCOMPARE(view().mouseAction(), View::eMouseNone);
        // A definition may come later.
        QVERIFY(defineMenu());
        press(empty, Qt::RightButton);
        QVERIFY(isPopupAt(empty));
    }

    void the_menu_key_opens_the_menu_and_the_mouse_does_not_do_so_twice()
    {
        QVERIFY(defineMenu());
        QVERIFY(sendContextMenu(QContextMenuEvent::Mouse, empty));
        QVERIFY(!popup()->isVisible());
        QVERIFY(sendContextMenu(QContextMenuEvent::Keyboard, empty));
        QVERIFY(isPopupAt(empty));
    }

    void a_tip_tells_the_whole_name()
    {
        const QString name = QStringLiteral("a_part_whose_name_is_much_too_long_for_its_box");
        addSelected(model(shapedKey(name.toStdString())));
        // The model is the second one; its only node stands in the first row and column.
        const QPoint node(2 + 160 + 24 + 60, 2 + 34 + 12);
        QCOMPARE(tipAt(node), name);
        QCOMPARE(tipAt(header), QStringLiteral("Layer robot"));
        QCOMPARE(tipAt(header + QPoint(160, 0)), QStringLiteral("Layer robot"));
    }

    void there_is_no_tip_on_nothing()
    {
        QCOMPARE(tipAt(header), QStringLiteral("Layer robot"));
        QCOMPARE(controller()->fullNodeNameAtModelPoint({448, 298}), QString());
        QHelpEvent event(QEvent::ToolTip, empty, view().viewport()->mapToGlobal(empty));
        QCoreApplication::sendEvent(view().viewport(), &event);
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void tips_follow_zoom_and_pan()
    {
        QVERIFY(definePanKey());
        view().handleNavigatorPan({200, 100});
        QCOMPARE(tipAt(header + QPoint(200, 100)), QStringLiteral("Layer robot"));
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
        QCOMPARE(tipAt(header), QString());
        view().onActionResetView();
        dragZoom(QPoint(2, 2), 64);
        QCOMPARE(factor(), 4.0);
        // At this zoom the box reaches down to 98.
        QCOMPARE(tipAt(QPoint(400, 90)), QStringLiteral("Layer robot"));
    }
};

QTEST_MAIN(tst_GV_GraphXViewQtMenu)
#include "tst_GV_GraphXViewQtMenu.moc"
