// SPDX-License-Identifier: MIT
#include "workbench/timeline/Playback.h"

#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUSceneChangeManager.h"
#include "referencehost/session/HostSession.h"
#include "workbench/timeline/SceneFrame.h"

#include <QElapsedTimer>
#include <algorithm>
#include <memory>

namespace {

constexpr int second = 1000;

Playback::Clock runningClock()
{
    const auto timer = std::make_shared<QElapsedTimer>();
    timer->start();
    return [timer] { return timer->elapsed(); };
}

} // namespace

Playback::Playback(HostSession& session, QObject* parent)
    : QObject(parent)
    , _session(session)
    , _clock(runningClock())
{
    _timer.setTimerType(Qt::PreciseTimer);
    _timer.setInterval(second / _framesPerSecond);
    connect(&_timer, &QTimer::timeout, this, &Playback::advance);
    const TUSceneChangeManager* changes = session.context().changeManager();
    connect(changes, &TUSceneChangeManager::currentSceneChanged, this, &Playback::stop);
    connect(changes, &TUSceneChangeManager::currentFrameChanged, this, &Playback::followFrame);
}

void Playback::play()
{
    if (isPlaying() || !_session.currentScene() || _first == _last)
        return;
    const int current = SceneFrame::current(_session);
    _shown = current < _first || current >= _last ? _first : current;
    SceneFrame::goTo(_session, _shown);
    anchor();
    _timer.start();
    emit playingChanged(true);
}

void Playback::stop()
{
    if (!isPlaying())
        return;
    _timer.stop();
    emit playingChanged(false);
}

void Playback::toggle()
{
    if (isPlaying())
        stop();
    else
        play();
}

void Playback::setLoops(bool loops)
{
    _loops = loops;
    anchor();
}

void Playback::setFramesPerSecond(int frames)
{
    _framesPerSecond = std::clamp(frames, 1, highestRate);
    _timer.setInterval(second / _framesPerSecond);
    anchor();
}

void Playback::setRange(int first, int last)
{
    _first = std::max(1, first);
    _last = std::max(_first, last);
    anchor();
    // Frames may have gone from under what is played.
    if (_first == _last || _shown < _first || _shown > _last)
        stop();
}

void Playback::setClock(Clock clock)
{
    _clock = clock ? std::move(clock) : runningClock();
    anchor();
}

/// Counts anew from the frame that is shown, so that what was played already is not counted with
/// other numbers.
void Playback::anchor()
{
    _anchorTime = _clock();
    _anchorFrame = _shown;
}

void Playback::advance()
{
    const qint64 frames = (_clock() - _anchorTime) * _framesPerSecond / second;
    const qint64 offset = _anchorFrame - _first + frames;
    const qint64 length = static_cast<qint64>(_last) - _first + 1;
    const bool over = !_loops && offset >= length - 1;
    _shown = _first + static_cast<int>(over ? length - 1 : offset % length);
    SceneFrame::goTo(_session, _shown);
    if (over)
        stop();
}

void Playback::followFrame()
{
    const int current = SceneFrame::current(_session);
    if (!isPlaying() || current == _shown)
        return;
    _shown = current;
    anchor();
    if (current < _first || current > _last)
        stop();
}
