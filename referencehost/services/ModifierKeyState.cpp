// SPDX-License-Identifier: MIT
#include "referencehost/services/ModifierKeyState.h"

#include <QGuiApplication>

PLUG_KeyState ModifierKeyState::keyState() const
{
    // Lists and canvases differ in which of the two keys extends a selection, and nobody remembers
    // which is which. Neither has another meaning while selecting here, so both do it everywhere.
    const bool held =
        QGuiApplication::keyboardModifiers() & (Qt::ShiftModifier | Qt::ControlModifier);
    return {held, held};
}
