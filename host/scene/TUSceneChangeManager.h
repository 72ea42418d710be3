// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"
#include "host/scene/TUNodeSet.h"
#include "host/scene/TUScene.h"

#include <QObject>
#include <memory>

class MO_Node;

/// Tells listeners what changed in the session. Changes are collected by the emit functions and
/// told by notify(): each kind once, with all nodes that it concerns.
class HOST_EXPORT TUSceneChangeManager : public QObject
{
    Q_OBJECT

public:
    explicit TUSceneChangeManager(QObject* parent = nullptr);
    ~TUSceneChangeManager() override;

    /// These note a change and tell nobody yet. A null node is ignored.
    void emitSelectionChanged();
    void emitSubSelectionChanged();
    void emitCurrentFrameChanged();
    void emitCurrentSceneChanged(TUScene* scene);
    void emitNodeChanged(MO_Node* node);
    void emitNodeInstanceNameChanged(MO_Node* node);
    void emitNetworkChanged(MO_Node* node);
    void emitChildrenOrderingChanged(MO_Node* node);

    /// Tells what was noted, in the order of the signals below, and forgets it. What listeners
    /// note meanwhile is told before this returns; a listener that calls it only leaves more for
    /// the call under way. A scene that is gone by then is told as null.
    void notify();
    /// Whether notify() is under way, so that some listeners may not know yet what others know.
    bool isNotifying() const;

signals:
    void currentSceneChanged(TUScene* scene);
    void currentFrameChanged();
    void networkChanged(const TUNodeSet& nodes);
    void childrenOrderingChanged(const TUNodeSet& nodes);
    void nodesChanged(const TUNodeSet& nodes);
    void nodeInstanceNamesChanged(const TUNodeSet& nodes);
    void selectionChanged();
    void subSelectionChanged();

private:
    struct Private;
    std::unique_ptr<Private> d;
};
