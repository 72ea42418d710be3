// SPDX-License-Identifier: MIT
#pragma once

#include <QDockWidget>

class HostSession;
class Playback;
class TimelineView;
class TransportBar;

/// The time line of the scene with its transport bar, in a dock. It owns both, and the playback.
class TimelineDock : public QDockWidget
{
    Q_OBJECT

public:
    /// The session is not owned and must outlive the dock.
    TimelineDock(HostSession& session, QWidget* parent);

    TimelineView& view() const { return *_view; }
    Playback& playback() const { return *_playback; }
    TransportBar& transport() const { return *_transport; }

private:
    Playback* _playback;
    TimelineView* _view;
    TransportBar* _transport;
};
