// SPDX-License-Identifier: MIT
#pragma once

  #include <unistd.h>
