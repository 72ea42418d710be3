// SPDX-License-Identifier: MIT

#include "benchmarks/workbench/StepWatch.h"

#include <QAbstractEventDispatcher>
#include <algorithm>
#include <ctime>

namespace {

double workedMilliseconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

} // namespace

StepWatch::StepWatch()
    : _last(workedMilliseconds())
{
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            &StepWatch::look);
}

double StepWatch::longestInMilliseconds()
{
    look();
    return _longest;
}

void StepWatch::look()
{
    const double now = workedMilliseconds();
    _longest = std::max(_longest, now - _last);
    _last = now;
}
