// SPDX-License-Identifier: MIT
#pragma once

#include "host/models/TD_CelVq3d.h"
#include "subnodetree/SGV_GraphModel.h"
#include "subnodetree/SubNodeFilterProxyModel.h"
#include "tests/graphview/ModelBuilder.h"
#include "tests/subnodetree/RowsOf.h"

/// A proxy on a model.
struct Filtered
{
    Filtered() { proxy.setSourceModel(&model); }
    explicit Filtered(const ModelBuilder::Part& root)
        : Filtered()
    {
        show(ModelBuilder::model(root));
    }
    void show(const CEL_SharedPtr<TD_CelVq3d>& shown) { model.setRootNode(shown->rootNodePtr()); }
    QString filter(const QString& text)
    {
        proxy.setFilterFixedString(text);
        return RowsOf::text(proxy);
    }

    SGV_GraphModel model;
    SubNodeFilterProxyModel proxy;
};

/// Arms and a leg, one of the arms below a group.
inline ModelBuilder::Part limbs()
{
    using namespace ModelBuilder;
    return key("Body", {key("LeftArm", {key("Hand"), key("Pin")}), key("Leg", {key("Foot")}),
                        group("g", {key("RightArm")})});
}
