// SPDX-License-Identifier: MIT
#pragma once

#include "graphview/GV_ResizeCtrlQt.h"
#include "graphview/GV_WorldViewQt.h"
#include "tests/graphview/StageTest.h"

#include <array>
#include <set>

/// What tests of the frame around the overview have in common: where it has to stand, and which of
/// its grips can be dragged there.
class WorldViewTest : public StageTest
{
protected:
    using Grip = GV_WorldViewQt::eGrip;

    static constexpr std::array<Qt::CursorShape, 8> cursors{
        Qt::SizeFDiagCursor, Qt::SizeVerCursor,   Qt::SizeBDiagCursor, Qt::SizeHorCursor,
        Qt::SizeHorCursor,   Qt::SizeBDiagCursor, Qt::SizeVerCursor,   Qt::SizeFDiagCursor};

    GV_GraphXViewQt& view() { return _stage->view(); }
    GV_WorldViewQt& frame() { return *view().worldView(); }
    bool show(const QSize& size = QSize(500, 400))
    {
        view().resize(size);
        view().show();
        return QTest::qWaitForWindowExposed(&view());
    }
    static QPoint placeOf(const GV_GraphXViewQt& view, int corner)
    {
        const QSize room = view.size() - view.worldView()->size() - QSize(3, 3);
        return QPoint(corner == 0 || corner == 2 ? 3 : room.width(),
                      corner == 0 || corner == 1 ? 3 : room.height());
    }
    static std::set<int> gripsOf(int corner)
    {
        switch (corner) {
        case 0:
            return {Grip::eBottom, Grip::eRight, Grip::eBottomRight};
        case 1:
            return {Grip::eBottom, Grip::eLeft, Grip::eBottomLeft};
        case 2:
            return {Grip::eTop, Grip::eRight, Grip::eTopRight};
        default:
            return {Grip::eTop, Grip::eLeft, Grip::eTopLeft};
        }
    }
    /// Whether the frame stands in the corner, and only the grips away from it can be dragged.
    static bool standsIn(const GV_GraphXViewQt& view, int corner)
    {
        const GV_WorldViewQt& frame = *view.worldView();
        bool fits = frame.pos() == placeOf(view, corner);
        for (int i = 0; i < 8; ++i) {
            const GV_ResizeCtrlQt* grip = frame.grip(Grip(i));
            const bool enabled = gripsOf(corner).contains(i);
            fits = fits && grip->isEnabled() == enabled &&
                   grip->testAttribute(Qt::WA_SetCursor) == enabled &&
                   (!enabled || grip->cursor().shape() == cursors[std::size_t(i)]);
        }
        return fits;
    }
};
