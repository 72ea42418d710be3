// SPDX-License-Identifier: MIT
#include "referencehost/services/PressedKeys.h"

#include <QGuiApplication>
#include <QKeyEvent>

PressedKeys::PressedKeys()
{
    auto* application = qobject_cast<QGuiApplication*>(QCoreApplication::instance());
    if (!application)
        return;
    application->installEventFilter(this);
    // A key that is let go while another application has the keyboard is never reported here.
    connect(application, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState state) {
                if (state != Qt::ApplicationActive)
                    _keys.clear();
            });
}

void PressedKeys::release(const QKeyEvent& event)
{
    _keys.remove(event.key());
    // With another modifier held than at the press, the same key goes by another name.
    const quint32 scanCode = event.nativeScanCode();
    if (scanCode != 0)
        _keys.removeIf([scanCode](auto it) { return it.value() == scanCode; });
}

bool PressedKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) {
        const auto* key = static_cast<const QKeyEvent*>(event);
        if (event->type() == QEvent::KeyPress)
            _keys.insert(key->key(), key->nativeScanCode());
        else if (!key->isAutoRepeat())
            release(*key);
    }
    return QObject::eventFilter(watched, event);
}
