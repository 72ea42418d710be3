// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractScrollArea>
#include <QCoreApplication>
#include <QEvent>
#include <QObject>

/// Counts how often the viewport of a shown view is painted.
class RepaintCounter : public QObject
{
public:
    explicit RepaintCounter(QAbstractScrollArea& view)
    {
        view.viewport()->installEventFilter(this);
        settle();
    }

    /// How many paintings an action brings about, at once or as soon as events are handled.
    template <class Action>
    int countDuring(const Action& action)
    {
        settle();
        _count = 0;
        action();
        settle();
        return _count;
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++_count;
        return QObject::eventFilter(watched, event);
    }

private:
    /// Requests to repaint are posted, and handling one may post another.
    static void settle()
    {
        for (int i = 0; i < 10; ++i) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
    }

    int _count = 0;
};
