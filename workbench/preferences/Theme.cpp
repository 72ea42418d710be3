// SPDX-License-Identifier: MIT

#include "workbench/preferences/Theme.h"

#include "workbench/resources/Resources.h"

#include <QApplication>
#include <QFile>
#include <QPalette>
#include <QStyleFactory>

namespace {

constexpr int middle = 128;

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < middle;
}

QPalette palette(Theme::Kind kind)
{
    const bool dark = kind == Theme::Dark;
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

} // namespace

std::optional<Theme::Kind> Theme::fromName(const QString& name)
{
    if (name == QLatin1String("light"))
        return Light;
    if (name == QLatin1String("dark"))
        return Dark;
    if (name == QLatin1String("system"))
        return isDark(QApplication::palette()) ? Dark : Light;
    return std::nullopt;
}

void Theme::apply(Kind kind)
{
    initWorkbenchResources();
    if (isDark(QApplication::palette()) != (kind == Dark)) {
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
        QApplication::setPalette(palette(kind));
    }
    QFile sheet(kind == Dark ? QStringLiteral(":/workbench/themes/dark.qss")
                             : QStringLiteral(":/workbench/themes/light.qss"));
    if (sheet.open(QIODevice::ReadOnly))
        qApp->setStyleSheet(QString::fromUtf8(sheet.readAll()));
}
