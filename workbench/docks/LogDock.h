// SPDX-License-Identifier: MIT
#pragma once

#include "referencehost/services/Diagnostics.h"

#include <QDockWidget>

class QPlainTextEdit;

/// Shows what the host writes for those who look into it, and comes up when there is something new.
class LogDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit LogDock(QWidget* parent);
    /// Gives the host's diagnostics back to whoever had them before.
    ~LogDock() override;

    QPlainTextEdit* text() const { return _text; }

private:
    void append(const QString& text);

    QPlainTextEdit* _text;
    Diagnostics::Sink _previous;
};
