// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QObject>

class QKeyEvent;

/// Follows which keys are held down, from the key events of the whole application.
class PressedKeys : public QObject
{
public:
    PressedKeys();

    /// The key is a Qt::Key.
    bool isPressed(int key) const { return _keys.contains(key); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void release(const QKeyEvent& event);

    /// With the scan code of each, which does not depend on modifiers; 0 where there is none.
    QHash<int, quint32> _keys;
};
