// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>

#include <functional>

class HostSession;

/// Plays the scene: moves its current frame on with the time that passes. Which frame is due
/// follows from the clock alone, so a slow view drops frames and never falls behind. It stops when
/// the scene changes or is closed.
class Playback : public QObject
{
    Q_OBJECT

public:
    /// Milliseconds from any moment on, never going back.
    using Clock = std::function<qint64()>;

    /// The session is not owned and must outlive this object.
    Playback(HostSession& session, QObject* parent);

    bool isPlaying() const { return _timer.isActive(); }
    bool loops() const { return _loops; }
    int framesPerSecond() const { return _framesPerSecond; }
    int firstFrame() const { return _first; }
    int lastFrame() const { return _last; }

    /// Plays from the current frame to the last; at the last one, and outside the frames to be
    /// played, from the first. Without a scene, or with one frame only, nothing is played.
    void play();
    void stop();
    void toggle();

    void setLoops(bool loops);
    /// Between 1 and 240; other numbers are taken as the nearest of these.
    void setFramesPerSecond(int frames);
    /// The frames to be played, both included; the last is not before the first, which is not
    /// below 1.
    void setRange(int first, int last);
    /// In place of the computer's clock, which null brings back.
    void setClock(Clock clock);

    static constexpr int defaultRate = 24;
    static constexpr int highestRate = 240;

signals:
    void playingChanged(bool playing);

private:
    void advance();
    void anchor();
    void followFrame();

    HostSession& _session;
    QTimer _timer;
    Clock _clock;
    bool _loops = false;
    int _framesPerSecond = defaultRate;
    int _first = 1;
    int _last = 1;
    /// The time at which the frame was due that counting goes on from.
    qint64 _anchorTime = 0;
    int _anchorFrame = 1;
    /// The frame that was gone to last, to tell when somebody else goes to one.
    int _shown = 0;
};
