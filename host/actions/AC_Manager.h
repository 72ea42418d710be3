// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

#include <QString>
#include <memory>
#include <vector>

class AC_Responder;

/// Knows every responder of the application and finds the ones that an action is meant for.
class HOST_EXPORT AC_Manager
{
public:
    AC_Manager();
    ~AC_Manager();
    AC_Manager(const AC_Manager&) = delete;
    AC_Manager& operator=(const AC_Manager&) = delete;

    /// Not owned: a responder leaves before it dies. Null, and one that is there, are ignored.
    void registerResponder(AC_Responder* responder);
    void unregisterResponder(AC_Responder* responder);

    /// The responders with the identity, in the order of registration; several views of one kind
    /// share an identity.
    std::vector<AC_Responder*> responders(const QString& identity) const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
