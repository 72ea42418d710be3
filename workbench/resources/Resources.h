// SPDX-License-Identifier: MIT
#pragma once

/// Makes the workbench's icons, themes and action definitions readable below ":/workbench".
void initWorkbenchResources();
