// SPDX-License-Identifier: MIT
#include "referencehost/services/Diagnostics.h"

#include <cstdio>
#include <utility>

namespace {

Diagnostics::Sink& currentSink()
{
    static Diagnostics::Sink sink;
    return sink;
}

} // namespace

void Diagnostics::write(const QString& text)
{
    if (const Sink& sink = currentSink())
        sink(text);
    else
        std::fputs(qUtf8Printable(text), stderr);
}

Diagnostics::Sink Diagnostics::setSink(Sink sink)
{
    return std::exchange(currentSink(), std::move(sink));
}
