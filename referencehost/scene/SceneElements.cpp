// SPDX-License-Identifier: MIT
#include "referencehost/scene/SceneElements.h"

#include "host/scene/MO_ModuleVisitor.h"
#include "host/scene/TUScene.h"

namespace {

class ElementCollector : public MO_ModuleVisitor
{
public:
    using MO_ModuleVisitor::visit;
    void visit(MO_ElementModule* element) override { found.push_back(element); }

    std::vector<MO_ElementModule*> found;
};

} // namespace

std::vector<MO_ElementModule*> elementsOf(const TUScene* scene)
{
    ElementCollector elements;
    if (scene)
        scene->accept(elements);
    return elements.found;
}
