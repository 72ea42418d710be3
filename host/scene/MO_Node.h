// SPDX-License-Identifier: MIT
#pragma once

#include "host/scene/MO_Module.h"
#include "host/scene/MO_Port.h"
#include "host/scene/SC_SceneMetrics.h"
#include "host/scene/UT_SharedWeakPtr.h"

#include <memory>
#include <vector>

class AT_Attr;
class MO_GroupModule;
class SC_SceneCommon;
class SLB_NodeInterface;
class SL_Selection;
class TUScene;

/// A module with a name and a place in the node network. A node belongs to the group that holds
/// it, and through that group to a scene; a detached node has neither.
///
/// Setters take effect at once and note the change with the scene's change manager, which tells
/// listeners when it is next asked to. They cannot be undone: commands are made of them.
class HOST_EXPORT MO_Node : public MO_Module, public UT_SharedWeakTarget
{
public:
    ~MO_Node() override;

    QString instanceName() const;
    /// The name as it is shown to the user.
    QString displayName() const;
    void setInstanceName(const QString& name);

    /// The place in the node network, in its units; y grows downwards.
    double x() const;
    double y() const;
    void setX(double x);
    void setY(double y);

    /// @name The network
    /// @{
    int nInPorts() const;
    int nOutPorts() const;
    /// Null when there is no port of that index.
    MO_Port* inPort(int index) const;
    MO_Port* outPort(int index) const;
    /// Adds a port behind those that are there.
    MO_Port* addPort(MO_Port::Direction direction);
    /// @}

    /// @name Attributes, in the order in which the kind of node declares them
    /// @{
    using AttrIterator = std::vector<AT_Attr*>::const_iterator;
    AttrIterator attrsBegin() const;
    AttrIterator attrsEnd() const;
    /// @}

    SC_SceneMetrics sceneMetrics() const;

    /// Lets a new node know its scene, and make what it needs there, before a group takes it in.
    void initialize(TUScene* scene);

    /// Whether what the node makes is out of date.
    bool isDirty() const;
    void setDirty(bool dirty = true);

    /// The group that holds the node; null while detached and for a root group.
    MO_GroupModule* parentGroup() const;

    /// The scene that the node is part of; null while detached.
    TUScene* scene() const;
    SC_SceneCommon* sceneCommon() const;

    /// The node's selection interface: non-null exactly while the node is in a selection, which
    /// owns it.
    SLB_NodeInterface* selInterface() const;
    bool selected() const { return selInterface() != nullptr; }

protected:
    explicit MO_Node(const QString& instanceName);

    /// The node takes ownership.
    void addAttr(std::unique_ptr<AT_Attr> attr);

    /// Called when the node enters a scene or leaves it (null), for each node by itself.
    virtual void setScene(TUScene* scene);

private:
    friend class MO_GroupModule;
    friend class SL_Selection;
    friend class TUScene;
    struct Private;
    std::unique_ptr<Private> d;
};
