// SPDX-License-Identifier: MIT
#include "referencehost/session/EditionStack.h"

#include <utility>

TUScene* EditionStack::currentScene() const
{
    return _current.get();
}

void EditionStack::replaceCurrentScene(std::unique_ptr<TUScene> scene)
{
    if (_current)
        _retired.push_back(std::move(_current));
    _current = std::move(scene);
}

void EditionStack::releaseRetired()
{
    _retired.clear();
}
