// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

#include <QString>

/// Something that actions can be routed to.
class HOST_EXPORT AC_Responder
{
public:
    virtual ~AC_Responder();

    /// The name by which menus and shortcuts address the responder.
    virtual QString responderIdentity() const = 0;
    /// Who is asked next when this one does not handle an action; null ends the chain.
    virtual AC_Responder* parentResponder() = 0;
};
