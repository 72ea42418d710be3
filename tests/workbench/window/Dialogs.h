// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QWidget>
#include <deque>
#include <functional>

/// A user who answers the message boxes and file dialogs of a test, in the order in which the
/// answers were given. One that nobody expects is cancelled and noted, so that no test waits for it
/// forever.
class Dialogs
{
public:
    using Answer = std::function<void(QWidget&)>;

    Dialogs();

    void expect(const Answer& answer) { _answers.push_back(answer); }
    /// Whether every answer was given, and no other dialog came up.
    bool areDone() const { return _answers.empty() && _unexpected.isEmpty(); }
    /// What the dialogs said, one string for each.
    QStringList texts() const { return _texts; }
    QStringList unexpected() const { return _unexpected; }

    /// Clicks a button of a message box.
    static Answer click(const QString& button);
    /// The same by keys alone.
    static Answer press(const QString& button);
    static Answer escape();
    /// Writes the path into a file dialog and presses Return.
    static Answer choose(const QString& path);

private:
    void look();

    QTimer _timer;
    /// The dialogs that are being answered.
    QList<QPointer<QWidget>> _busy;
    std::deque<Answer> _answers;
    QStringList _texts;
    QStringList _unexpected;
};
