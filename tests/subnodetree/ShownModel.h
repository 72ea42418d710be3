// SPDX-License-Identifier: MIT
#pragma once

#include "host/models/TD_CelVq3d.h"
#include "subnodetree/SGV_GraphItem.h"
#include "subnodetree/SGV_GraphModel.h"
#include "tests/graphview/ModelBuilder.h"

inline AT_ModelNodeKey keyOf(const char* name)
{
    return AT_ModelNodeKey(QString::fromUtf8(name));
}

/// A model together with what it shows.
struct ShownModel
{
    explicit ShownModel(const CEL_SharedPtr<TD_CelVq3d>& shownCel, bool debugMode = false)
        : cel(shownCel)
    {
        model.setDebugMode(debugMode);
        model.setRootNode(cel->rootNodePtr());
    }
    explicit ShownModel(const ModelBuilder::Part& root, bool debugMode = false)
        : ShownModel(ModelBuilder::model(root), debugMode)
    {
    }

    QModelIndex find(const char* name) const { return model.findIndex(keyOf(name)); }
    QVariant data(const char* name, int role) const { return find(name).data(role); }
    const SGV_GraphItem* item(const char* name) const
    {
        return static_cast<const SGV_GraphItem*>(find(name).internalPointer());
    }

    CEL_SharedPtr<TD_CelVq3d> cel;
    SGV_GraphModel model;
};

/// An arm with a hand, and a base that is no subnode, with a foot.
inline ModelBuilder::Part armAndBase()
{
    using namespace ModelBuilder;
    return group("scene", {key("arm", {key("hand", {geometry("skin")}), key("pin")}),
                           transform("base", {geometry("plate"), key("foot")})});
}
