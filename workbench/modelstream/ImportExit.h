// SPDX-License-Identifier: MIT
#pragma once

/// How the importing program ends. Whatever else happens to it is a crash.
enum ImportExit
{
    /// The answer is complete, be it a model or a message.
    ImportDone = 0,
    ImportMisused = 2,
    ImportOutOfMemory = 3,
    ImportOutOfTime = 4,
    /// Nobody takes the answer, or it cannot be put into words.
    ImportUnheard = 5
};
