// SPDX-License-Identifier: MIT

#include "tests/workbench/preferences/DesktopStyle.h"

#include <QApplication>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStylePlugin>

namespace {

QColor& desktopColor()
{
    static QColor color(Qt::white);
    return color;
}

class DesktopLook : public QProxyStyle
{
public:
    DesktopLook()
        : QProxyStyle(QStyleFactory::create(QStringLiteral("windows")))
    {
    }
    // What a style does here counts wherever the application itself says nothing.
    void polish(QPalette& palette) override { palette = QPalette(desktopColor(), desktopColor()); }
    using QProxyStyle::polish;
};

} // namespace

class DesktopStylePlugin : public QStylePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QStyleFactoryInterface" FILE "desktop.json")

public:
    QStyle* create(const QString&) override { return new DesktopLook; }
};

Q_IMPORT_PLUGIN(DesktopStylePlugin)

void DesktopStyle::install()
{
    QApplication::setStyle(QStringLiteral("desktop"));
    QApplication::setPalette(QPalette());
}

void DesktopStyle::turn(const QColor& window)
{
    desktopColor() = window;
    QApplication::setPalette(QApplication::palette());
}

#include "DesktopStyle.moc"
