// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class AC_Manager;
class GV_GraphXViewQt;
class QAction;
class SC_SessionContext;

/// Lets the arrow keys walk through the tree of a graph view that has the focus: left to the
/// parent, right to the first child, up and down to the siblings. The keys perform the actions of
/// the menus. Where nothing is selected yet, they select the first subnode.
class GraphViewKeys : public QObject
{
    Q_OBJECT

public:
    /// Owned by the view. The session must outlive it.
    GraphViewKeys(GV_GraphXViewQt* view, SC_SessionContext& session);

private:
    void addKey(int key, const QString& actionId);
    void perform(QAction* action);
    /// False when something was selected already, or there is nothing to select.
    bool selectFirstSubnode();

    GV_GraphXViewQt* _view;
    SC_SessionContext& _session;
};
