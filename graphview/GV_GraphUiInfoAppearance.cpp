// SPDX-License-Identifier: MIT

#include "graphview/GV_AppearanceRevision.h"
#include "graphview/GV_GraphUiInfo.h"
#include "host/preferences/PR_Preference.h"

#include <QGuiApplication>

namespace {

constexpr unsigned int normalTextRgba = 0xff000000;
constexpr unsigned int selectedTextRgba = 0xff000000;
constexpr unsigned int normalBoxRgba = 0xff455aa3;
constexpr unsigned int selectedBoxRgba = 0xff5a9bf0;
constexpr unsigned int hiddenBoxRgba = 0xff648687;
constexpr unsigned int hiddenSelectedBoxRgba = 0xff8dbdb4;
constexpr unsigned int disabledBoxRgba = 0xffa8a8a8;
constexpr unsigned int defaultRgba = 0xff323232;

const QString& defaultFontName()
{
    static const QString name = QStringLiteral("Courier");
    return name;
}

bool loadColor(QColor& color, const char* key, unsigned int defaultRgbaValue)
{
    const QColor loaded = QColor::fromRgba(
        PR_Preference::instance()->getRgbaValue(QString::fromLatin1(key), defaultRgbaValue));
    if (loaded == color)
        return false;
    color = loaded;
    return true;
}

} // namespace

QColor GV_GraphUiInfo::_normalTextColor = QColor::fromRgba(normalTextRgba);
QColor GV_GraphUiInfo::_selectedTextColor = QColor::fromRgba(selectedTextRgba);
QColor GV_GraphUiInfo::_normalBoxColor = QColor::fromRgba(normalBoxRgba);
QColor GV_GraphUiInfo::_selectedBoxColor = QColor::fromRgba(selectedBoxRgba);
QColor GV_GraphUiInfo::_hiddenBoxColor = QColor::fromRgba(hiddenBoxRgba);
QColor GV_GraphUiInfo::_hiddenSelectedBoxColor = QColor::fromRgba(hiddenSelectedBoxRgba);
QColor GV_GraphUiInfo::_disabledBoxColor = QColor::fromRgba(disabledBoxRgba);
QColor GV_GraphUiInfo::_defaultColor = QColor::fromRgba(defaultRgba);
QString GV_GraphUiInfo::_fontName = defaultFontName();
int GV_GraphUiInfo::_fontPointSize = 10;
QFont GV_GraphUiInfo::_font = QFont(_fontName, _fontPointSize);

const QFont& GV_GraphUiInfo::font()
{
    // The library is loaded before the application knows its screen, and a font made then has
    // another resolution than the painters that it is measured for.
    static bool madeForScreen = false;
    if (!madeForScreen && qGuiApp) {
        madeForScreen = true;
        _font = QFont(_fontName, _fontPointSize);
    }
    return _font;
}

bool GV_GraphUiInfo::loadPreferences()
{
    bool changed = false;
    changed |= loadColor(_normalTextColor, "ST_3DNODEVIEW_TEXT_COLOR", normalTextRgba);
    changed |= loadColor(_selectedTextColor, "ST_3DNODEVIEW_SELECTED_TEXT_COLOR", selectedTextRgba);
    changed |= loadColor(_normalBoxColor, "ST_3DNODEVIEW_NODE_COLOR", normalBoxRgba);
    changed |= loadColor(_selectedBoxColor, "ST_3DNODEVIEW_SELECTED_NODE_COLOR", selectedBoxRgba);
    changed |= loadColor(_hiddenBoxColor, "ST_3DNODEVIEW_HIDDEN_NODE_COLOR", hiddenBoxRgba);
    changed |= loadColor(_hiddenSelectedBoxColor, "ST_3DNODEVIEW_SELECTED_HIDDEN_NODE_COLOR",
                         hiddenSelectedBoxRgba);
    changed |=
        loadColor(_disabledBoxColor, "ST_3DNODEVIEW_NONEDITABLE_NODE_COLOR", disabledBoxRgba);
    changed |= reloadFont();
    if (changed)
        GV_AppearanceRevision::advance();
    return changed;
}

bool GV_GraphUiInfo::reloadFont()
{
    const QString name = PR_Preference::instance()->getFontValue(
        QStringLiteral("ST_3DNODEVIEW_FONT"), defaultFontName());
    if (name == _fontName)
        return false;
    _fontName = name;
    _font = QFont(_fontName, _fontPointSize);
    return true;
}

const QColor& GV_GraphUiInfo::getColor(GV_UiNode::eObjType type, const GV_UiNode* node,
                                       bool hidden) const
{
    return getColor(type, node->isEditable(), isSubNodeSelected(node), hidden);
}

const QColor& GV_GraphUiInfo::getColor(GV_UiNode::eObjType type, bool editable, bool selected,
                                       bool hidden) const
{
    // What cannot be acted on shows neither selection nor hidden state.
    if (!editable)
        selected = hidden = false;
    switch (type) {
    case GV_UiNode::eText:
        return selected ? _selectedTextColor : _normalTextColor;
    case GV_UiNode::eBox:
        if (!editable)
            return _disabledBoxColor;
        if (hidden)
            return selected ? _hiddenSelectedBoxColor : _hiddenBoxColor;
        return selected ? _selectedBoxColor : _normalBoxColor;
    }
    return _defaultColor;
}
