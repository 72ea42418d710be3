// SPDX-License-Identifier: MIT

#include "workbench/preferences/PreferenceKey.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr int bottomRightCorner = 3;
constexpr int defaultWheelThreshold = 50;
constexpr int largestWheelThreshold = 1200;

PreferenceKey colour(const char* key, unsigned int rgba, const QString& label)
{
    return {QString::fromLatin1(key), PreferenceKey::Colour, PreferenceKey::GraphViewColours, rgba,
            label};
}

std::vector<PreferenceKey> graphViewColours()
{
    using K = PreferenceKey;
    return {
        colour("ST_3DNODEVIEW_TEXT_COLOR", 0xff000000, K::tr("&Text:")),
        colour("ST_3DNODEVIEW_SELECTED_TEXT_COLOR", 0xff000000, K::tr("Text, s&elected:")),
        colour("ST_3DNODEVIEW_NODE_COLOR", 0xff455aa3, K::tr("&Node:")),
        colour("ST_3DNODEVIEW_SELECTED_NODE_COLOR", 0xff5a9bf0, K::tr("Node, &selected:")),
        colour("ST_3DNODEVIEW_HIDDEN_NODE_COLOR", 0xff648687, K::tr("&Hidden node:")),
        colour("ST_3DNODEVIEW_SELECTED_HIDDEN_NODE_COLOR", 0xff8dbdb4,
               K::tr("H&idden node, selected:")),
        colour("ST_3DNODEVIEW_NONEDITABLE_NODE_COLOR", 0xffa8a8a8,
               K::tr("Node that cannot be &acted on:")),
        colour("ST_3DNODEVIEW_NETWORK_COLOR", 0xffffffff, K::tr("&Lines between nodes:")),
        colour("ST_3DNODEVIEW_BACKGROUND_COLOR", 0xff787878, K::tr("&Background:")),
    };
}

std::vector<PreferenceKey> graphView()
{
    using K = PreferenceKey;
    return {
        {QStringLiteral("ST_3DNODEVIEW_FONT"), K::Font, K::GraphView, QStringLiteral("Courier"),
         K::tr("&Font:")},
        {QStringLiteral("WHEEL_ZOOM_THRESHOLD"),
         K::Integer,
         K::GraphView,
         defaultWheelThreshold,
         K::tr("&Wheel threshold:"),
         K::tr("How far the wheel turns before it zooms; a notch is 120.\nTakes effect at the next "
               "start."),
         {},
         0,
         largestWheelThreshold},
        {QStringLiteral("GV_WORLD_VIEW_STARTING_CORNER"),
         K::Choice,
         K::GraphView,
         bottomRightCorner,
         K::tr("&Navigator:"),
         K::tr("Where the navigator is in graph views that are opened from now on."),
         {K::tr("Top Left"), K::tr("Top Right"), K::tr("Bottom Left"), K::tr("Bottom Right")}},
        {QStringLiteral("GV_WORLD_VIEW_STARTING_STATE"), K::Switch, K::GraphView, true,
         K::tr("&Show the navigator"), K::tr("In graph views that are opened from now on.")},
        {QStringLiteral("GV_EXTENDED_DISPLAY"), K::Switch, K::GraphView, false,
         K::tr("Show &every node of the scene graph"),
         K::tr("In graph views that are opened from now on.")},
    };
}

std::vector<PreferenceKey> appearance()
{
    using K = PreferenceKey;
    return {{K::themeKey(),
             K::Choice,
             K::Appearance,
             0,
             K::tr("&Theme:"),
             {},
             {K::tr("Like the System"), K::tr("Light"), K::tr("Dark")}}};
}

} // namespace

QString PreferenceKey::themeKey()
{
    return QStringLiteral("WORKBENCH_THEME");
}

std::vector<PreferenceKey> PreferenceKey::ofPage(Page page)
{
    switch (page) {
    case GraphViewColours:
        return graphViewColours();
    case GraphView:
        return graphView();
    case Appearance:
        return appearance();
    }
    return {};
}

std::vector<PreferenceKey> PreferenceKey::all()
{
    std::vector<PreferenceKey> keys;
    for (const Page page : {GraphViewColours, GraphView, Appearance})
        std::ranges::copy(ofPage(page), std::back_inserter(keys));
    return keys;
}
