// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// Where frames lie on a line of pixels. Frame f takes up the pixels from xOf(f) to xOf(f + 1); the
/// axis begins at x = 0 with the frame that the origin names, or within it. A value without owner.
class FrameAxis
{
public:
    /// The frame at x = 0; a fraction is the part of it that is out of view.
    double origin() const { return _origin; }
    double pixelsPerFrame() const { return _pixelsPerFrame; }

    double xOf(double frame) const { return (frame - _origin) * _pixelsPerFrame; }
    /// The frame at the pixel, also beyond the axis, but never below 1 or above what an int holds.
    int frameAt(double x) const;
    /// How many frames fit into the width, in pixels; at least 1.
    int framesIn(int width) const;
    /// Frames between labels, such that they are as many pixels apart or more: 1, 2, 5, 10, ...
    qint64 labelDistance(int pixels) const;

    /// An origin below 1 is taken as 1.
    void setOrigin(double frame);
    /// Zooms in for a factor above 1, within limits, and keeps the frame at x where it is, unless
    /// that would bring frames below 1 into view.
    void zoom(double factor, double x);

private:
    double _origin = 1;
    double _pixelsPerFrame = 10;
};
