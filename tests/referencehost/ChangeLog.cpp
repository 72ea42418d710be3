// SPDX-License-Identifier: MIT
#include "ChangeLog.h"

#include "host/scene/MO_Node.h"
#include "host/scene/TUSceneChangeManager.h"

ChangeLog::ChangeLog(TUSceneChangeManager& manager)
{
    using Manager = TUSceneChangeManager;
    connect(&manager, &Manager::currentSceneChanged, this, [this](TUScene* scene) {
        _told << QStringLiteral("scene %1").arg(scene ? scene->name() : QStringLiteral("none"));
    });
    connect(&manager, &Manager::currentFrameChanged, this,
            [this] { _told << QStringLiteral("frame"); });
    connect(&manager, &Manager::networkChanged, this,
            [this](const TUNodeSet& nodes) { write(QStringLiteral("network"), nodes); });
    connect(&manager, &Manager::childrenOrderingChanged, this,
            [this](const TUNodeSet& nodes) { write(QStringLiteral("ordering"), nodes); });
    connect(&manager, &Manager::nodesChanged, this,
            [this](const TUNodeSet& nodes) { write(QStringLiteral("nodes"), nodes); });
    connect(&manager, &Manager::nodeInstanceNamesChanged, this,
            [this](const TUNodeSet& nodes) { write(QStringLiteral("names"), nodes); });
    connect(&manager, &Manager::selectionChanged, this,
            [this] { _told << QStringLiteral("selection"); });
    connect(&manager, &Manager::subSelectionChanged, this,
            [this] { _told << QStringLiteral("sub-selection"); });
}

void ChangeLog::write(const QString& kind, const TUNodeSet& nodes)
{
    QStringList names;
    for (const UT_SharedWeakPtr<MO_Node>& node : nodes)
        names << (node ? node->instanceName() : QStringLiteral("?"));
    names.sort();
    _told << QStringLiteral("%1 %2").arg(kind, names.join(u' '));
}
