// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/views/ViewState.h"

#include <QObject>
#include <map>

class GV_GraphXViewQt;
class MO_ElementModule;
class SC_SessionContext;

/// Keeps a graph view in step with the drawings of the time line. The view keeps the tree of an
/// element for as long as that is shown, whichever drawing it shows, since folding would be lost
/// otherwise; here the tree is built anew when the drawing is another one, and folded as before.
class DrawingFollower : public QObject
{
    Q_OBJECT

public:
    /// Owned by the view, which must have been initialised: what it hears from the session, it
    /// hears first. The session must outlive it.
    DrawingFollower(GV_GraphXViewQt* view, SC_SessionContext& session);

private:
    void follow();
    bool isOutdated() const;

    /// What is folded, over all drawings of an element, which is only a key here.
    std::map<const MO_ElementModule*, GraphViewState> _states;
    GV_GraphXViewQt* _view;
    SC_SessionContext& _session;
};
