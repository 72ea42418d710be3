// SPDX-License-Identifier: MIT
#include "host/layout/TULayoutView.h"

TULayoutView::TULayoutView(const QString& viewName)
    : _viewName(viewName)
{
}

TULayoutView::~TULayoutView() = default;
