// SPDX-License-Identifier: MIT

#include "workbench/preferences/WindowLayout.h"

#include <QCryptographicHash>
#include <QGuiApplication>
#include <QMainWindow>
#include <QRegion>
#include <QScreen>
#include <QSettings>
#include <algorithm>

namespace {

const QString& versionKey()
{
    static const QString key = QStringLiteral("WindowLayout/version");
    return key;
}
const QString& geometryKey()
{
    static const QString key = QStringLiteral("WindowLayout/geometry");
    return key;
}
const QString& stateKey()
{
    static const QString key = QStringLiteral("WindowLayout/state");
    return key;
}
const QString& checksumKey()
{
    static const QString key = QStringLiteral("WindowLayout/checksum");
    return key;
}

/// A damaged state can pass for a whole one and then tear the docks apart.
QByteArray checksum(const QByteArray& geometry, const QByteArray& state)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(geometry);
    hash.addData(state);
    return hash.result().toHex();
}

} // namespace

WindowLayout::WindowLayout(QMainWindow& window, QSettings* store, int version)
    : _window(window)
    , _store(store)
    , _version(version)
    , _firstSize(window.size())
    , _firstState(window.saveState(version))
{
}

bool WindowLayout::restore()
{
    if (!_store || _store->value(versionKey()).toString() != QString::number(_version))
        return false;
    const QByteArray geometry = _store->value(geometryKey()).toByteArray();
    const QByteArray state = _store->value(stateKey()).toByteArray();
    if (_store->value(checksumKey()).toByteArray() != checksum(geometry, state))
        return false;
    if (!_window.restoreGeometry(geometry) || !_window.restoreState(state, _version))
        return false;
    bringIntoSight();
    return true;
}

void WindowLayout::save() const
{
    if (!_store)
        return;
    const QByteArray geometry = _window.saveGeometry();
    const QByteArray state = _window.saveState(_version);
    _store->setValue(versionKey(), _version);
    _store->setValue(geometryKey(), geometry);
    _store->setValue(stateKey(), state);
    _store->setValue(checksumKey(), checksum(geometry, state));
}

void WindowLayout::reset()
{
    _window.setWindowState(_window.windowState() & ~(Qt::WindowMaximized | Qt::WindowFullScreen));
    _window.resize(_firstSize);
    bringIntoSight();
    _window.restoreState(_firstState, _version);
}

void WindowLayout::bringIntoSight()
{
    if (_window.isMaximized() || _window.isFullScreen())
        return;
    const QRect frame = _window.frameGeometry();
    // A window may well lie across several screens.
    QRegion outOfSight(frame);
    for (const QScreen* each : QGuiApplication::screens())
        outOfSight -= each->availableGeometry();
    if (outOfSight.isEmpty())
        return;
    const QScreen* screen = QGuiApplication::screenAt(frame.center());
    const QRect room = (screen ? screen : _window.screen())->availableGeometry();
    const QSize border = frame.size() - _window.size();
    const QSize size = frame.size().boundedTo(room.size());
    if (size != frame.size())
        _window.resize(size - border);
    const QPoint corner(std::clamp(frame.x(), room.left(), room.right() + 1 - size.width()),
                        std::clamp(frame.y(), room.top(), room.bottom() + 1 - size.height()));
    if (corner != frame.topLeft())
        _window.move(corner);
}
