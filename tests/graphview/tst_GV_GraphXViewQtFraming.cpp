// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "tests/graphview/CanvasTest.h"
#include "tests/graphview/ShownModels.h"

#include <QRandomGenerator>

namespace {

using namespace ModelBuilder;

/// How the canvas has to stand once a rectangle has been framed in a view of that size.
struct Framing
{
    int level = 0;
    double x = 0.0;
    double y = 0.0;

    double factor() const { return std::pow(2.0, level / 32.0); }
};

Framing framingOf(const Math::Rect2d& rect, double viewWidth, double viewHeight)
{
    const double width = std::abs(rect.right - rect.left);
    const double height = std::abs(rect.bottom - rect.top);
    const double centreX = (rect.left + rect.right) / 2;
    const double centreY = (rect.top + rect.bottom) / 2;
    Framing framing;
    if (viewWidth >= width && viewHeight >= height) {
        if (rect.right >= viewWidth)
            framing.x = viewWidth / 2 - centreX;
        if (rect.bottom >= viewHeight)
            framing.y = viewHeight / 2 - centreY;
        return framing;
    }
    const bool heightLimits = viewWidth / viewHeight > width / height;
    const double ratio = heightLimits ? viewHeight / height : viewWidth / width;
    const int exact = static_cast<int>(std::floor(std::log(ratio) * 32 / std::log(2.0)));
    framing.level = std::min(exact - 1, 0);
    const double z = framing.factor();
    if (z * rect.right >= viewWidth || z * rect.bottom >= viewHeight) {
        framing.x = viewWidth / 2 - z * centreX;
        framing.y = viewHeight / 2 - z * centreY;
    }
    return framing;
}

} // namespace

/// Bringing into view what is selected.
class tst_GV_GraphXViewQtFraming : public CanvasTest
{
    Q_OBJECT

private:
    Math::Rect2d selected() { return _stage->graph().selectionRect(); }
    bool stands(const Framing& framing)
    {
        return factor() == framing.factor() && isNear(pan(), framing.x, framing.y);
    }
    /// Frames, and says whether the canvas stands as it should afterwards.
    bool framesAsExpected()
    {
        view().onActionFrameSelected();
        return stands(framingOf(selected(), view().width(), view().height()));
    }
    /// Whether all that is selected can be seen.
    bool isInView()
    {
        const Math::Rect2d rect = selected();
        const Math::Point2d topLeft = view().modelToScreen({rect.left, rect.top});
        const Math::Point2d bottomRight = view().modelToScreen({rect.right, rect.bottom});
        constexpr double rounding = 1e-6;
        return topLeft.x >= -rounding && topLeft.y >= -rounding &&
               bottomRight.x <= view().width() + rounding &&
               bottomRight.y <= view().height() + rounding;
    }
    /// Takes the canvas somewhere else.
    void disturb()
    {
        view().onActionZoomIn();
        view().handleNavigatorPan({-71, 33});
    }
    /// Whether framing leaves the canvas alone.
    bool framesNothing()
    {
        disturb();
        const QTransform before = view().transform();
        view().onActionFrameSelected();
        return view().transform() == before && pan() == Math::Point2d{before.dx(), before.dy()};
    }
    void addElements(int count)
    {
        for (int i = 0; i < count; ++i)
            _elements.push_back(&_stage->addElement(QStringLiteral("robot%1").arg(i)));
    }

    std::vector<MO_Node*> _elements;

private slots:
    void init()
    {
        StageTest::init();
        _elements.clear();
        QVERIFY(show());
    }

    void nothing_selected_leaves_the_canvas_alone()
    {
        addElements(2);
        QVERIFY(_stage->graph().selectedNodes().empty());
        QVERIFY(framesNothing());
        _stage->select(_elements);
        QVERIFY(!framesNothing());
    }

    void a_selection_that_is_gone_leaves_the_canvas_alone()
    {
        addSelected(robotModel());
        _stage->graph().clearUiNodeGraph();
        QVERIFY(!_stage->graph().selectedNodes().empty());
        QCOMPARE(selected(), Math::Rect2d());
        QVERIFY(framesNothing());
    }

    void a_small_selection_near_the_origin_leaves_the_origin_in_the_corner()
    {
        addSelected(robotModel());
        disturb();
        view().onActionFrameSelected();
        QCOMPARE(factor(), 1.0);
        QCOMPARE(pan(), (Math::Point2d{0, 0}));
        QVERIFY(isInView());
    }

    void a_selection_far_right_is_centred_across_only()
    {
        addElements(8);
        _stage->select({_elements[6]});
        disturb();
        view().onActionFrameSelected();
        QCOMPARE(factor(), 1.0);
        const Math::Rect2d rect = selected();
        QVERIFY(rect.left > view().width());
        QVERIFY(isNear(pan(), 300 - (rect.left + rect.right) / 2, 0));
        QVERIFY(isInView());
    }

    void a_selection_far_down_is_centred_upright_only()
    {
        MO_ElementModule& element = addSelected(chain(14));
        _stage->subSelect(element, {QStringLiteral("link12")});
        disturb();
        view().onActionFrameSelected();
        QCOMPARE(factor(), 1.0);
        const Math::Rect2d rect = selected();
        QVERIFY(rect.top > view().height());
        QVERIFY(rect.right < view().width());
        QVERIFY(isNear(pan(), 0, 200 - (rect.top + rect.bottom) / 2));
        QVERIFY(isInView());
    }

    void a_selection_that_ends_with_the_view_is_centred()
    {
        addSelected(robotModel());
        const Math::Rect2d rect = selected();
        view().resize(int(rect.right), int(rect.bottom));
        view().onActionFrameSelected();
        QCOMPARE(factor(), 1.0);
        QCOMPARE(pan(), (Math::Point2d{0, 0}));
        view().resize(int(rect.right) + 1, int(rect.bottom) + 1);
        disturb();
        view().onActionFrameSelected();
        QCOMPARE(pan(), (Math::Point2d{0, 0}));
        // One pixel less and it no longer fits.
        view().resize(int(rect.right) - 1, int(rect.bottom));
        QVERIFY(framesAsExpected());
        QVERIFY(factor() < 1.0);
    }

    void a_wide_selection_is_scaled_by_its_width()
    {
        addElements(12);
        _stage->select(_elements);
        QVERIFY(framesAsExpected());
        const Math::Rect2d rect = selected();
        const double width = rect.right - rect.left;
        QVERIFY(width * factor() < view().width());
        QVERIFY(width * factor() * std::pow(2.0, 2 / 32.0) > view().width());
        QVERIFY(isInView());
        // At this scale it fits together with the origin.
        QCOMPARE(pan(), (Math::Point2d{0, 0}));
    }

    void a_high_selection_is_scaled_by_its_height()
    {
        MO_ElementModule& element = addSelected(chain(40));
        _stage->subSelect(element, {QStringLiteral("link0"), QStringLiteral("link39")});
        QVERIFY(framesAsExpected());
        const Math::Rect2d rect = selected();
        const double height = rect.bottom - rect.top;
        QVERIFY(height * factor() < view().height());
        QVERIFY(height * factor() * std::pow(2.0, 2 / 32.0) > view().height());
        QVERIFY(isInView());
    }

    void a_large_selection_far_away_is_scaled_and_centred()
    {
        MO_ElementModule& element = addSelected(chain(60));
        _stage->subSelect(element, {QStringLiteral("link30"), QStringLiteral("link59")});
        QVERIFY(framesAsExpected());
        QVERIFY(factor() < 1.0);
        QVERIFY(pan().y < 0.0);
        const Math::Rect2d rect = selected();
        QVERIFY(isNear(view().modelToScreen(rect.center()), 300, 200));
        QVERIFY(isInView());
    }

    void a_selection_that_all_but_fits_is_scaled_down_too()
    {
        addElements(4);
        _stage->select(_elements);
        const Math::Rect2d rect = selected();
        view().resize(int(rect.right - rect.left) - 1, 400);
        QVERIFY(framesAsExpected());
        QCOMPARE(factor(), std::pow(2.0, -2 / 32.0));
    }

    void the_smallest_zoom_by_hand_is_no_limit()
    {
        MO_ElementModule& element = addSelected(chain(1000));
        _stage->subSelect(element, {QStringLiteral("link0"), QStringLiteral("link999")});
        view().resize(3, 2);
        QCOMPARE(view().size(), QSize(3, 2));
        QVERIFY(framesAsExpected());
        QVERIFY(factor() < 1.0 / 64);
        view().onActionZoomIn();
        QCOMPARE(factor(), 1.0 / 64);
    }

    void a_view_without_room_is_left_alone()
    {
        addSelected(robotModel());
        for (const QSize& size : {QSize(1, 300), QSize(300, 1), QSize(1, 1)}) {
            view().resize(size);
            QCOMPARE(view().size(), size);
            QVERIFY(framesNothing());
        }
        view().resize(2, 2);
        QCOMPARE(view().size(), QSize(2, 2));
        QVERIFY(framesAsExpected());
    }

    void framing_twice_changes_nothing_more()
    {
        addElements(12);
        _stage->select({_elements[2], _elements[11]});
        QVERIFY(framesAsExpected());
        const QTransform once = view().transform();
        QVERIFY(framesAsExpected());
        QCOMPARE(view().transform(), once);
    }

    void a_drag_after_framing_starts_from_there()
    {
        QVERIFY(definePanKey());
        addElements(12);
        _stage->select({_elements[2], _elements[11]});
        QVERIFY(framesAsExpected());
        const double before = factor();
        dragZoom(QPoint(100, 100), 32);
        QVERIFY(isNear(factor(), 2 * before));
    }

    void any_selection_comes_into_any_view()
    {
        QRandomGenerator random(11);
        addElements(3);
        MO_ElementModule& tree = _stage->addElement(QStringLiteral("tree"), randomModel(4, 25));
        _elements.push_back(&tree);
        _stage->select({&tree});
        const std::vector<GV_UiNode*> nodes = preOrder(_stage->graph().rootUiNode());
        QVERIFY(nodes.size() > 5);
        int scaled = 0;
        int unscaled = 0;
        for (int i = 0; i < 400; ++i) {
            _stage->graph().clearSelection(false);
            const int headers = random.bounded(4);
            for (int left = headers; left > 0; --left) {
                auto* element = static_cast<MO_ElementModule*>(
                    _elements[random.bounded(int(_elements.size()))]);
                _stage->graph().setHeaderNodeSelected(element);
            }
            for (int left = random.bounded(4); left > 0; --left)
                _stage->graph().setFirstNodeSelected(nodes[random.bounded(int(nodes.size()))]);
            view().resize(random.bounded(2, 780), random.bounded(2, 780));
            disturb();
            if (_stage->graph().selectedNodes().empty()) {
                QVERIFY(framesNothing());
                continue;
            }
            const QString what = QStringLiteral("selection %1").arg(i);
            QVERIFY2(framesAsExpected(), qPrintable(what));
            // Without a header there is no saying where the rectangle begins.
            if (headers > 0)
                QVERIFY2(isInView(), qPrintable(what));
            QVERIFY2(factor() <= 1.0, qPrintable(what));
            ++(factor() < 1.0 ? scaled : unscaled);
        }
        QVERIFY(scaled > 20);
        QVERIFY(unscaled > 20);
    }
};

QTEST_MAIN(tst_GV_GraphXViewQtFraming)
#include "tst_GV_GraphXViewQtFraming.moc"
