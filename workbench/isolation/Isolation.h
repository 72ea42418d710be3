// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class HostSession;
class MO_ElementModule;

/// Shows only the subnodes that are selected, and comes back to just what was shown before; either
/// is one undo step. What was shown before is remembered for each element by itself, and moves
/// through undo and redo together with the settings.
class Isolation
{
public:
    /// The session is not owned and must outlive this object.
    explicit Isolation(HostSession& session);
    ~Isolation();
    Isolation(const Isolation&) = delete;
    Isolation& operator=(const Isolation&) = delete;

    /// Whether parts of the element are isolated now; false for null.
    bool isIsolated(const MO_ElementModule* element) const;
    /// The element that was selected first; null when there is none.
    MO_ElementModule* selectedElement() const;
    /// Whether subnodes of the model that is shown now are selected, or there is an isolation to
    /// leave.
    bool canToggle() const;

    /// Isolates the selected subnodes of the selected element at the current frame, or leaves the
    /// isolation it is in. False when there is nothing to do.
    bool toggle();

private:
    struct Before;
    class Memory;
    class Step;

    int currentFrame(const MO_ElementModule& element) const;
    bool isolate(MO_ElementModule& element);
    bool leave(MO_ElementModule& element);

    HostSession& _session;
    /// Steps in the undo history use it too.
    std::shared_ptr<Memory> _memory;
};
