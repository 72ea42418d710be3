// SPDX-License-Identifier: MIT
#pragma once

/// Watches an import and may stop it. Both functions are called by the thread that imports, which
/// need not be the one that started the import; so they must not touch widgets.
class ImportProgress
{
public:
    virtual ~ImportProgress() = default;

    /// How much is done: from 0 to 1, never less than before.
    virtual void report(double fraction) = 0;
    /// Asked often, so it should be quick. Once it was true it must stay true.
    virtual bool isCancelled() const = 0;
};
