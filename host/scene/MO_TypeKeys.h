// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The type name of the nodes that expose one subnode of a 3D model to the network.
inline const QString STRING_KEY_3D_KINEMATIC_OUTPUT = QStringLiteral("3D_KINEMATIC_OUTPUT");
