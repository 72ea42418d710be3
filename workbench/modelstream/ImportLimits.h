// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// What reading one file may cost before it is given up. All of them must be positive.
struct ImportLimits
{
    /// In bytes, for the importing program as well as for the model that comes back.
    qint64 memory = standardMemory();
    /// In seconds of work of a processor.
    int workTime = 300;
    /// In seconds by the clock, for files that keep the program waiting.
    int wholeTime = 900;

    /// Enough for any sensible model and never all that the machine has.
    static qint64 standardMemory();
};
