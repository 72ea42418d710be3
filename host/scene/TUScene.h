// SPDX-License-Identifier: MIT
#pragma once

#include "host/scene/SC_SceneCommon.h"

#include <memory>

class MO_AbstractModuleVisitor;
class MO_GroupModule;
class TUSceneChangeManager;

/// A scene: a root group, which owns all nodes, and the change manager that its changes are told
/// through.
class HOST_EXPORT TUScene : public SC_SceneCommon
{
public:
    /// The change manager is not owned and must outlive the scene; null keeps the scene silent.
    TUScene(const QString& name, TUSceneChangeManager* changeManager);
    ~TUScene() override;

    MO_GroupModule* rootGroup() const;
    TUSceneChangeManager* changeManager() const;

    /// Visits every module below the root group, each before what it holds, in order. The visitor
    /// must not add or remove nodes.
    void accept(MO_AbstractModuleVisitor& visitor) const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
