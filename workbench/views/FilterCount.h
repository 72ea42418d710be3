// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

class SGV_Graph3DView;

/// Shows in the status bar how many rows the filter of a subnode tree keeps: "12 of 840". Without a
/// filter it shows how many there are.
class FilterCount : public QLabel
{
    Q_OBJECT

public:
    /// The view is not owned and must outlive the label.
    FilterCount(const SGV_Graph3DView& view, QWidget* parent);

private:
    void refresh();

    const SGV_Graph3DView& _view;
};
