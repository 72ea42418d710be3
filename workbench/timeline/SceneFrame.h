// SPDX-License-Identifier: MIT
#pragma once

class HostSession;

/// The current frame of the session's scene, for those who only want to know it or change it.
namespace SceneFrame {

/// 1 when no scene is open.
int current(HostSession& session);
/// Goes to the frame and tells everybody; a frame below 1 is taken as 1, and nothing happens when
/// it is the current one or no scene is open.
void goTo(HostSession& session, int frame);

} // namespace SceneFrame
