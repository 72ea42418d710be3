// SPDX-License-Identifier: MIT
#include "host/actions/AC_ActionData.h"

AC_ActionData::AC_ActionData() = default;

AC_ActionData::~AC_ActionData() = default;
