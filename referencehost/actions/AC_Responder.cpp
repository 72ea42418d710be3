// SPDX-License-Identifier: MIT
#include "host/actions/AC_Responder.h"

AC_Responder::~AC_Responder() = default;
