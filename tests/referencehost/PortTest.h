// SPDX-License-Identifier: MIT
#pragma once

#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/MO_KinematicOutputModule.h"
#include "host/scene/MO_PassThroughModule.h"
#include "host/scene/MO_PegModule.h"
#include "host/scene/TUScene.h"
#include "host/scene/TUSceneChangeManager.h"

#include <QRegularExpression>
#include <QTest>

using Ports = std::vector<MO_Port*>;

/// What tests of ports have in common: a scene, nodes of the kinds that differ in their ports, and
/// short words for linking their first ports.
class PortTest : public QObject
{
protected:
    void openScene()
    {
        QTest::failOnWarning(QRegularExpression(".?"));
        _scene = std::make_unique<TUScene>(QStringLiteral("Scene"), &_changes);
    }
    void closeScene()
    {
        _scene.reset();
        _changes.notify();
    }

    template <class Kind>
    MO_Node* add(const QString& name)
    {
        return _scene->rootGroup()->insertNode(std::make_unique<Kind>(name));
    }
    MO_Node* element(const char* name) { return add<MO_ElementModule>(QString::fromLatin1(name)); }
    MO_Node* receiver(const char* name)
    {
        return add<MO_KinematicOutputModule>(QString::fromLatin1(name));
    }
    MO_Node* passThrough(const char* name)
    {
        return add<MO_PassThroughModule>(QString::fromLatin1(name));
    }
    static MO_Port* in(const MO_Node* node, int index = 0) { return node->inPort(index); }
    static MO_Port* out(const MO_Node* node, int index = 0) { return node->outPort(index); }
    static bool feed(const MO_Node* from, const MO_Node* to)
    {
        return MO_Port::link(out(from), in(to));
    }

    TUSceneChangeManager _changes;
    std::unique_ptr<TUScene> _scene;
};
