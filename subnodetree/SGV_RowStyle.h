// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QIcon>

class SGV_GraphItem;

/// How a row of the subnode tree looks, by what its subnode is and what of it is switched off.
namespace SGV_RowStyle {

/// Made once, with the colours of the style sheet at that time.
QIcon icon(const SGV_GraphItem& item);

/// The colours of the states are offsets that are added to a base. A sum may be larger than a
/// screen can show; it is kept as it is. Without a style sheet, the colour of a subnode of which
/// nothing is switched off is invalid.
QColor textColor(const SGV_GraphItem& item);

} // namespace SGV_RowStyle
