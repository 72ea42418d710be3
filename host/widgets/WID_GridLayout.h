// SPDX-License-Identifier: MIT
#pragma once

#include <QGridLayout>

/// A grid without gaps: what is put into it touches.
class WID_GridLayout : public QGridLayout
{
public:
    /// Takes its place in the parent; null leaves it for another layout.
    explicit WID_GridLayout(QWidget* parent = nullptr)
        : QGridLayout(parent)
    {
        setContentsMargins(0, 0, 0, 0);
        setSpacing(0);
    }
};
