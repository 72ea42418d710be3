// SPDX-License-Identifier: MIT
#pragma once

/// How many processes there are that this one has started, those included that have ended and that
/// nobody has waited for.
int childProcesses();
