// SPDX-License-Identifier: MIT
#include "workbench/timeline/TimelineDock.h"

#include "workbench/timeline/Playback.h"
#include "workbench/timeline/TimelineView.h"
#include "workbench/timeline/TransportBar.h"

#include <QVBoxLayout>

TimelineDock::TimelineDock(HostSession& session, QWidget* parent)
    : QDockWidget(tr("Timeline"), parent)
    , _playback(new Playback(session, this))
{
    setObjectName(QStringLiteral("TimelineDock"));
    auto* content = new QWidget(this);
    _view = new TimelineView(session, content);
    _transport = new TransportBar(session, _view->rows(), *_playback, content);
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(_transport);
    layout->addWidget(_view);
    setWidget(content);
    // So that their keys are keys of the time line.
    _view->addActions(_transport->transportActions());
    const auto follow = [this] { _playback->setRange(1, _view->rows().lastFrame()); };
    connect(&_view->rows(), &TimelineRows::changed, _playback, follow);
    follow();
}
