// SPDX-License-Identifier: MIT
#include "host/widgets/UT_Screen.h"

#include <QGuiApplication>
#include <QScreen>

namespace {

constexpr double usualDotsPerInch = 96.0;

} // namespace

UT_Screen UT_Screen::getMainScreen()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return UT_Screen(screen ? screen->logicalDotsPerInch() / usualDotsPerInch : 1.0);
}
