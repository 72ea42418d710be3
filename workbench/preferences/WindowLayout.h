// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QSize>

class QMainWindow;
class QSettings;

/// Keeps a window's size, place, docks and tool bars from run to run. Docks and tool bars are known
/// again by their object names.
class WindowLayout
{
public:
    /// Takes the layout as it is for the one to return to, so make it when everything is in place
    /// and before it is shown. Window and store are not owned and must outlive it; without a store
    /// nothing is kept. A version is a number for what docks and tool bars there are: a layout that
    /// was stored with another one does not fit.
    WindowLayout(QMainWindow& window, QSettings* store, int version);

    /// Brings the stored layout back, into sight if its screen is gone. False, and nothing done,
    /// where none is stored that fits and is whole.
    bool restore();
    void save() const;
    /// Returns to the size and the docks that the window had at first; it stays where it is as far
    /// as it fits on the screen there.
    void reset();

private:
    void bringIntoSight();

    QMainWindow& _window;
    QSettings* _store;
    int _version;
    QSize _firstSize;
    QByteArray _firstState;
};
