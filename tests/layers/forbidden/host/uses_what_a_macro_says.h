// SPDX-License-Identifier: MIT
#pragma once

#include HOST_HEADER
