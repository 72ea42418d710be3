// SPDX-License-Identifier: MIT
#include "host/models/TD_Model3DUtils.h"

#include "host/models/TD_CelVq3d.h"
#include "host/models/TD_Vq3dCelGetter.h"
#include "host/scene/MO_ElementModule.h"
#include "referencehost/models/ModelCopy.h"

#include <algorithm>
#include <ranges>
#include <set>

namespace {

/// A copy that was made, for as long as its original lives.
struct KeptCopy
{
    std::weak_ptr<TD_CelVq3d> original;
    CC_Transformation transformation;
    double modelUnits;
    CEL_SharedPtr<TD_CelVq3d> copy;
};

/// Enough for the models that views show at a time.
constexpr std::size_t mostKeptCopies = 8;

bool doTheSame(const CC_Transformation& a, const CC_Transformation& b)
{
    return std::ranges::equal(a.deformations(), b.deformations(),
                              [](const auto& x, const auto& y) { return *x == *y; });
}

} // namespace

CEL_SharedPtr<TD_CelVq3d> TD_Model3DUtils::get3dModel(const MO_BaseContext& context, MO_Node* node)
{
    if (!node)
        return nullptr;
    TD_Vq3dCelGetter getter(context);
    node->accept(getter);
    return getter.celPtr();
}

AT_ModelData* TD_Model3DUtils::getModelMetadata(const MO_BaseContext& context, const MO_Node* node)
{
    const auto* element = dynamic_cast<const MO_ElementModule*>(node);
    return element ? element->seqMeta(context.frame()) : nullptr;
}

MO_ElementModule* TD_Model3DUtils::getParentElement(MO_Node* node)
{
    // A network may run in a ring.
    std::set<const MO_Node*> seen;
    while (node && seen.insert(node).second) {
        const MO_Port* input = node->inPort(0);
        if (auto* element = dynamic_cast<MO_ElementModule*>(node))
            return element;
        const MO_Port* source = input ? input->srcPort() : nullptr;
        node = source ? source->node() : nullptr;
    }
    return nullptr;
}

std::shared_ptr<const CC_Deformation>
TD_Model3DUtils::createSubTransformation(const AT_ModelData& data)
{
    return std::make_shared<const CC_Deformation>(data);
}

CEL_SharedPtr<TD_CelVq3d>
TD_Model3DUtils::getTransformed3dModel(const CEL_SharedPtr<TD_CelVq3d>& model,
                                       const CC_Transformation& transformation, double modelUnits)
{
    if (!model || model->rootNodePtr() == osg::NullFC)
        return model;
    static std::vector<KeptCopy> kept;
    std::erase_if(kept, [](const KeptCopy& each) { return each.original.expired(); });
    for (const KeptCopy& each : kept) {
        if (each.original.lock() == model && each.modelUnits == modelUnits &&
            doTheSame(each.transformation, transformation))
            return each.copy;
    }
    const osg::NodeRefPtr root = transformedCopy(model->rootNodePtr(), transformation, modelUnits);
    auto copy = std::make_shared<TD_CelVq3d>(osg::NodePtr(root));
    if (kept.size() == mostKeptCopies)
        kept.erase(kept.begin());
    kept.push_back({model, transformation, modelUnits, copy});
    return copy;
}
