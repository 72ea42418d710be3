// SPDX-License-Identifier: MIT
#pragma once

/// Whether the user holds the key that makes a click or a marquee add to the selection, now.
bool GV_isExtendingSelection();
