// SPDX-License-Identifier: MIT
#pragma once

#include <SubnodeViewsExport.h>

#include <QColor>
#include <QWidget>
#include <array>

class GV_GraphXNavigatorQt;
class GV_GraphXViewQt;
class GV_ResizeCtrlQt;

/// The frame around the navigator, in a corner of its graph view. It is resized by the grips that
/// point away from the corner. The graph view owns it, and it owns the navigator and the grips.
class SUBNODEVIEWS_EXPORT GV_WorldViewQt : public QWidget
{
    Q_OBJECT

public:
    /// The grips in the order in which grip() counts them.
    enum eGrip
    {
        eTopLeft = 0,
        eTop = 1,
        eTopRight = 2,
        eRight = 3,
        eLeft = 4,
        eBottomLeft = 5,
        eBottom = 6,
        eBottomRight = 7
    };

    /// Corners are those of GV_GraphXViewQt::onActionMoveWorld().
    GV_WorldViewQt(GV_GraphXViewQt* mainView, GV_GraphXNavigatorQt* navigator, int corner);
    ~GV_WorldViewQt() override;

    int corner() const { return _corner; }
    GV_ResizeCtrlQt* grip(eGrip which) const { return _grips[which]; }

    /// A number that is no corner means the bottom right one.
    void moveToCorner(int corner);
    /// Takes the background from the preferences; true when it changed, or was to be set anyway.
    bool refreshBackground(bool force);

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void createGrips();
    void layOut();

    GV_GraphXViewQt* _mainView;
    GV_GraphXNavigatorQt* _navigator;
    int _corner;
    std::array<GV_ResizeCtrlQt*, 8> _grips{};

    static QColor __backgroundQColor;
};
