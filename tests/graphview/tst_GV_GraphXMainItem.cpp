// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXMainItem.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_GraphXViewQt.h"
#include "host/scene/MO_ElementModule.h"
#include "tests/graphview/PaintedCalls.h"
#include "tests/graphview/RecordingPaintDevice.h"
#include "tests/graphview/ShownModels.h"
#include "tests/graphview/StageTest.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QPainter>
#include <QRegularExpression>
#include <QTest>

using namespace ModelBuilder;
using namespace PaintedCalls;

/// What is painted, call by call.
class tst_GV_GraphXMainItem : public StageTest
{
    Q_OBJECT

private:
    /// What an item that draws everything paints with a pen of the given colour.
    QStringList painted(const QTransform& transform = {}, const QColor& penColor = Qt::black)
    {
        GV_GraphXMainItem item(controller(), true);
        return PaintedCalls::painted(item, transform, penColor);
    }

private slots:
    void paints_lines_then_headers_then_boxes()
    {
        MO_ElementModule& element = addSelected(robotModel());
        _stage->addElement(QStringLiteral("other"));
        _stage->subSelect(element, {QStringLiteral("leg")});

        QCOMPARE(painted(),
                 // The header's control, the body's, and the arm's.
                 lines({ellipse(8.5, 25), line(10, 29, 15, 29), line(12.5, 33, 12.5, 46.5),
                        line(12.5, 46.5, 24.5, 46.5), ellipse(32.5, 59), line(34, 63, 39, 63),
                        line(36.5, 67, 36.5, 148.5), line(36.5, 80.5, 48.5, 80.5),
                        ellipse(56.5, 93), line(58, 97, 63, 97), line(60.5, 101, 60.5, 114.5),
                        line(60.5, 114.5, 72.5, 114.5), line(36.5, 148.5, 48.5, 148.5)}) +
                     header(0, "robot", selectedBox) + header(160, "other", normalBox) +
                     box(24, 34, "body", normalBox) + box(48, 68, "arm", normalBox) +
                     box(72, 102, "hand", normalBox) + box(48, 136, "leg", selectedBox));
    }

    void the_tree_stands_below_the_active_header()
    {
        _stage->addElement(QStringLiteral("a"));
        _stage->addElement(QStringLiteral("b"));
        addSelected(model(shapedKey("body")));
        QCOMPARE(painted(), lines({ellipse(328.5, 25), line(330, 29, 335, 29),
                                   line(332.5, 33, 332.5, 46.5), line(332.5, 46.5, 344.5, 46.5)}) +
                                header(0, "a", normalBox) + header(160, "b", normalBox) +
                                header(320, "robot", selectedBox) +
                                box(344, 34, "body", normalBox));
    }

    void a_folded_node_shows_a_plus_and_nothing_below()
    {
        addSelected(robotModel());
        _stage->node(QStringLiteral("arm"))->setCollapsed(true);
        _stage->graph().calculateGeometricData();
        QCOMPARE(painted(),
                 lines({ellipse(8.5, 25), line(10, 29, 15, 29), line(12.5, 33, 12.5, 46.5),
                        line(12.5, 46.5, 24.5, 46.5), ellipse(32.5, 59), line(34, 63, 39, 63),
                        line(36.5, 67, 36.5, 114.5), line(36.5, 80.5, 48.5, 80.5),
                        ellipse(56.5, 93), line(58, 97, 63, 97), line(60.5, 94.5, 60.5, 99.5),
                        line(36.5, 114.5, 48.5, 114.5)}) +
                     header(0, "robot", selectedBox) + box(24, 34, "body", normalBox) +
                     box(48, 68, "arm", normalBox) + box(48, 102, "leg", normalBox));
    }

    void a_folded_header_shows_a_plus_and_no_tree()
    {
        addSelected(robotModel());
        _stage->graph().rootUiNode()->setCollapsed(true);
        _stage->graph().calculateGeometricData();
        QCOMPARE(painted(),
                 lines({ellipse(8.5, 25), line(10, 29, 15, 29), line(12.5, 26.5, 12.5, 31.5)}) +
                     header(0, "robot", selectedBox));
    }

    void without_an_open_model_there_are_headers_only()
    {
        _stage->addElement(QStringLiteral("a"));
        _stage->addElement(QStringLiteral("b"));
        QCOMPARE(painted(), header(0, "a", normalBox) + header(160, "b", normalBox));
    }

    void a_model_without_subnodes_has_no_control()
    {
        addSelected(model(geometry("shape")));
        QCOMPARE(painted(), header(0, "robot", selectedBox));
    }

    void without_headers_nothing_is_painted() { QCOMPARE(painted(), QStringList()); }

    void the_item_of_a_view_leaves_out_what_is_out_of_view()
    {
        MO_ElementModule& element = addSelected(robotModel());
        _stage->addElement(QStringLiteral("other"));
        _stage->select({&element});
        GV_GraphXMainItem item(controller(), false);
        const QStringList robot = header(0, "robot", selectedBox);
        const QStringList other = header(160, "other", normalBox);
        const QStringList body = box(24, 34, "body", normalBox);
        const QStringList arm = box(48, 68, "arm", normalBox);
        const QStringList hand = box(72, 102, "hand", normalBox);
        const QStringList leg = box(48, 136, "leg", normalBox);
        const auto linesIn = [&](const QRectF& rect) {
            item.setViewRectInModelCoord(rect);
            return PaintedCalls::painted(item).first(13);
        };
        const QStringList allLines = painted().first(13);
        const std::vector<std::pair<QRectF, QStringList>> views{
            {QRectF(-10, -10, 1000, 1000), robot + other + body + arm + hand + leg},
            {QRectF(-10, 5, 1000, 2), robot + other},
            {QRectF(0, 20, 150, 20), robot + body},
            {QRectF(200, 0, 10, 200), other + hand},
            // The boxes above are out of view, their children are not.
            {QRectF(0, 103, 500, 4), hand},
            {QRectF(0, 103, 500, 40), hand + leg},
            // Between two rows, and touching two boxes from there.
            {QRectF(0, 59, 500, 8), {}},
            {QRectF(0, 58, 500, 10), {}},
            {QRectF(0, 57.5, 500, 11), body + arm},
            {QRectF(0, 170, 500, 40), {}},
            {QRectF(0, 0, 0, 0), {}},
        };
        for (const auto& [rect, boxes] : views) {
            QCOMPARE(linesIn(rect), allLines);
            QCOMPARE(PaintedCalls::painted(item).mid(13), boxes);
        }
    }

    void an_item_that_draws_everything_minds_no_view()
    {
        addSelected(robotModel());
        GV_GraphXMainItem item(controller(), true);
        const QStringList calls = PaintedCalls::painted(item);
        QCOMPARE(calls.size(), 13 + 5 * 2);
        item.setViewRectInModelCoord(QRectF(0, 0, 1, 1));
        QCOMPARE(PaintedCalls::painted(item), calls);
    }

    void an_item_without_a_view_yet_paints_lines_only()
    {
        addSelected(robotModel());
        GV_GraphXMainItem item(controller(), false);
        QCOMPARE(PaintedCalls::painted(item), painted().first(13));
    }

    void the_painter_gets_its_font_back()
    {
        const QFont font(QStringLiteral("Helvetica"), 23, QFont::Bold, true);
        for (const bool withModel : {false, true}) {
            if (withModel)
                addSelected(robotModel());
            GV_GraphXMainItem item(controller(), true);
            RecordingPaintDevice device;
            QPainter painter(&device);
            painter.setFont(font);
            item.paint(&painter, nullptr, nullptr);
            QCOMPARE(painter.font(), font);
            QCOMPARE(device.calls().empty(), !withModel);
        }
    }

    void the_bounds_reach_from_the_origin_to_the_far_corner_of_the_graph()
    {
        GV_GraphXMainItem item(controller(), true);
        QCOMPARE(item.boundingRect(), QRectF(0, 0, 0, 0));
        _stage->addElement(QStringLiteral("a"));
        _stage->addElement(QStringLiteral("b"));
        QCOMPARE(item.boundingRect(), QRectF(0, 0, 296, 24));
        addSelected(robotModel());
        QCOMPARE(item.boundingRect(), QRectF(0, 0, 320 + 3 * 24 + 136, 5 * 34));
    }

    void an_item_has_neither_parent_nor_scene_of_its_own()
    {
        const GV_GraphXMainItem item(controller(), true);
        QVERIFY(!item.parentItem());
        QVERIFY(!item.scene());
    }
};

QTEST_MAIN(tst_GV_GraphXMainItem)
#include "tst_GV_GraphXMainItem.moc"
