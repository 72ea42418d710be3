// SPDX-License-Identifier: MIT
#pragma once

#include "tests/graphview/ModelBuilder.h"
#include "tests/graphview/ShownModels.h"

#include <QRegularExpression>
#include <QTest>
#include <memory>

/// What tests of selecting have in common: a graph of a car and a robot, the robot open, whose arm
/// and leg both have a hand. Fresh for each test.
class CarAndRobotTest : public QObject
{
    Q_OBJECT

protected:
    GV_GraphUiInfo& graph() { return _models->graph; }

    GV_UiNode* node(const char* name) const { return _models->node(QString::fromLatin1(name)); }

    /// What the selection holds for the key of the node, which must be selected.
    const GV_UiNode* selectedNode(const GV_UiNode* bearer)
    {
        return graph().selectedNodes().at(GV_UiNodeKey(bearer));
    }

    std::unique_ptr<ShownModels> _models;
    MO_ElementModule* _car = nullptr;
    MO_ElementModule* _robot = nullptr;

protected slots:
    void init()
    {
        using namespace ModelBuilder;
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
        _models = std::make_unique<ShownModels>();
        _car = _models->add(QStringLiteral("Car"), model(key("wheel", {geometry("w")})));
        _robot = _models->add(QStringLiteral("Robot"),
                              model(group("g", {key("arm", {key("hand", {geometry("skin")})}),
                                                key("leg", {key("hand", {geometry("skin")})})})));
        _models->show({_car, _robot}, _robot);
    }
    void cleanup() { _models.reset(); }
};
