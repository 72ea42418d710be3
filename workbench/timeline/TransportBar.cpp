// SPDX-License-Identifier: MIT
#include "workbench/timeline/TransportBar.h"

#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUSceneChangeManager.h"
#include "referencehost/session/HostSession.h"
#include "workbench/timeline/FrameBox.h"
#include "workbench/timeline/Playback.h"
#include "workbench/timeline/SceneFrame.h"
#include "workbench/timeline/TimelineRows.h"

#include <QAction>
#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QToolButton>
#include <limits>

namespace {

/// The style draws its signs dark, whatever is behind them, so only their shapes are taken.
QIcon signOf(const QWidget& widget, QStyle::StandardPixmap sign)
{
    const QIcon original = widget.style()->standardIcon(sign);
    QIcon icon;
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled}) {
        const QPalette::ColorGroup group =
            mode == QIcon::Normal ? QPalette::Active : QPalette::Disabled;
        const int size = widget.style()->pixelMetric(QStyle::PM_SmallIconSize);
        QPixmap shape = original.pixmap(QSize(size, size), widget.devicePixelRatio());
        QPainter painter(&shape);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(QRect(0, 0, size, size),
                         widget.palette().color(group, QPalette::ButtonText));
        painter.end();
        icon.addPixmap(shape, mode);
    }
    return icon;
}

} // namespace

TransportBar::TransportBar(HostSession& session, const TimelineRows& rows, Playback& playback,
                           QWidget* parent)
    : QToolBar(tr("Playback"), parent)
    , _session(session)
    , _rows(rows)
    , _playback(playback)
{
    setMovable(false);
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    setIconSize({size, size});
    createActions();
    auto* rate = new QSpinBox(this);
    rate->setObjectName(QStringLiteral("FramesPerSecond"));
    rate->setRange(1, Playback::highestRate);
    rate->setValue(playback.framesPerSecond());
    rate->setSuffix(tr(" fps"));
    rate->setKeyboardTracking(false);
    rate->setToolTip(tr("Frames per second"));
    rate->setAccessibleName(tr("Frames per second"));
    connect(rate, &QSpinBox::valueChanged, &playback, &Playback::setFramesPerSecond);
    addWidget(rate);
    addWidget(new FrameBox(session, this));

    connect(&playback, &Playback::playingChanged, this, &TransportBar::showPlaying);
    connect(&rows, &TimelineRows::changed, this, &TransportBar::enable);
    connect(session.context().changeManager(), &TUSceneChangeManager::currentFrameChanged, this,
            &TransportBar::enable);
    showPlaying(false);
    enable();
}

QList<QAction*> TransportBar::transportActions() const
{
    return {_first, _previous, _play, _next, _last, _loop};
}

QAction* TransportBar::addButton(int icon, const QString& text, const QKeySequence& key)
{
    QAction* action = addAction(text);
    action->setData(icon);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    action->setToolTip(QStringLiteral("%1 (%2)").arg(text, key.toString(QKeySequence::NativeText)));
    widgetForAction(action)->setAccessibleName(text);
    return action;
}

void TransportBar::createActions()
{
    _first = addButton(QStyle::SP_MediaSkipBackward, tr("First Frame"), Qt::Key_Home);
    _previous = addButton(QStyle::SP_MediaSeekBackward, tr("Previous Frame"), Qt::Key_Left);
    _play = addButton(QStyle::SP_MediaPlay, tr("Play"), Qt::Key_Space);
    _next = addButton(QStyle::SP_MediaSeekForward, tr("Next Frame"), Qt::Key_Right);
    _last = addButton(QStyle::SP_MediaSkipForward, tr("Last Frame"), Qt::Key_End);
    _loop = addButton(QStyle::SP_BrowserReload, tr("Loop"), Qt::Key_L);
    _loop->setCheckable(true);
    _loop->setChecked(_playback.loops());
    connect(_first, &QAction::triggered, this, [this] { SceneFrame::goTo(_session, 1); });
    connect(_previous, &QAction::triggered, this,
            [this] { SceneFrame::goTo(_session, SceneFrame::current(_session) - 1); });
    connect(_next, &QAction::triggered, this, [this] {
        const int frame = SceneFrame::current(_session);
        if (frame < std::numeric_limits<int>::max())
            SceneFrame::goTo(_session, frame + 1);
    });
    connect(_last, &QAction::triggered, this,
            [this] { SceneFrame::goTo(_session, _rows.lastFrame()); });
    connect(_play, &QAction::triggered, &_playback, &Playback::toggle);
    connect(_loop, &QAction::toggled, &_playback, &Playback::setLoops);
}

void TransportBar::showPlaying(bool playing)
{
    const QString text = playing ? tr("Pause") : tr("Play");
    _play->setText(text);
    _play->setData(playing ? QStyle::SP_MediaPause : QStyle::SP_MediaPlay);
    drawIcons();
    _play->setToolTip(
        QStringLiteral("%1 (%2)").arg(text, _play->shortcut().toString(QKeySequence::NativeText)));
    widgetForAction(_play)->setAccessibleName(text);
}

void TransportBar::enable()
{
    const bool open = _session.currentScene();
    const int frame = SceneFrame::current(_session);
    _first->setEnabled(open && frame > 1);
    _previous->setEnabled(open && frame > 1);
    _next->setEnabled(open);
    _last->setEnabled(open && frame != _rows.lastFrame());
    _play->setEnabled(open && _rows.lastFrame() > 1);
}

void TransportBar::drawIcons()
{
    for (QAction* action : transportActions())
        action->setIcon(signOf(*this, static_cast<QStyle::StandardPixmap>(action->data().toInt())));
}

void TransportBar::changeEvent(QEvent* event)
{
    QToolBar::changeEvent(event);
    // The base class tells of changes before there are actions, too.
    if (_loop && (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange))
        drawIcons();
}
