// SPDX-License-Identifier: MIT
#pragma once

#include "graphview/GV_GraphUiInfo.h"
#include "host/scene/MO_ElementModule.h"

#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

class QRandomGenerator;

/// 3D model elements and the graph that shows them, without a scene or a view around them.
class ShownModels
{
public:
    GV_GraphUiInfo graph;

    /// Makes an element that shows the model on all frames. It is not in the graph yet.
    MO_ElementModule* add(const QString& name, const CEL_SharedPtr<TD_CelVq3d>& model);
    /// Destroys the element; the graph is not told.
    void remove(const MO_ElementModule* element);

    /// What to update the graph with so that it shows these elements.
    static GV_GraphUiInfo::ModelList models(const std::vector<MO_ElementModule*>& elements);
    /// Updates the graph with them.
    bool show(const std::vector<MO_ElementModule*>& elements, const MO_ElementModule* visible,
              bool extendedDisplay = false);
    /// An element with this model, shown alone and open.
    MO_ElementModule* showOnly(const QString& name, const CEL_SharedPtr<TD_CelVq3d>& model,
                               bool extendedDisplay = false);

    GV_UiHeaderNode* header(int ix) const;
    /// The first node of the visible tree with this name, its header included; null if none.
    GV_UiNode* node(const QString& name) const;
    /// The visible tree as outline() writes it; empty when there is none.
    QString tree() const;
    /// The selected keys as "parent/node", in alphabetical order.
    QStringList selected();

private:
    std::vector<std::unique_ptr<MO_ElementModule>> _elements;
};

/// A tree in one line: each node's name, followed by its children in round brackets if it has any.
QString outline(const GV_UiNode* root);

/// Every node of a tree, each before its children. A null root has none.
std::vector<GV_UiNode*> preOrder(GV_UiNode* root);

/// Folds some nodes of a tree and opens the others, at random, without laying anything out.
void foldAtRandom(QRandomGenerator& random, GV_UiNode* root);
