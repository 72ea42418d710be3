// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>
#include <OpenSG/OSGRefPtr.h>

/// The pointers to nodes and cores, for headers that pass them on without looking inside.
namespace osg {

class AttachmentContainer;
class Node;
class NodeCore;

typedef FCPtr<FieldContainerPtr, AttachmentContainer> AttachmentContainerPtr;
typedef FCPtr<AttachmentContainerPtr, Node> NodePtr;
typedef FCPtr<AttachmentContainerPtr, NodeCore> NodeCorePtr;
typedef RefPtr<NodePtr> NodeRefPtr;
typedef RefPtr<NodeCorePtr> NodeCoreRefPtr;

} // namespace osg
