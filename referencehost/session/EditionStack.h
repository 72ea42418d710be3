// SPDX-License-Identifier: MIT
#pragma once

#include "host/scene/TUScene.h"
#include "host/services/PLUG_EditionStackInterface.h"

#include <memory>
#include <vector>

/// The scene that is being edited, and those that were but may still be looked at by listeners that
/// do not know yet. Owns all of them; owned by the session.
class EditionStack : public PLUG_EditionStackInterface
{
public:
    TUScene* currentScene() const override;

    /// Puts the scene, which may be null, in the place of the current one, which is retired.
    void replaceCurrentScene(std::unique_ptr<TUScene> scene);
    /// Destroys the retired scenes.
    void releaseRetired();

private:
    std::unique_ptr<TUScene> _current;
    std::vector<std::unique_ptr<TUScene>> _retired;
};
