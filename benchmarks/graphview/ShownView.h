// SPDX-License-Identifier: MIT
#pragma once

#include "host/models/CEL_SharedPtr.h"
#include "referencehost/session/HostSession.h"

#include <memory>

class GV_GraphXViewQt;
class TD_CelVq3d;
class MO_ElementModule;

/// A graph view of 1000 by 800 pixels, with its navigator, over one selected model of which it
/// shows every node. Only one can be there at a time.
class ShownView
{
public:
    explicit ShownView(const CEL_SharedPtr<TD_CelVq3d>& cel);
    ~ShownView();

    GV_GraphXViewQt& view() { return *_view; }
    MO_ElementModule& element() { return *_element; }

    /// Moves the row to the top of the view.
    void scrollToRow(int row);
    /// Paints what has to be painted, of the view and of its navigator.
    static void settle();

private:
    HostSession _session;
    MO_ElementModule* _element = nullptr;
    std::unique_ptr<GV_GraphXViewQt> _view;
};
