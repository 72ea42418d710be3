// SPDX-License-Identifier: MIT
#pragma once

/// The grid that the graph is laid out on, in model units: one unit is one pixel at zoom 1, x grows
/// to the right and y downwards. Layout, hit test, marquee and painter all place things by these
/// numbers. Header i stands at (i * headerPitch, 0); a node of its tree stands at
/// (i * headerPitch + column * indent, row * rowPitch), and both are boxWidth by boxHeight.
namespace GV_LayoutGrid {

inline constexpr int headerPitch = 160;
inline constexpr int boxWidth = 136;
inline constexpr int boxHeight = 24;
inline constexpr int indent = 24;
inline constexpr int rowPitch = 34;

/// The widest name that fits a box, in pixels of the view font.
inline constexpr int labelWidth = 124;

/// The round control that folds a node's children away hangs under the left part of its box; its
/// centre is given from the corner of the box.
inline constexpr int controlRadius = 4;
inline constexpr double controlCentreX = 12.5;
inline constexpr int controlCentreY = boxHeight + controlRadius + 1;

} // namespace GV_LayoutGrid
