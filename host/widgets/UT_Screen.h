// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

/// A screen, as far as sizes on it are concerned.
class HOST_EXPORT UT_Screen
{
public:
    /// The screen that the application starts on.
    static UT_Screen getMainScreen();

    /// By what sizes in pixels are to be multiplied, so that they look as large as on a screen of
    /// 96 dots an inch. Where the platform scales by itself, that is not counted again.
    double scaleFactor() const { return _scaleFactor; }

private:
    explicit UT_Screen(double scaleFactor)
        : _scaleFactor(scaleFactor)
    {
    }

    double _scaleFactor;
};
