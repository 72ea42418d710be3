// SPDX-License-Identifier: MIT
#pragma once

#include <QVBoxLayout>

/// A column of widgets that touch each other and the edges.
class WID_VBoxLayout : public QVBoxLayout
{
public:
    /// Takes its place in the parent; null leaves it for another layout.
    explicit WID_VBoxLayout(QWidget* parent = nullptr)
        : QVBoxLayout(parent)
    {
        setContentsMargins(0, 0, 0, 0);
        setSpacing(0);
    }
};
