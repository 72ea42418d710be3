// SPDX-License-Identifier: MIT
#pragma once

#include "host/commands/CO_CommandManager.h"
#include "host/models/AT_ModelData.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/TUScene.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"
#include "tests/graphview/GraphStage.h"
#include "tests/referencehost/ElementSettings.h"
#include "tests/workbench/SubnodeRecords.h"
#include "workbench/isolation/Isolation.h"

#include <QRegularExpression>
#include <QTest>
#include <QUndoStack>
#include <memory>

/// What tests of isolating have in common: a stage, robots with settings, and the history.
class IsolationTest : public QObject
{
protected:
    void openStage()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
        _stage = std::make_unique<GraphStage>();
        _isolation = std::make_unique<Isolation>(_stage->session());
    }
    void closeStage()
    {
        _isolation.reset();
        _stage.reset();
    }

    SC_SessionContext& context() { return _stage->context(); }
    QUndoStack& history() { return *context().commandManager()->history(); }

    /// A robot, body(arm(hand) leg), that is selected alone, with these of its subnodes.
    MO_ElementModule& addSelected(const QStringList& names)
    {
        MO_ElementModule& robot = _stage->addElement(QStringLiteral("robot"));
        select(robot, names);
        return robot;
    }
    void select(MO_ElementModule& element, const QStringList& names)
    {
        _stage->select({&element});
        _stage->subSelect(element, names);
    }
    void set(MO_ElementModule& element, int frame, const AT_ModelData& settings)
    {
        element.setSeqMeta(frame, std::make_unique<AT_ModelData>(settings));
        _stage->notify();
    }

    static AT_ModelNodeKey keyOf(const char* name)
    {
        return AT_ModelNodeKey(QString::fromLatin1(name));
    }
    static AT_ModelData records(const std::vector<std::pair<const char*, AT_ModelNodeData>>& all)
    {
        AT_ModelData settings;
        for (const auto& [name, record] : all)
            settings.setNodeData(keyOf(name), record);
        return settings;
    }

    /// Of a robot without settings whose arm is isolated.
    static AT_ModelData armAlone()
    {
        return records({{"body", SubnodeRecords::hidden}, {"leg", SubnodeRecords::off}});
    }

    std::unique_ptr<GraphStage> _stage;
    std::unique_ptr<Isolation> _isolation;
};
