// SPDX-License-Identifier: MIT
#pragma once

#include "host/actions/AC_ActionInfo.h"
#include "host/attributes/AT_StringAttr.h"
#include "host/commands/CO_CommandManager.h"
#include "host/models/AT_ModelData.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/MO_Port.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"
#include "responder/GT_Graph3DResponder.h"
#include "tests/graphview/GraphStage.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QUndoStack>
#include <memory>

/// Lets tests call what the responder keeps to itself.
class PublishedResponder : public GT_Graph3DResponder
{
public:
    using GT_Graph3DResponder::appendToSelection;
    using GT_Graph3DResponder::getFirstSelectedChildNodeKey;
    using GT_Graph3DResponder::getNodeWithSubNodes;
    using GT_Graph3DResponder::getSelectedNextSiblingNodeKey;
    using GT_Graph3DResponder::getSelectedParentNodeKey;
    using GT_Graph3DResponder::getSelectedPreviousSiblingNodeKey;
    using GT_Graph3DResponder::GT_Graph3DResponder;
    using GT_Graph3DResponder::hasSubnodeSelected;
    using GT_Graph3DResponder::selectedSubnodesShareLocalVisibilityState;
    using GT_Graph3DResponder::selectedSubnodesShareVisibilityState;
    using GT_Graph3DResponder::selectSubnode;
    using GT_Graph3DResponder::setSubnodeLocalVisibility;
    using GT_Graph3DResponder::setSubnodeVisibility;
    using GT_Graph3DResponder::subSelectionHasChanged;
};

/// A fresh stage with a responder for each test, and a failure for every warning that no test asked
/// for.
class ResponderTest : public QObject
{
    Q_OBJECT

protected:
    /// The frames that tests key settings at lie between the first and this one.
    static constexpr int lastFrame = 12;

    static inline const QByteArray parentAction = QByteArrayLiteral("onActionSelectParent");
    static inline const QByteArray childAction = QByteArrayLiteral("onActionSelectChild");
    static inline const QByteArray nextAction = QByteArrayLiteral("onActionSelectNextSibling");
    static inline const QByteArray previousAction =
        QByteArrayLiteral("onActionSelectPreviousSibling");
    static inline const QByteArray enableAction = QByteArrayLiteral("onActionEnableSubnode");
    static inline const QByteArray disableAction = QByteArrayLiteral("onActionDisableSubnode");
    static inline const QByteArray showAction = QByteArrayLiteral("onActionShowSubnodeShape");
    static inline const QByteArray hideAction = QByteArrayLiteral("onActionHideSubnodeShape");
    static inline const QByteArray createAction =
        QByteArrayLiteral("onActionCreateSubNodeTransformation");
    static inline const QByteArray filterAction =
        QByteArrayLiteral("onActionAddSubTransformationFilter");
    static inline const QByteArray dumpAction =
        QByteArrayLiteral("onActionDumpSceneGraphInformation");

    /// All actions, in the order in which the responder declares them.
    static QList<QByteArray> allActions()
    {
        return {showAction,   hideAction,  enableAction, disableAction,  createAction, filterAction,
                parentAction, childAction, nextAction,   previousAction, dumpAction};
    }
    static QList<QByteArray> walkingActions()
    {
        return {parentAction, childAction, nextAction, previousAction};
    }

    QUndoStack& history() { return *_stage->context().commandManager()->history(); }

    /// An element that shows the model on the first frames and is selected alone.
    MO_ElementModule& addSelected(const CEL_SharedPtr<TD_CelVq3d>& model = robotModel())
    {
        MO_ElementModule& element =
            _stage->addElement(QStringLiteral("robot"), model, 1, lastFrame);
        _stage->select({&element});
        return element;
    }
    /// Makes these the sub-selection of the selected element.
    void subSelectOnly(const MO_ElementModule& element, const QStringList& names)
    {
        element.selInterface()->clearSubSelection();
        _stage->subSelect(element, names);
        _stage->notify();
    }

    AC_Result run(const QByteArray& slot)
    {
        AC_ActionInfo info(slot, AC_ActionInfo::ePerform);
        return _responder->perform(&info);
    }
    /// Whether the validator of the action enables it, which must not depend on how the action
    /// presented itself before.
    bool isEnabled(const QByteArray& slot)
    {
        const bool enabled = isEnabledFrom(slot, true);
        if (isEnabledFrom(slot, false) != enabled)
            QTest::qFail("The validator leaves the action as it is.", __FILE__, __LINE__);
        return enabled;
    }
    /// The same, of an action that presents itself as enabled or disabled before.
    bool isEnabledFrom(const QByteArray& slot, bool before)
    {
        AC_ActionInfo info(slot, AC_ActionInfo::eValidate);
        info.setEnabled(before);
        return _responder->perform(&info) == AC_Performed && info.isEnabled();
    }
    QList<QByteArray> enabledOf(const QList<QByteArray>& actions)
    {
        QList<QByteArray> enabled;
        for (const QByteArray& action : actions) {
            if (isEnabled(action))
                enabled.append(action);
        }
        return enabled;
    }

    /// The names of the sub-selected subnodes, in the order of selecting.
    static QStringList subSelected(const MO_ElementModule& element)
    {
        QStringList names;
        if (!element.selInterface())
            return names;
        for (const int id : element.selInterface()->subSelectedIds()) {
            AT_ModelNodeKey key;
            element.getNodeKeyForSelId(id, key);
            names.append(key.name());
        }
        return names;
    }
    /// The settings that hold at a frame as text: each record's name followed by what is not as
    /// modelled, "off", "hidden" or "movable".
    static QString settings(const MO_ElementModule& element, int frame = 1)
    {
        const AT_ModelData* data = element.seqMeta(frame);
        if (!data)
            return QStringLiteral("none");
        QStringList texts;
        for (const auto& [key, record] : data->records()) {
            texts.append(key.name() + (record.visible ? "" : " off") +
                         (record.localVisible ? "" : " hidden") +
                         (record.hasTransformation ? " movable" : ""));
        }
        return texts.join(QStringLiteral(", "));
    }
    /// Every frame at which settings are set, with them.
    static QString keyedSettings(const MO_ElementModule& element)
    {
        QStringList texts;
        for (int frame = 1; frame <= lastFrame; ++frame) {
            int keyed = 0;
            if (element.frameOfSeqMeta(element.seqMeta(frame), keyed) && keyed == frame)
                texts.append(QStringLiteral("%1: %2").arg(frame).arg(settings(element, frame)));
        }
        return texts.join(QStringLiteral("; "));
    }
    static QString describe(const MO_Node& node)
    {
        QString text = QStringLiteral("%1 '%2' at %3 %4")
                           .arg(node.typeName(), node.instanceName())
                           .arg(node.x())
                           .arg(node.y());
        for (int port = 0; port < node.nInPorts(); ++port) {
            const MO_Port* source = node.inPort(port)->srcPort();
            text += QStringLiteral(" <- ") + (source ? source->node()->instanceName() : QString());
        }
        for (auto it = node.attrsBegin(); it != node.attrsEnd(); ++it) {
            if (const auto* attr = dynamic_cast<const AT_StringAttr*>(*it))
                text += QStringLiteral(" %1=%2").arg(attr->meta().keyword(), attr->localValue());
        }
        if (const auto* element = dynamic_cast<const MO_ElementModule*>(&node)) {
            text += QStringLiteral(" {%1} [%2]")
                        .arg(keyedSettings(*element), subSelected(*element).join(QLatin1Char(' ')));
        }
        return text;
    }
    /// Everything in the scene and what of it is selected.
    QString state()
    {
        QStringList lines;
        for (const MO_Node* node : _stage->context().selection()->nodes())
            lines.append(QStringLiteral("selected ") + node->instanceName());
        for (const MO_Node* node : _stage->scene().rootGroup()->nodes())
            lines.append(describe(*node));
        return lines.join(QLatin1Char('\n'));
    }

    std::unique_ptr<GraphStage> _stage;
    std::unique_ptr<PublishedResponder> _responder;

protected slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
        _stage = std::make_unique<GraphStage>();
        _responder = std::make_unique<PublishedResponder>(nullptr, nullptr);
    }
    void cleanup()
    {
        _responder.reset();
        _stage.reset();
    }
};
