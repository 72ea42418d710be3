// SPDX-License-Identifier: MIT
#pragma once

#include <assimp/scene.h>
