// SPDX-License-Identifier: MIT
#include "host/actions/AC_ActionInfo.h"

#include <QMetaMethod>
#include <QObject>

namespace {

/// The slot or invokable method with the signature; invalid when the object has none.
QMetaMethod methodOf(const QObject& object, const QByteArray& signature)
{
    const QMetaObject* meta = object.metaObject();
    return meta->method(meta->indexOfMethod(signature));
}

bool call(QObject* object, const QMetaMethod& method, const std::optional<int>& argument,
          AC_ActionInfo* info)
{
    // An action ends before its caller goes on, whichever thread asks.
    constexpr auto type = Qt::DirectConnection;
    if (argument && info)
        return method.invoke(object, type, Q_ARG(int, *argument), Q_ARG(AC_ActionInfo*, info));
    if (argument)
        return method.invoke(object, type, Q_ARG(int, *argument));
    if (info)
        return method.invoke(object, type, Q_ARG(AC_ActionInfo*, info));
    return method.invoke(object, type);
}

} // namespace

AC_ActionInfo::AC_ActionInfo(const QByteArray& slotName, ePurpose purpose,
                             std::optional<int> argument)
    : _slotName(slotName)
    , _purpose(purpose)
    , _argument(argument)
{
}

AC_ActionInfo::~AC_ActionInfo() = default;

AC_Result AC_ActionInfo::invokeOnQObject(QObject* object)
{
    const QMetaMethod slot = methodOf(*object, _slotName + (_argument ? "(int)" : "()"));
    if (!slot.isValid())
        return AC_NotHandled;
    if (_purpose == ePerform)
        return call(object, slot, _argument, nullptr) ? AC_Performed : AC_NotHandled;

    const QMetaMethod validator =
        methodOf(*object, _slotName + (_argument ? "Validate(int,AC_ActionInfo*)"
                                                 : "Validate(AC_ActionInfo*)"));
    if (validator.isValid())
        call(object, validator, _argument, this);
    return AC_Performed;
}
