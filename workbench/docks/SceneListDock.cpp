// SPDX-License-Identifier: MIT

#include "workbench/docks/SceneListDock.h"

#include "host/commands/CO_CommandManager.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUScene.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SL_Selection.h"
#include "referencehost/commands/DeleteNodes.h"
#include "referencehost/commands/MoveNode.h"
#include "referencehost/commands/RenameNode.h"
#include "referencehost/session/HostSession.h"

#include <QAction>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTreeWidget>

namespace {

/// Room for a name and a type.
constexpr int smallestWidth = 160;

} // namespace

SceneListDock::SceneListDock(HostSession& session, QWidget* parent)
    : QDockWidget(tr("Scene"), parent)
    , _session(session)
    , _list(new QTreeWidget(this))
{
    setObjectName(QStringLiteral("SceneListDock"));
    _list->setHeaderLabels({tr("Name"), tr("Type")});
    _list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    _list->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    _list->header()->setStretchLastSection(false);
    _list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    _list->setEditTriggers(QAbstractItemView::EditKeyPressed);
    _list->setContextMenuPolicy(Qt::ActionsContextMenu);
    _list->setAccessibleName(tr("Nodes of the scene"));
    _list->setMinimumWidth(smallestWidth);
    setWidget(_list);
    createActions();
    connectHost();
    connect(_list, &QTreeWidget::itemSelectionChanged, this, &SceneListDock::takeSelection);
    connect(_list, &QTreeWidget::itemChanged, this, &SceneListDock::takeName);
    connect(_list, &QTreeWidget::currentItemChanged, this, &SceneListDock::enableActions);
    rebuild();
}

QAction* SceneListDock::addListAction(const QString& text, const QKeySequence& key,
                                      void (SceneListDock::*slot)())
{
    auto* action = new QAction(text, _list);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, &QAction::triggered, this, slot);
    _list->addAction(action);
    return action;
}

void SceneListDock::createActions()
{
    _rename = addListAction(tr("&Rename"), Qt::Key_F2, &SceneListDock::renameCurrent);
    _moveUp = addListAction(tr("Move &Up"), Qt::CTRL | Qt::Key_Up, &SceneListDock::moveCurrentUp);
    _moveDown =
        addListAction(tr("Move &Down"), Qt::CTRL | Qt::Key_Down, &SceneListDock::moveCurrentDown);
    _delete = addListAction(tr("De&lete"), QKeySequence::Delete, &SceneListDock::deleteSelected);
}

void SceneListDock::connectHost()
{
    const TUSceneChangeManager* changes = _session.context().changeManager();
    using Changes = TUSceneChangeManager;
    connect(changes, &Changes::networkChanged, this, &SceneListDock::rebuild);
    connect(changes, &Changes::childrenOrderingChanged, this, &SceneListDock::rebuild);
    connect(changes, &Changes::currentSceneChanged, this, &SceneListDock::rebuild);
    connect(changes, &Changes::nodeInstanceNamesChanged, this, &SceneListDock::showNames);
    connect(changes, &Changes::selectionChanged, this, &SceneListDock::showSelection);
}

void SceneListDock::rebuild()
{
    {
        const QScopedValueRollback guard(_following, true);
        const MO_Node* current = nodeOf(_list->currentItem());
        _nodes.clear();
        _list->clear();
        if (const TUScene* scene = _session.currentScene())
            addItems(*scene->rootGroup(), _list->invisibleRootItem());
        _list->expandAll();
        for (auto it = _nodes.cbegin(); current && it != _nodes.cend(); ++it) {
            if (it->get() == current)
                _list->setCurrentItem(const_cast<QTreeWidgetItem*>(it.key()), 0,
                                      QItemSelectionModel::NoUpdate);
        }
    }
    showSelection();
}

void SceneListDock::addItems(const MO_GroupModule& group, QTreeWidgetItem* parent)
{
    for (MO_Node* node : group.nodes()) {
        auto* item = new QTreeWidgetItem(parent, {node->instanceName(), node->typeName()});
        item->setFlags(item->flags() | Qt::ItemIsEditable);
        _nodes.insert(item, UT_SharedWeakPtr<MO_Node>(node));
        if (const auto* inner = dynamic_cast<const MO_GroupModule*>(node))
            addItems(*inner, item);
    }
}

void SceneListDock::showNames(const TUNodeSet& nodes)
{
    const QScopedValueRollback guard(_following, true);
    for (auto it = _nodes.cbegin(); it != _nodes.cend(); ++it) {
        if (it->get() && nodes.contains(*it))
            const_cast<QTreeWidgetItem*>(it.key())->setText(0, (*it)->instanceName());
    }
}

void SceneListDock::showSelection()
{
    const QScopedValueRollback guard(_following, true);
    for (auto it = _nodes.cbegin(); it != _nodes.cend(); ++it) {
        const MO_Node* node = it->get();
        const_cast<QTreeWidgetItem*>(it.key())->setSelected(node && node->selected());
    }
    enableActions();
}

void SceneListDock::takeSelection()
{
    if (_following)
        return;
    SL_Selection* selection = _session.context().selection();
    const SL_Selection::BatchSelectionModeScope scope(selection);
    // What stays selected keeps its sub-selection, so only the differences are made.
    for (auto it = _nodes.cbegin(); it != _nodes.cend(); ++it) {
        if (!it.key()->isSelected())
            selection->remove(it->get());
    }
    for (MO_Node* node : selectedNodes())
        selection->add(node);
}

void SceneListDock::takeName(QTreeWidgetItem* item)
{
    MO_Node* node = nodeOf(item);
    if (_following || !node)
        return;
    const QString name = item->text(0).trimmed();
    if (!name.isEmpty()) {
        _session.context().commandManager()->execute(new RenameNode(node, name),
                                                     tr("Rename \"%1\"").arg(node->instanceName()));
    }
    // A name that was refused, or had blanks around it, must not stay in the list.
    const QScopedValueRollback guard(_following, true);
    item->setText(0, node->instanceName());
}

void SceneListDock::enableActions()
{
    const MO_Node* current = nodeOf(_list->currentItem());
    const MO_GroupModule* group = current ? current->parentGroup() : nullptr;
    const int index = group ? group->indexOf(current) : -1;
    _rename->setEnabled(current);
    _delete->setEnabled(!_list->selectedItems().isEmpty());
    _moveUp->setEnabled(index > 0);
    _moveDown->setEnabled(group && index + 1 < static_cast<int>(group->nodes().size()));
}

void SceneListDock::renameCurrent()
{
    if (QTreeWidgetItem* item = _list->currentItem())
        _list->editItem(item, 0);
}

void SceneListDock::deleteSelected()
{
    const std::vector<MO_Node*> nodes = selectedNodes();
    const QString name = nodes.size() == 1 ? tr("Delete \"%1\"").arg(nodes.front()->instanceName())
                                           : tr("Delete %1 Nodes").arg(nodes.size());
    SC_SessionContext& context = _session.context();
    context.commandManager()->execute(new DeleteNodes(nodes, context.selection()), name);
}

void SceneListDock::moveCurrentUp()
{
    moveCurrent(-1);
}

void SceneListDock::moveCurrentDown()
{
    moveCurrent(1);
}

void SceneListDock::moveCurrent(int distance)
{
    MO_Node* node = nodeOf(_list->currentItem());
    if (!node || !node->parentGroup())
        return;
    const int position = node->parentGroup()->indexOf(node) + distance;
    _session.context().commandManager()->execute(new MoveNode(node, position),
                                                 tr("Move \"%1\"").arg(node->instanceName()));
}

MO_Node* SceneListDock::nodeOf(const QTreeWidgetItem* item) const
{
    return _nodes.value(item).get();
}

std::vector<MO_Node*> SceneListDock::selectedNodes() const
{
    std::vector<MO_Node*> nodes;
    for (const QTreeWidgetItem* item : _list->selectedItems()) {
        if (MO_Node* node = nodeOf(item))
            nodes.push_back(node);
    }
    return nodes;
}
