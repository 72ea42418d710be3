// SPDX-License-Identifier: MIT

#include "benchmarks/subnodetree/ShownTree.h"

#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/TUScene.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"
#include "subnodetree/SGV_Graph3DView.h"
#include "subnodetree/SGV_GraphModel.h"

#include <QApplication>
#include <algorithm>
#include <limits>

namespace {

constexpr int lastFrame = std::numeric_limits<int>::max();

} // namespace

ShownTree::ShownTree(const CEL_SharedPtr<TD_CelVq3d>& cel)
{
    TUScene& scene = _session.openScene(QStringLiteral("bench"));
    auto element = std::make_unique<MO_ElementModule>(QStringLiteral("model"));
    _element = element.get();
    element->exposeModel(1, lastFrame, cel);
    _session.context().selection()->add(scene.rootGroup()->insertNode(std::move(element)));
    _view = std::make_unique<SGV_Graph3DView>(_session.context().actionManager(), nullptr,
                                              &_session.context());
    _view->init();
    // A row for every node, so that there are as many as the benchmark says.
    _view->onActionToggleDebugMode();
    _view->resize(300, 800);
    _view->show();
    settle();
}

ShownTree::~ShownTree() = default;

void ShownTree::subSelect(int count)
{
    // The ids of an element count up from 1.
    const auto rows = static_cast<int>(_view->model()->items().size());
    const int step = std::max(1, rows / count);
    for (int id = 1; id <= rows && count > 0; id += step, --count)
        _element->selInterface()->subSelect(id, true);
}

void ShownTree::clearSubSelection()
{
    _element->selInterface()->clearSubSelection();
}

void ShownTree::settle()
{
    QApplication::sendPostedEvents();
    QApplication::processEvents();
}
