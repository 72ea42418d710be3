// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/timeline/TimelineModels.h"

#include <QPalette>

class ExposureDrag;
class QPainter;
class TimelineLayout;

/// Paints the time line in the colours of a palette. It draws only what is in view, and of
/// exposures that fall on the same pixel only one, so that the cost follows the size on screen.
class TimelinePainter
{
public:
    /// What is to be seen besides the rows. Nothing of it is owned.
    struct State
    {
        const TimelineLayout& layout;
        const TimelineRows& rows;
        const TimelineModels& models;
        /// -1 when there is none.
        int currentRow;
        int selectedExposure;
        int currentFrame;
        /// Null when nothing is dragged.
        const ExposureDrag* drag;
        bool focused;
        QPalette palette;
    };

    /// Both must outlive the painter.
    TimelinePainter(QPainter& painter, const State& state);

    void paint();

private:
    void paintRows();
    void paintName(int row, const QRect& area);
    void paintBars(int row);
    void paintBar(int row, const ExposureEdits::Exposure& exposure, bool selected);
    void paintTitle(int row, const ExposureEdits::Exposure& exposure, const QRectF& bar,
                    const QColor& colour);
    void paintGrid();
    void paintRuler();
    void paintMarker();
    void paintFocus();

    /// The palette's text over its base colour, as strong as the share from 0 to 1.
    QColor shade(double share) const;

    QPainter& _painter;
    const State& _state;
    const TimelineLayout& _layout;
};
