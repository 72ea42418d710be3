// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QObject>

/// Finds the longest time during which the application did not come back to its event loop.
class StepWatch : public QObject
{
public:
    StepWatch();

    double longestInMilliseconds() const { return static_cast<double>(_longest) / 1e6; }

private:
    void awake();
    void aboutToBlock();

    QElapsedTimer _sinceAwake;
    qint64 _longest = 0;
};
