// SPDX-License-Identifier: MIT
#pragma once

#include "host/actions/AC_ActionData.h"
#include "host/actions/AC_Result.h"

#include <QByteArray>
#include <optional>

class AC_Responder;
class QObject;

/// An action on its way through the responders: which slot it calls, with which argument, and
/// whether it is performed or only validated. A validation calls the slot's companion, named like
/// the slot with "Validate" behind it, which fills in how the action presents itself.
class HOST_EXPORT AC_ActionInfo : public AC_ActionData
{
public:
    enum ePurpose
    {
        ePerform = 0,
        eValidate = 1
    };

    /// The slot is named without parentheses. Slots take the argument when there is one.
    AC_ActionInfo(const QByteArray& slotName, ePurpose purpose,
                  std::optional<int> argument = std::nullopt);
    ~AC_ActionInfo() override;

    QByteArray slotName() const { return _slotName; }
    ePurpose purpose() const { return _purpose; }
    std::optional<int> argument() const { return _argument; }

    /// The responder that the action is offered to at the moment; not owned, null before the first.
    AC_Responder* responder() const { return _responder; }
    void setResponder(AC_Responder* responder) { _responder = responder; }

    /// Calls the slot, or its validator, on the object. An action whose slot has no validator is
    /// always enabled. AC_NotHandled, with nothing called, when the object has no such slot.
    AC_Result invokeOnQObject(QObject* object);

private:
    QByteArray _slotName;
    ePurpose _purpose;
    std::optional<int> _argument;
    AC_Responder* _responder = nullptr;
};
