// SPDX-License-Identifier: MIT
#pragma once

#include "referencehost/session/HostSession.h"
