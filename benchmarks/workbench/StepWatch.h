// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

/// Finds the longest work that the application did between two looks at its event loop, in the
/// processor's time of the calling thread: waiting for others is no work.
class StepWatch : public QObject
{
public:
    StepWatch();

    /// With what was done since the last look.
    double longestInMilliseconds();

private:
    void look();

    double _last;
    double _longest = 0.0;
};
