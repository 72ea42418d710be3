// SPDX-License-Identifier: MIT

#include "workbench/views/GraphViewKeys.h"

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_GraphXViewQt.h"
#include "graphview/GV_TreeWalk.h"
#include "host/actions/AC_Manager.h"
#include "host/models/AT_ModelNodeKey.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/SC_SessionContext.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"

#include <QAction>
#include <QShortcut>

GraphViewKeys::GraphViewKeys(GV_GraphXViewQt* view, SC_SessionContext& session)
    : QObject(view)
    , _view(view)
    , _session(session)
{
    addKey(Qt::Key_Left, QStringLiteral("SUBNODE_PARENT"));
    addKey(Qt::Key_Right, QStringLiteral("SUBNODE_CHILD"));
    addKey(Qt::Key_Down, QStringLiteral("SUBNODE_NEXT"));
    addKey(Qt::Key_Up, QStringLiteral("SUBNODE_PREVIOUS"));
}

void GraphViewKeys::addKey(int key, const QString& actionId)
{
    QAction* action = _session.actionManager()->action(actionId);
    if (!action)
        return;
    auto* shortcut = new QShortcut(QKeySequence(key), _view);
    // Lists and fields need their arrow keys themselves.
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, [this, action] { perform(action); });
}

void GraphViewKeys::perform(QAction* action)
{
    if (selectFirstSubnode())
        return;
    action->trigger();
    if (_view->isVisible())
        _view->onActionFrameSelected();
}

bool GraphViewKeys::selectFirstSubnode()
{
    const GV_GraphUiInfo& graph = *_view->controller()->uiInfo();
    const MO_ElementModule* element = graph.visibleGraphModelNode();
    SLB_NodeInterface* selected = element ? element->selInterface() : nullptr;
    if (!selected || selected->hasSubSelection())
        return false;
    GV_TreeWalk walk(graph.rootUiNode());
    while (const GV_UiNode* node = walk.next()) {
        int id = 0;
        if (node->isSgNode() && node->isEditable() &&
            element->getSelIdForNodeKey(AT_ModelNodeKey(node->name()), id)) {
            const SL_Selection::BatchSelectionModeScope scope(_session.selection());
            selected->subSelect(id, false);
            return true;
        }
    }
    return false;
}
