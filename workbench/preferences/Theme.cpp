// SPDX-License-Identifier: MIT

#include "workbench/preferences/Theme.h"

#include "workbench/resources/Resources.h"

#include <QFile>

namespace {

constexpr int middle = 128;

} // namespace

Theme::Kind Theme::kindOf(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < middle ? Dark : Light;
}

QPalette Theme::palette(Kind kind)
{
    const bool dark = kind == Dark;
    const QColor window(dark ? 0x353535 : 0xefefef);
    const QColor text(dark ? 0xdcdcdc : 0x000000);
    const QColor disabled(dark ? 0x808080 : 0xa0a0a0);
    QPalette result(QColor(dark ? 0x404040 : 0xefefef), window);
    result.setColor(QPalette::Base, QColor(dark ? 0x2b2b2b : 0xffffff));
    result.setColor(QPalette::AlternateBase, QColor(dark ? 0x323232 : 0xf5f5f5));
    result.setColor(QPalette::ToolTipBase, QColor(dark ? 0x454545 : 0xffffdc));
    result.setColor(QPalette::Highlight, QColor(0x308cc6));
    result.setColor(QPalette::HighlightedText, Qt::white);
    result.setColor(QPalette::Link, QColor(dark ? 0x6fb3ff : 0x0000ff));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        result.setColor(role, text);
        result.setColor(QPalette::Disabled, role, disabled);
    }
    result.setColor(QPalette::PlaceholderText, disabled);
    return result;
}

QString Theme::styleSheet(Kind kind)
{
    initWorkbenchResources();
    QFile sheet(kind == Dark ? QStringLiteral(":/workbench/themes/dark.qss")
                             : QStringLiteral(":/workbench/themes/light.qss"));
    return sheet.open(QIODevice::ReadOnly) ? QString::fromUtf8(sheet.readAll()) : QString();
}
