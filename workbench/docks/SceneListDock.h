// SPDX-License-Identifier: MIT
#pragma once

#include "host/scene/TUNodeSet.h"

#include <QDockWidget>
#include <QHash>

class MO_GroupModule;
class MO_Node;
class QAction;
class QTreeWidget;
class QTreeWidgetItem;
class HostSession;

/// Lists the nodes of the scene. What is selected here is selected in the host, and the other way
/// round; nodes are renamed in place, moved and deleted, all of which can be undone.
class SceneListDock : public QDockWidget
{
    Q_OBJECT

public:
    /// The session is not owned and must outlive the dock.
    SceneListDock(HostSession& session, QWidget* parent);

    QTreeWidget* list() const { return _list; }

private:
    void createActions();
    QAction* addListAction(const QString& text, const QKeySequence& key,
                           void (SceneListDock::*slot)());
    void connectHost();

    void rebuild();
    void addItems(const MO_GroupModule& group, QTreeWidgetItem* parent);
    void showNames(const TUNodeSet& nodes);
    void showSelection();
    void takeSelection();
    void takeName(QTreeWidgetItem* item);
    void enableActions();

    void renameCurrent();
    void deleteSelected();
    void moveCurrentUp();
    void moveCurrentDown();
    void moveCurrent(int distance);

    MO_Node* nodeOf(const QTreeWidgetItem* item) const;
    std::vector<MO_Node*> selectedNodes() const;

    HostSession& _session;
    QTreeWidget* _list;
    QAction* _rename = nullptr;
    QAction* _delete = nullptr;
    QAction* _moveUp = nullptr;
    QAction* _moveDown = nullptr;
    QHash<const QTreeWidgetItem*, UT_SharedWeakPtr<MO_Node>> _nodes;
    /// While the list is being brought into step with the host, its own signals mean nothing.
    bool _following = false;
};
