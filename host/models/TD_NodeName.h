// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

#include <OpenSG/OSGNode.h>
#include <QString>

/// The name of a scene-graph node as text; empty when the node is null or has no name. Names are
/// bytes: they are read as UTF-8, and as Latin-1 where they are not UTF-8, so that no two names
/// ever read alike. A key of a subnode must always be made from this text.
HOST_EXPORT QString TD_nodeName(const osg::NodePtr& node);
