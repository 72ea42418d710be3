// SPDX-License-Identifier: MIT
#pragma once

#include "host/models/CEL_SharedPtr.h"
#include "referencehost/session/HostSession.h"

#include <memory>
#include <vector>

class MO_ElementModule;
class SGV_Graph3DView;
class TD_CelVq3d;

/// A subnode tree view of 300 by 800 pixels over one selected model. Only one can be there at a
/// time.
class ShownTree
{
public:
    explicit ShownTree(const CEL_SharedPtr<TD_CelVq3d>& cel);
    ~ShownTree();

    HostSession& session() { return _session; }
    SGV_Graph3DView& view() { return *_view; }
    MO_ElementModule& element() { return *_element; }

    /// Makes this many subnodes, spread over the model, the sub-selection, and tells nobody.
    void subSelect(int count);
    void clearSubSelection();
    /// Does what is posted and paints what has to be painted.
    static void settle();

private:
    HostSession _session;
    MO_ElementModule* _element = nullptr;
    std::unique_ptr<SGV_Graph3DView> _view;
};
