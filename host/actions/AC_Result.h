// SPDX-License-Identifier: MIT
#pragma once

/// What became of an action or an event that was offered to a responder.
enum AC_Result
{
    /// The action was performed, or validated.
    AC_Performed = 0,
    /// Nobody knew the action, or wanted the event; the next responder may be asked.
    AC_NotHandled = 1,
    /// The event was accepted.
    AC_EventAccepted = 2
};
