// SPDX-License-Identifier: MIT
#include "ImportProgressHandler.h"

#include "ImportProgress.h"

#include <algorithm>
#include <stdexcept>

ImportProgressHandler::ImportProgressHandler(ImportProgress* progress, double end)
    : m_progress(progress)
    , m_end(end)
{
}

bool ImportProgressHandler::Update(float fraction)
{
    if (!m_progress)
        return true;
    if (m_progress->isCancelled())
        throw std::runtime_error("cancelled");
    // Readers give -1 when they do not know, and some pass 1 on the way.
    const double now = std::min(static_cast<double>(fraction), 1.0) * m_end;
    if (now > m_reported) {
        m_reported = now;
        m_progress->report(now);
    }
    return true;
}
