// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

#include <QColor>
#include <QIcon>

/// Gives out the icons of the application by the names of their resources.
class HOST_EXPORT WID_IconManager
{
public:
    static WID_IconManager& instance();

    /// The icon, mixed with a little of the colour of what it will lie on, so that it fits in. An
    /// invalid colour leaves it as it is. An unknown name gives a null icon.
    QIcon addBlendedIcon(const QString& resource, const QColor& background);

private:
    WID_IconManager() = default;
};
