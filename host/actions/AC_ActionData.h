// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

#include <QString>
#include <optional>

/// How an action presents itself: what a validator decides, and what menus and tool bars show.
class HOST_EXPORT AC_ActionData
{
public:
    AC_ActionData();
    virtual ~AC_ActionData();

    /// True unless a validator said otherwise.
    bool isEnabled() const { return _enabled; }
    void setEnabled(bool enabled) { _enabled = enabled; }

    /// Nothing when the action is not one that is on or off.
    std::optional<bool> isChecked() const { return _checked; }
    void setChecked(bool checked) { _checked = checked; }

    /// Empty when the action keeps the text of its definition.
    QString text() const { return _text; }
    void setText(const QString& text) { _text = text; }

private:
    bool _enabled = true;
    std::optional<bool> _checked;
    QString _text;
};
