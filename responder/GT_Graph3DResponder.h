// SPDX-License-Identifier: MIT
#pragma once

#include <SubnodeViewsExport.h>

#include "host/actions/AC_ResponderTemplateObject.h"

#include <QString>

class AC_Manager;
class AT_ModelNodeKey;
class MO_Node;
class SLB_NodeWith3DSubNode;
class SL_Selection;

/// The actions on the sub-selected subnodes of the 3D model element that was selected first:
/// walking to their relatives, switching them and their shapes on and off, making their properties
/// available, adding outputs that follow them, and printing the scene graph. It keeps no state, and
/// does nothing where something is missing.
class SUBNODEVIEWS_EXPORT GT_Graph3DResponder : public AC_ResponderTemplateObject<QObject>
{
    Q_OBJECT
    Q_INTERFACES(AC_Responder)

public:
    /// Registers with the action manager of the plug-in services, whatever manager it is given.
    GT_Graph3DResponder(AC_Manager* manager, QObject* parent);
    ~GT_Graph3DResponder() override;

    AC_Responder* parentResponder() override;

public slots:
    void onActionShowSubnodeShape();
    void onActionShowSubnodeShapeValidate(AC_ActionInfo* info);
    void onActionHideSubnodeShape();
    void onActionHideSubnodeShapeValidate(AC_ActionInfo* info);
    void onActionEnableSubnode();
    void onActionEnableSubnodeValidate(AC_ActionInfo* info);
    void onActionDisableSubnode();
    void onActionDisableSubnodeValidate(AC_ActionInfo* info);
    /// Makes the properties of subnodes available for animation.
    void onActionCreateSubNodeTransformation();
    void onActionCreateSubNodeTransformationValidate(AC_ActionInfo* info);
    /// Adds, for each subnode, a kinematic output that follows it.
    void onActionAddSubTransformationFilter();
    void onActionAddSubTransformationFilterValidate(AC_ActionInfo* info);
    void onActionSelectParent();
    void onActionSelectParentValidate(AC_ActionInfo* info);
    void onActionSelectChild();
    void onActionSelectChildValidate(AC_ActionInfo* info);
    void onActionSelectNextSibling();
    void onActionSelectNextSiblingValidate(AC_ActionInfo* info);
    void onActionSelectPreviousSibling();
    void onActionSelectPreviousSiblingValidate(AC_ActionInfo* info);
    void onActionDumpSceneGraphInformation();
    void onActionDumpSceneGraphInformationValidate(AC_ActionInfo* info);

protected:
    /// The first selected node as one with subnodes; null when it is none.
    static SLB_NodeWith3DSubNode* getNodeWithSubNodes(SL_Selection* selection);
    /// Whether the user holds the key that makes walking add to the sub-selection.
    bool appendToSelection() const;
    bool hasSubnodeSelected() const;
    void subSelectionHasChanged() const;
    void selectSubnode(const QString& key);

    /// The names of the relatives of the first sub-selected subnode; empty when there is none.
    QString getSelectedParentNodeKey() const;
    QString getFirstSelectedChildNodeKey() const;
    QString getSelectedNextSiblingNodeKey() const;
    QString getSelectedPreviousSiblingNodeKey() const;

    void setSubnodeVisibility(bool visible) const;
    void setSubnodeLocalVisibility(bool visible) const;
    /// Whether a sub-selected subnode is not in the state yet, so that setting it changes
    /// something.
    bool selectedSubnodesShareVisibilityState(bool visible) const;
    bool selectedSubnodesShareLocalVisibilityState(bool visible) const;

private:
    void addSubTransformationFilter(MO_Node& element, const AT_ModelNodeKey& key) const;
};
