// SPDX-License-Identifier: MIT
#pragma once

#include "host/commands/CO_Command.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/UT_SharedWeakPtr.h"

#include <vector>

/// Gives an element other drawings, all at once: what it showed before on any frame is replaced.
class HOST_EXPORT SetExposures : public CO_Command
{
public:
    using Exposures = std::vector<MO_ElementModule::Exposure>;

    /// Of exposures that overlap, later ones win. A null element, or the drawings that it has,
    /// make an empty command.
    SetExposures(MO_ElementModule* element, Exposures exposures);

    bool empty() const override;
    bool execute() override;

private:
    UT_SharedWeakPtr<MO_ElementModule> _element;
    Exposures _other;
};
