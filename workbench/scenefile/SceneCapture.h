// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/scenefile/SceneDescription.h"

class HostSession;
class ModelLibrary;

/// The session's scene as a description, with the models' files as the library knows them. Without
/// a scene the description is empty.
SceneDescription capturedScene(HostSession& session, const ModelLibrary& library);
