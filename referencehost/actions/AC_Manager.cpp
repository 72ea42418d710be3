// SPDX-License-Identifier: MIT
#include "host/actions/AC_Manager.h"

#include "host/actions/AC_ResponderTemplate.h"

#include <algorithm>

struct AC_Manager::Private
{
    std::vector<AC_Responder*> responders;
};

AC_Manager::AC_Manager()
    : d(std::make_unique<Private>())
{
}

AC_Manager::~AC_Manager()
{
    // A view may outlive the session. Each one that we let go leaves the list, hence the copy.
    const std::vector<AC_Responder*> leaving = d->responders;
    for (AC_Responder* responder : leaving) {
        if (auto* registered = dynamic_cast<AC_ResponderTemplate*>(responder))
            registered->initActionManager(nullptr);
    }
}

void AC_Manager::registerResponder(AC_Responder* responder)
{
    if (responder && std::ranges::find(d->responders, responder) == d->responders.end())
        d->responders.push_back(responder);
}

void AC_Manager::unregisterResponder(AC_Responder* responder)
{
    std::erase(d->responders, responder);
}

std::vector<AC_Responder*> AC_Manager::responders(const QString& identity) const
{
    std::vector<AC_Responder*> found;
    std::ranges::copy_if(d->responders, std::back_inserter(found), [&](AC_Responder* responder) {
        return responder->responderIdentity() == identity;
    });
    return found;
}
