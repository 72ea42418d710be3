// SPDX-License-Identifier: MIT
#pragma once

#include "host/actions/AC_Responder.h"

class AC_Manager;

/// A responder with an identity that keeps itself registered with an action manager.
class HOST_EXPORT AC_ResponderTemplate : public AC_Responder
{
public:
    explicit AC_ResponderTemplate(const QString& identity);
    ~AC_ResponderTemplate() override;
    AC_ResponderTemplate(const AC_ResponderTemplate&) = delete;
    AC_ResponderTemplate& operator=(const AC_ResponderTemplate&) = delete;

    QString responderIdentity() const override;
    AC_Responder* parentResponder() override;
    /// This class has no slots of its own, so these handle nothing; perform() asks the parent.
    AC_Result handleEvent(QEvent* event) override;
    AC_Result perform(AC_ActionInfo* info) override;
    AC_Result performDownToChildren(AC_ActionInfo* info) override;

    /// Registers with the manager, and leaves the one before. Null only leaves. A manager that dies
    /// first is left by then.
    void initActionManager(AC_Manager* manager);
    /// The manager that the responder is registered with; null when there is none.
    AC_Manager* actionManager() const;

private:
    QString _identity;
    AC_Manager* _manager = nullptr;
};
