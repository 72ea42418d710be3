// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QSet>

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
    QSet<int> _keys;
};
