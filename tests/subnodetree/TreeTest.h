// SPDX-License-Identifier: MIT
#pragma once

#include "host/scene/MO_ElementModule.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"
#include "tests/subnodetree/TreeStage.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QCoreApplication>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QUndoStack>

/// What tests on a subnode tree have in common: a fresh stage for each test, and a failure for
/// every warning that no test asked for.
class TreeTest : public QObject
{
    Q_OBJECT

protected:
    using QS = QString;

    static QStringList names(const char* words)
    {
        return QString::fromUtf8(words).split(u' ', Qt::SkipEmptyParts);
    }
    static QStringList sorted(QStringList texts)
    {
        texts.sort();
        return texts;
    }
    /// An element that shows the robot, selected, in a panel.
    MO_ElementModule& addRobot() { return addSelected(robotModel()); }
    /// An element with the model, selected, in a panel that is not shown yet.
    MO_ElementModule& addSelected(const CEL_SharedPtr<TD_CelVq3d>& model)
    {
        MO_ElementModule& element = _stage->addElement(QStringLiteral("robot"), model);
        _stage->panel();
        _stage->select({&element});
        return element;
    }
    /// Several key nodes of these names side by side below "top".
    static CEL_SharedPtr<TD_CelVq3d> fan(const QStringList& below)
    {
        ModelBuilder::Parts parts;
        for (const QString& name : below)
            parts.push_back(shapedKey(name.toStdString()));
        return ModelBuilder::model(ModelBuilder::key("top", parts));
    }

    std::unique_ptr<TreeStage> _stage;

protected slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init()
    {
        // The platform knows neither size hints nor what is in front, which does no harm here.
        QTest::failOnWarning(
            QRegularExpression(QStringLiteral("^(?!This plugin does not support)")));
        _stage = std::make_unique<TreeStage>();
    }
    void cleanup() { _stage.reset(); }
};
