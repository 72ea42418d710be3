// SPDX-License-Identifier: MIT
#include "workbench/import/ImportProgressHandler.h"

#include "workbench/modelstream/ImportProgress.h"

#include <algorithm>
#include <stdexcept>

ImportProgressHandler::ImportProgressHandler(ImportProgress* progress, double end)
    : _progress(progress)
    , _end(end)
{
}

bool ImportProgressHandler::Update(float fraction)
{
    if (!_progress)
        return true;
    if (_progress->isCancelled())
        throw std::runtime_error("cancelled");
    // Readers give -1 when they do not know, and some pass 1 on the way.
    const double now = std::min(static_cast<double>(fraction), 1.0) * _end;
    if (now > _reported) {
        _reported = now;
        _progress->report(now);
    }
    return true;
}
