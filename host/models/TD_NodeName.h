// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

#include <OpenSG/OSGNode.h>
#include <QString>

/// The name of a scene-graph node as text; empty when the node is null or has no name. Names are
/// bytes: a name is read as UTF-8, or all of it as Latin-1 where it is not UTF-8, so that nothing
/// of it is lost. A key of a subnode must always be made from this text.
HOST_EXPORT QString TD_nodeName(const osg::NodePtr& node);
