// SPDX-License-Identifier: MIT
#pragma once

#include <assimp/ProgressHandler.hpp>

class ImportProgress;

/// Hands on the progress of the reading library. Its readers ignore the answer that should stop
/// them, so a cancelled import is stopped by an exception, which they turn into a failure.
class ImportProgressHandler : public Assimp::ProgressHandler
{
public:
    /// The progress may be null and must outlive this object. Reading ends at the given fraction.
    ImportProgressHandler(ImportProgress* progress, double end);

    bool Update(float fraction) override;

private:
    ImportProgress* _progress;
    double _end;
    double _reported = 0.0;
};
