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
    return {
        colour("ST_3DNODEVIEW_TEXT_COLOR", 0xff000000, PreferenceKey::tr("&Text:")),
        colour("ST_3DNODEVIEW_SELECTED_TEXT_COLOR", 0xff000000,
               PreferenceKey::tr("Text, s&elected:")),
        colour("ST_3DNODEVIEW_NODE_COLOR", 0xff455aa3, PreferenceKey::tr("&Node:")),
        colour("ST_3DNODEVIEW_SELECTED_NODE_COLOR", 0xff5a9bf0,
               PreferenceKey::tr("Node, &selected:")),
        colour("ST_3DNODEVIEW_HIDDEN_NODE_COLOR", 0xff648687, PreferenceKey::tr("&Hidden node:")),
        colour("ST_3DNODEVIEW_SELECTED_HIDDEN_NODE_COLOR", 0xff8dbdb4,
               PreferenceKey::tr("H&idden node, selected:")),
        colour("ST_3DNODEVIEW_NONEDITABLE_NODE_COLOR", 0xffa8a8a8,
               PreferenceKey::tr("Node that cannot be &acted on:")),
        colour("ST_3DNODEVIEW_NETWORK_COLOR", 0xffffffff,
               PreferenceKey::tr("&Lines between nodes:")),
        colour("ST_3DNODEVIEW_BACKGROUND_COLOR", 0xff787878, PreferenceKey::tr("&Background:")),
    };
}

std::vector<PreferenceKey> graphView()
{
    using K = PreferenceKey;
    return {
        {QStringLiteral("ST_3DNODEVIEW_FONT"), K::Font, K::GraphView, QStringLiteral("Courier"),
         PreferenceKey::tr("&Font:")},
        {QStringLiteral("WHEEL_ZOOM_THRESHOLD"),
         K::Integer,
         K::GraphView,
         defaultWheelThreshold,
         PreferenceKey::tr("&Wheel threshold:"),
         PreferenceKey::tr(
             "How far the wheel turns before it zooms; a notch is 120.\nTakes effect at the next "
             "start."),
         {},
         0,
         largestWheelThreshold},
        {QStringLiteral("GV_WORLD_VIEW_STARTING_CORNER"),
         K::Choice,
         K::GraphView,
         bottomRightCorner,
         PreferenceKey::tr("&Navigator:"),
         PreferenceKey::tr("Where the navigator is in graph views that are opened from now on."),
         {PreferenceKey::tr("Top Left"), PreferenceKey::tr("Top Right"),
          PreferenceKey::tr("Bottom Left"), PreferenceKey::tr("Bottom Right")}},
        {QStringLiteral("GV_WORLD_VIEW_STARTING_STATE"), K::Switch, K::GraphView, true,
         PreferenceKey::tr("&Show the navigator"),
         PreferenceKey::tr("In graph views that are opened from now on.")},
        {QStringLiteral("GV_EXTENDED_DISPLAY"), K::Switch, K::GraphView, false,
         PreferenceKey::tr("Show &every node of the scene graph"),
         PreferenceKey::tr("In graph views that are opened from now on.")},
    };
}

std::vector<PreferenceKey> appearance()
{
    using K = PreferenceKey;
    return {{K::themeKey(),
             K::Choice,
             K::Appearance,
             0,
             PreferenceKey::tr("&Theme:"),
             {},
             {PreferenceKey::tr("Like the System"), PreferenceKey::tr("Light"),
              PreferenceKey::tr("Dark")}}};
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
