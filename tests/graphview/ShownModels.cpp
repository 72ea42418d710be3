// SPDX-License-Identifier: MIT

#include "tests/graphview/ShownModels.h"

#include <QRandomGenerator>

MO_ElementModule* ShownModels::add(const QString& name, const CEL_SharedPtr<TD_CelVq3d>& model)
{
    constexpr int lastFrame = 100000;
    _elements.push_back(std::make_unique<MO_ElementModule>(name));
    _elements.back()->exposeModel(1, lastFrame, model);
    return _elements.back().get();
}

void ShownModels::remove(const MO_ElementModule* element)
{
    std::erase_if(_elements, [element](const auto& owned) { return owned.get() == element; });
}

GV_GraphUiInfo::ModelList ShownModels::models(const std::vector<MO_ElementModule*>& elements)
{
    GV_GraphUiInfo::ModelList list;
    for (MO_ElementModule* element : elements)
        list.emplace_back(element, element ? element->modelAt(1.0) : nullptr);
    return list;
}

bool ShownModels::show(const std::vector<MO_ElementModule*>& elements,
                       const MO_ElementModule* visible, bool extendedDisplay)
{
    return graph.updateGraphUiInfo(models(elements), visible, extendedDisplay);
}

MO_ElementModule* ShownModels::showOnly(const QString& name, const CEL_SharedPtr<TD_CelVq3d>& model,
                                        bool extendedDisplay)
{
    MO_ElementModule* element = add(name, model);
    show({element}, element, extendedDisplay);
    return element;
}

GV_UiHeaderNode* ShownModels::header(int ix) const
{
    // The graph hands its headers out to be read only; tests fold them as the user would.
    std::vector<const GV_UiNode*> headers;
    graph.headerNodes(headers);
    auto* header = dynamic_cast<const GV_UiHeaderNode*>(headers.at(static_cast<std::size_t>(ix)));
    return const_cast<GV_UiHeaderNode*>(header);
}

GV_UiNode* ShownModels::node(const QString& name) const
{
    for (GV_UiNode* node : preOrder(graph.rootUiNode())) {
        if (node->name() == name)
            return node;
    }
    return nullptr;
}

QString ShownModels::tree() const
{
    const GV_UiNode* root = graph.rootUiNode();
    return root ? outline(root) : QString();
}

QStringList ShownModels::selected()
{
    QStringList keys;
    for (const auto& [key, node] : graph.selectedNodes())
        keys.append(key.parentName + u'/' + key.nodeName);
    keys.sort();
    return keys;
}

QString outline(const GV_UiNode* root)
{
    QStringList below;
    for (auto it = root->childrenBegin(); it != root->childrenEnd(); ++it)
        below.append(outline(*it));
    return below.isEmpty() ? root->name()
                           : QStringLiteral("%1(%2)").arg(root->name(), below.join(u' '));
}

std::vector<GV_UiNode*> preOrder(GV_UiNode* root)
{
    std::vector<GV_UiNode*> nodes;
    std::vector<GV_UiNode*> pending{root};
    while (!pending.empty() && pending.back()) {
        nodes.push_back(pending.back());
        pending.pop_back();
        pending.insert(pending.end(), std::make_reverse_iterator(nodes.back()->childrenEnd()),
                       std::make_reverse_iterator(nodes.back()->childrenBegin()));
    }
    return nodes;
}

void foldAtRandom(QRandomGenerator& random, GV_UiNode* root)
{
    for (GV_UiNode* node : preOrder(root))
        node->setCollapsed(random.bounded(6) == 0);
}
