// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/preferences/PreferenceKey.h"

#include <QVariant>
#include <QWidget>
#include <functional>

/// What a preference is edited with. A value; the widget belongs to its parent.
struct PreferenceControl
{
    QWidget* widget = nullptr;
    /// Shows a value without calling back. One out of range shows as what comes closest.
    std::function<void(const QVariant&)> show;

    /// The control that fits the kind of the preference. It calls back for what the user enters,
    /// not for what it is told to show.
    static PreferenceControl create(const PreferenceKey& key, QWidget* parent,
                                    const std::function<void(const QVariant&)>& edited);
};
