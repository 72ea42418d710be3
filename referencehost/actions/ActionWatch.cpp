// SPDX-License-Identifier: MIT
#include "referencehost/actions/ActionWatch.h"

#include "host/actions/AC_Manager.h"
#include "host/actions/AC_Responder.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

ActionWatch::ActionWatch(AC_Manager& manager)
    : _manager(manager)
{
    _idle.setSingleShot(true);
    _idle.setInterval(0);
    connect(&_idle, &QTimer::timeout, this, [this] { _manager.validateActions(); });
    if (auto* application = qobject_cast<QApplication*>(QCoreApplication::instance())) {
        application->installEventFilter(this);
        connect(application, &QApplication::focusChanged, this,
                [this](QWidget*, QWidget* now) { takeFocus(now); });
    }
}

void ActionWatch::invalidate()
{
    _idle.start();
}

void ActionWatch::setValid()
{
    _idle.stop();
}

bool ActionWatch::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonRelease:
    case QEvent::KeyRelease:
        // Views keep state of their own, for one which branches are folded, and tell nobody.
        invalidate();
        break;
    case QEvent::ShortcutOverride:
        // Comes before the key is looked up among the shortcuts, where a disabled action is
        // passed over.
        if (_idle.isActive())
            _manager.validateActions();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void ActionWatch::takeFocus(QWidget* widget)
{
    for (; widget; widget = widget->parentWidget()) {
        if (auto* responder = dynamic_cast<AC_Responder*>(widget)) {
            _manager.setFocusedResponder(responder);
            return;
        }
    }
}
