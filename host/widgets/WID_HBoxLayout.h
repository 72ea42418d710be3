// SPDX-License-Identifier: MIT
#pragma once

#include <QHBoxLayout>

/// A row of widgets.
class WID_HBoxLayout : public QHBoxLayout
{
public:
    /// Takes its place in the parent; null leaves it for another layout.
    explicit WID_HBoxLayout(QWidget* parent = nullptr)
        : QHBoxLayout(parent)
    {
    }

    /// The same margin on all sides, in pixels.
    void setMargin(int margin) { setContentsMargins(margin, margin, margin, margin); }
};
