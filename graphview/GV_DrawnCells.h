// SPDX-License-Identifier: MIT
#pragma once

#include <SubnodeViewsExport.h>

#include <QRectF>
#include <QTransform>
#include <cstdint>
#include <vector>

/// Remembers where on the picture one kind of shape was drawn, so that where a picture is so small
/// that many shapes fall on the same spot, only one of them has to be. Positions are told apart as
/// finely as the raster engine does, so leaving the others out does not change a pixel, provided
/// that all are drawn alike and opaque, from the top down.
class SUBNODEVIEWS_EXPORT GV_DrawnCells
{
public:
    /// Forgets everything. While not enabled, every shape is new. The transform, to pixels, must
    /// not rotate or shear.
    void start(bool enabled, const QTransform& toPixels);

    /// Whether no shape was drawn yet whose extent falls on the same spots; notes this one.
    bool isNew(const QRectF& extent);

private:
    struct Spot
    {
        std::int64_t left;
        std::int64_t right;
        std::int64_t bottom;
        friend bool operator==(const Spot&, const Spot&) = default;
    };

    bool _enabled = false;
    QTransform _toPixels;
    /// What was drawn whose top is on the spot of the last one.
    std::int64_t _top = 0;
    std::vector<Spot> _spots;
};
