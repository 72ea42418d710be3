// SPDX-License-Identifier: MIT
#pragma once

#include "graphview/GV_GraphXViewQt.h"
#include "host/scene/MO_ElementModule.h"
#include "tests/graphview/GraphStage.h"
#include "tests/graphview/RepaintCounter.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QRegularExpression>
#include <QTest>
#include <memory>

/// What tests on a stage have in common: a fresh stage for each test, and a failure for every
/// warning that no test asked for.
class StageTest : public QObject
{
    Q_OBJECT

protected:
    GV_GraphXViewCtrl* controller() { return _stage->view().controller(); }

    /// An element with the model, selected, in a view.
    MO_ElementModule& addSelected(const CEL_SharedPtr<TD_CelVq3d>& model)
    {
        MO_ElementModule& element = _stage->addElement(QStringLiteral("robot"), model);
        _stage->view();
        _stage->select({&element});
        return element;
    }

    /// Shows the view and counts how often it is painted during the action.
    template <class Action>
    int repaints(const Action& action)
    {
        _stage->view().resize(600, 400);
        _stage->view().show();
        if (!QTest::qWaitForWindowExposed(&_stage->view()))
            return -1;
        return RepaintCounter(_stage->view()).countDuring(action);
    }

    std::unique_ptr<GraphStage> _stage;

protected slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
        _stage = std::make_unique<GraphStage>();
    }
    void cleanup() { _stage.reset(); }
};
