// SPDX-License-Identifier: MIT

#include "benchmarks/workbench/StepWatch.h"

#include <QAbstractEventDispatcher>
#include <algorithm>

StepWatch::StepWatch()
{
    const QAbstractEventDispatcher* dispatcher = QAbstractEventDispatcher::instance();
    connect(dispatcher, &QAbstractEventDispatcher::awake, this, &StepWatch::awake);
    connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, &StepWatch::aboutToBlock);
    _sinceAwake.start();
}

void StepWatch::awake()
{
    aboutToBlock();
    _sinceAwake.restart();
}

void StepWatch::aboutToBlock()
{
    _longest = std::max(_longest, _sinceAwake.nsecsElapsed());
}
