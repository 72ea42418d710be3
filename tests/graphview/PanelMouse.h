// SPDX-License-Identifier: MIT
#pragma once

#include "graphview/GV_GraphXViewQt.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QTest>

/// A mouse on a panel at rest. Points are in model units; modifiers are those held during the
/// event.
class PanelMouse
{
public:
    explicit PanelMouse(GV_GraphXViewQt& panel)
        : _panel(panel)
    {
    }

    /// Shows the panel without the overview, which would take some of the events; false when it
    /// does not appear.
    bool show()
    {
        _panel.resize(1000, 700);
        if (_panel.isVisible())
            return true;
        _panel.show();
        _panel.onActionShowHideWorldView();
        return QTest::qWaitForWindowExposed(&_panel);
    }

    /// What the panel makes of the press.
    GV_GraphXViewQt::eMouseAction press(QPoint at, Qt::KeyboardModifiers held = Qt::NoModifier)
    {
        QTest::mousePress(_panel.viewport(), Qt::LeftButton, held, toPixel(at));
        return _panel.mouseAction();
    }
    void move(QPoint to)
    {
        const QPoint pixel = toPixel(to);
        QMouseEvent event(QEvent::MouseMove, pixel, _panel.viewport()->mapToGlobal(pixel),
                          Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(_panel.viewport(), &event);
    }
    void release(QPoint at, Qt::KeyboardModifiers held = Qt::NoModifier)
    {
        QTest::mouseRelease(_panel.viewport(), Qt::LeftButton, held, toPixel(at));
    }

    GV_GraphXViewQt::eMouseAction click(QPoint at, Qt::KeyboardModifiers held = Qt::NoModifier)
    {
        const GV_GraphXViewQt::eMouseAction action = press(at, held);
        release(at, held);
        return action;
    }
    void drag(QPoint from, QPoint to, Qt::KeyboardModifiers held = Qt::NoModifier)
    {
        press(from, held);
        move(to);
        release(to, held);
    }

private:
    /// At rest the model's origin stands two pixels inside the corner.
    static QPoint toPixel(QPoint point) { return point + QPoint(2, 2); }

    GV_GraphXViewQt& _panel;
};
