// SPDX-License-Identifier: MIT

#include "workbench/timeline/FrameBox.h"

#include "host/scene/SC_CurrentFrameInterface.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUScene.h"
#include "host/scene/TUSceneChangeManager.h"
#include "referencehost/session/HostSession.h"

#include <QSignalBlocker>
#include <limits>

FrameBox::FrameBox(HostSession& session, QWidget* parent)
    : QSpinBox(parent)
    , _session(session)
{
    setRange(1, std::numeric_limits<int>::max());
    setPrefix(tr("Frame "));
    setKeyboardTracking(false);
    setToolTip(tr("Current frame"));
    setAccessibleName(tr("Current frame"));
    setMinimumWidth(fontMetrics().horizontalAdvance(tr("Frame ") + QStringLiteral("0000000")));
    setMaximumWidth(minimumWidth() * 2);
    const TUSceneChangeManager* changes = session.context().changeManager();
    connect(changes, &TUSceneChangeManager::currentFrameChanged, this, &FrameBox::showFrame);
    connect(changes, &TUSceneChangeManager::currentSceneChanged, this, &FrameBox::showFrame);
    connect(this, &QSpinBox::valueChanged, this, &FrameBox::goToFrame);
    showFrame();
}

void FrameBox::showFrame()
{
    const TUScene* scene = _session.currentScene();
    setEnabled(scene);
    const QSignalBlocker blocker(this);
    if (scene)
        setValue(_session.context().currentFrameInterface()->currentFrame(scene));
}

void FrameBox::goToFrame(int frame)
{
    if (TUScene* scene = _session.currentScene()) {
        _session.context().currentFrameInterface()->setCurrentFrame(scene, frame);
        _session.context().changeManager()->notify();
    }
}
