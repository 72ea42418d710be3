// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphXViewQt.h"

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXMainItem.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "host/actions/AC_Manager.h"
#include "host/preferences/PR_Preference.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SL_Selection.h"
#include "tests/graphview/GraphStage.h"
#include "tests/graphview/PaintedCalls.h"
#include "tests/graphview/RepaintCounter.h"
#include "tests/graphview/ShownModels.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

namespace {

const QString backgroundKey = QStringLiteral("ST_3DNODEVIEW_BACKGROUND_COLOR");
const QString boxKey = QStringLiteral("ST_3DNODEVIEW_NODE_COLOR");
const QColor grey(120, 120, 120);

} // namespace

/// The panel as a widget, and as what the host knows it by.
class tst_GV_GraphXViewQt : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<GraphStage> _stage;

    GV_GraphXViewQt& view() { return _stage->view(); }
    bool show()
    {
        view().move(100, 100);
        view().resize(500, 300);
        view().show();
        return QTest::qWaitForWindowExposed(&view());
    }
    /// The colour of the viewport at a point.
    QColor pixel(int x, int y) { return view().viewport()->grab().toImage().pixelColor(x, y); }
    static QStringList headersOf(GV_GraphXViewQt& view)
    {
        std::vector<const GV_UiNode*> nodes;
        view.controller()->uiInfo()->headerNodes(nodes);
        QStringList names;
        for (const GV_UiNode* node : nodes)
            names.append(node->name());
        return names;
    }

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
        _stage = std::make_unique<GraphStage>();
    }
    void cleanup()
    {
        for (const QString& key : {backgroundKey, boxKey})
            PR_Preference::instance()->reset(key);
        _stage.reset();
    }

    void the_host_knows_it_by_name_and_identity()
    {
        QCOMPARE(view().viewName(), QStringLiteral("graphView"));
        QCOMPARE(view().responderIdentity(), QStringLiteral("GV_GraphView"));
        QCOMPARE(view().widget(), static_cast<QWidget*>(&view()));
        QVERIFY(!view().hasMenu());
        const std::vector<AC_Responder*> responders =
            _stage->context().actionManager()->responders(QStringLiteral("GV_GraphView"));
        QCOMPARE(responders, std::vector<AC_Responder*>{&view()});
        for (const char* slot :
             {"nodesChanged(TUNodeSet)", "nodesNameChanged(TUNodeSet)", "networkChanged()",
              "onSelectionChanged()", "onSubSelectionChanged()", "onCurrentFrameChanged()",
              "onCurrentSceneChanged(TUScene*)", "onPreferenceChanged()"})
            QVERIFY2(view().metaObject()->indexOfSlot(slot) >= 0, slot);
    }

    void the_canvas_leaves_scrolling_to_the_panel()
    {
        QCOMPARE(view().horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(view().verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(view().alignment(), Qt::Alignment());
        QCOMPARE(view().transformationAnchor(), QGraphicsView::NoAnchor);
        QCOMPARE(view().cacheMode(), QGraphicsView::CacheBackground);
        QCOMPARE(view().sceneRect(), QRectF(-1e9, -1e9, 2e9, 2e9));
        QCOMPARE(view().contentsMargins(), QMargins());
        QVERIFY(view().scene()->items().contains(view().mainItem()));
        QCOMPARE(view().mainItem()->acceptedMouseButtons(), Qt::NoButton);
    }

    void at_rest_the_origin_stands_two_pixels_inside_the_corner()
    {
        QVERIFY(show());
        QCOMPARE(view().modelToScreen({0, 0}), (Math::Point2d{2, 2}));
        QCOMPARE(view().screenToModel({2, 2}), (Math::Point2d{0, 0}));
        QCOMPARE(view().transform(), QTransform(1, 0, 0, 1, 2, 2));
        QRandomGenerator random(5);
        for (int i = 0; i < 100; ++i) {
            const QPoint pixel(random.bounded(500), random.bounded(300));
            const Math::Point2d model =
                view().screenToModel({double(pixel.x()), double(pixel.y())});
            QCOMPARE(QPointF(model.x, model.y), view().mapToScene(pixel));
            const Math::Point2d screen = view().modelToScreen(model);
            QCOMPARE(QPointF(screen.x, screen.y), QPointF(pixel));
        }
    }

    void neither_wheel_nor_keys_move_the_scroll_bars()
    {
        _stage->select({&_stage->addElement(QStringLiteral("robot"))});
        QVERIFY(show());
        view().setFocus();
        for (const QPoint delta :
             {QPoint(0, 120), QPoint(0, -360), QPoint(240, 0), QPoint(-120, 40)}) {
            QWheelEvent event(QPointF(50, 50), view().mapToGlobal(QPointF(50, 50)), QPoint(), delta,
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(view().viewport(), &event);
        }
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Up, Qt::Key_Left,
                                  Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Home, Qt::Key_End})
            QTest::keyClick(&view(), key);
        QCOMPARE(view().horizontalScrollBar()->value(), 0);
        QCOMPARE(view().verticalScrollBar()->value(), 0);
    }

    void the_scroll_bars_stay_at_rest_when_the_panel_is_resized()
    {
        QVERIFY(show());
        for (const QSize size : {QSize(1, 1), QSize(700, 40), QSize(40, 700), QSize(500, 300)}) {
            view().resize(size);
            QCoreApplication::processEvents();
            QCOMPARE(view().horizontalScrollBar()->value(), 0);
            QCOMPARE(view().verticalScrollBar()->value(), 0);
            QCOMPARE(view().mapToScene(QPoint(2, 2)), QPointF(0, 0));
        }
    }

    void the_background_has_the_preferred_colour()
    {
        QVERIFY(show());
        QCOMPARE(view().backgroundBrush(), QBrush(grey));
        QCOMPARE(pixel(400, 200), grey);
        PR_Preference::instance()->setRgbaValue(backgroundKey, 0xff204060);
        QCOMPARE(view().backgroundBrush(), QBrush(QColor(0x20, 0x40, 0x60)));
        QCOMPARE(pixel(400, 200), QColor(0x20, 0x40, 0x60));
        PR_Preference::instance()->reset(backgroundKey);
        QCOMPARE(pixel(400, 200), grey);
    }

    void a_changed_box_colour_shows_with_the_next_repaint_and_asks_for_none()
    {
        _stage->addElement(QStringLiteral("robot"));
        QVERIFY(show());
        RepaintCounter counter(view());
        QCOMPARE(counter.countDuring(
                     [] { PR_Preference::instance()->setRgbaValue(boxKey, 0xff00ff00); }),
                 0);
        QCOMPARE(pixel(130, 12), QColor(0, 255, 0));
        QCOMPARE(counter.countDuring([] { PR_Preference::instance()->reset(boxKey); }), 0);
        QCOMPARE(pixel(130, 12), QColor(69, 90, 163));
    }

    void preferences_of_others_do_not_repaint()
    {
        _stage->addElement(QStringLiteral("robot"));
        QVERIFY(show());
        const QString key = QStringLiteral("SOMETHING_ELSE");
        QCOMPARE(RepaintCounter(view()).countDuring([&] {
            PR_Preference::instance()->setIntValue(key, 3);
            PR_Preference::instance()->reset(key);
        }),
                 0);
    }

    void a_refresh_repaints()
    {
        _stage->addElement(QStringLiteral("robot"));
        QVERIFY(show());
        RepaintCounter counter(view());
        QVERIFY(counter.countDuring([&] { view().refreshView(); }) > 0);
        QVERIFY(counter.countDuring([&] { view().prepareGeometryChange(); }) > 0);
        QVERIFY(counter.countDuring([&] { view().prepareGeometryChange(QRectF(0, 0, 9, 9)); }) > 0);
        QCOMPARE(counter.countDuring([] {}), 0);
    }

    void an_element_that_is_gone_is_painted_with_its_last_name()
    {
        MO_ElementModule& element = _stage->addElement(QStringLiteral("robot"));
        _stage->view();
        _stage->select({&element});
        _stage->setVisible(element, {QStringLiteral("robot"), QStringLiteral("body")}, false);
        _stage->subSelect(element, {QStringLiteral("leg")});
        QVERIFY(show());
        element.parentGroup()->takeNode(&element).reset();
        // Its settings are gone with it, so nothing of it is hidden any more.
        GV_GraphXMainItem item(view().controller(), true);
        using namespace PaintedCalls;
        QCOMPARE(painted(item).mid(13, 4),
                 header(0, "robot", selectedBox) + box(24, 34, "body", normalBox));
        QCOMPARE(pixel(130, 12), QColor(selectedBox));
        _stage->notify();
        QCOMPARE(pixel(130, 12), grey);
    }

    void a_clone_is_a_second_view_on_the_same_session()
    {
        MO_ElementModule& element = _stage->addElement(QStringLiteral("robot"));
        _stage->select({&element});
        QWidget parent;
        TULayoutView* layoutView = view().clone(&parent);
        auto* clone = dynamic_cast<GV_GraphXViewQt*>(layoutView);
        QVERIFY(clone);
        QCOMPARE(layoutView->widget()->parentWidget(), &parent);
        QCOMPARE(clone->actionManager(), _stage->context().actionManager());
        QVERIFY(clone->controller() != view().controller());
        QVERIFY(clone->controller()->uiInfo() != view().controller()->uiInfo());
        QCOMPARE(clone->controller()->uiInfo()->visibleGraphModelNode(), &element);

        _stage->node(QStringLiteral("body"))->setCollapsed(true);
        QVERIFY(!(*clone->controller()->uiInfo()->rootUiNode()->childrenBegin())->isCollapsed());
        _stage->addElement(QStringLiteral("second"));
        const QStringList both{QStringLiteral("robot"), QStringLiteral("second")};
        QCOMPARE(headersOf(view()), both);
        QCOMPARE(headersOf(*clone), both);
        _stage->subSelect(element, {QStringLiteral("leg")});
        for (GV_GraphXViewQt* each : {&view(), clone})
            QCOMPARE(each->controller()->uiInfo()->selectedNodes().size(), std::size_t(2));
    }

    void a_view_can_be_destroyed_while_changes_wait_to_be_told()
    {
        MO_ElementModule& element = _stage->addElement(QStringLiteral("robot"));
        _stage->select({&element});
        std::unique_ptr<GV_GraphXViewQt> doomed = _stage->newView();
        doomed->show();
        element.setInstanceName(QStringLiteral("machine"));
        element.setEditable(false);
        doomed->refreshView();
        doomed.reset();
        _stage->notify();
        QCoreApplication::processEvents();
        QCOMPARE(headersOf(view()), QStringList(QStringLiteral("machine")));
    }

    void a_view_can_be_destroyed_after_its_session()
    {
        _stage->select({&_stage->addElement(QStringLiteral("robot"))});
        std::unique_ptr<GV_GraphXViewQt> last = _stage->newView();
        last->show();
        _stage.reset();
        QCOMPARE(headersOf(*last), QStringList());
        last.reset();
        QVERIFY(!HostSession::current());
    }

    void a_view_can_be_destroyed_by_a_listener()
    {
        MO_ElementModule& element = _stage->addElement(QStringLiteral("robot"));
        std::unique_ptr<GV_GraphXViewQt> doomed;
        const QObject listener;
        connect(_stage->context().changeManager(), &TUSceneChangeManager::nodesChanged, &listener,
                [&] { doomed.reset(); });
        doomed = _stage->newView();
        element.setEditable(false);
        element.setInstanceName(QStringLiteral("machine"));
        _stage->notify();
        QVERIFY(!doomed);
        QCOMPARE(headersOf(view()), QStringList(QStringLiteral("machine")));
    }
};

QTEST_MAIN(tst_GV_GraphXViewQt)
#include "tst_GV_GraphXViewQt.moc"
