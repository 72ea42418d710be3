// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_GraphXViewQt.h"
#include "graphview/GV_UiSgNode.h"
#include "host/models/AT_ModelData.h"
#include "host/preferences/PR_Preference.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/selection/SLB_NodeInterface.h"
#include "tests/graphview/ShownModels.h"
#include "tests/graphview/StageTest.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

namespace {

using namespace ModelBuilder;

const QString extendedKey = QStringLiteral("GV_EXTENDED_DISPLAY");
constexpr auto Hidden = GV_GraphXViewCtrl::eHidden;
constexpr auto Visible = GV_GraphXViewCtrl::eVisible;

bool isSelected(const GV_GraphUiInfo::SelectedNodeMap& selected, const GV_UiNode* node)
{
    return std::any_of(selected.begin(), selected.end(),
                       [node](const auto& entry) { return entry.second == node; });
}

bool leadsToSelected(const GV_GraphUiInfo::SelectedNodeMap& selected, const GV_UiNode* node)
{
    if (isSelected(selected, node))
        return true;
    return std::any_of(node->childrenBegin(), node->childrenEnd(),
                       [&](const GV_UiNode* child) { return leadsToSelected(selected, child); });
}

} // namespace

/// Which subnodes are on and which are off.
class tst_GV_GraphXViewCtrlVisibility : public StageTest
{
    Q_OBJECT

private:
    bool isHidden(const QString& name)
    {
        const GV_UiNode* node = _stage->node(name);
        const bool hidden = controller()->nodeHasState(Hidden, node);
        return hidden != controller()->nodeHasState(Visible, node) && hidden;
    }
    bool isVisible(const QString& name)
    {
        const GV_UiNode* node = _stage->node(name);
        return controller()->nodeHasState(Visible, node) &&
               !controller()->nodeHasState(Hidden, node);
    }
    std::vector<GV_UiNode*> subnodes()
    {
        std::vector<GV_UiNode*> nodes = preOrder(_stage->graph().rootUiNode());
        nodes.erase(nodes.begin());
        return nodes;
    }
    /// Marks nodes behind the host's back.
    void mark(const std::vector<GV_UiNode*>& nodes)
    {
        _stage->graph().clearSelection(false);
        for (const GV_UiNode* node : nodes)
            _stage->graph().selectedNodes()[GV_UiNodeKey(node)] = node;
    }

private slots:
    void cleanup()
    {
        _stage.reset();
        PR_Preference::instance()->reset(extendedKey);
    }

    void without_settings_everything_is_visible()
    {
        addSelected(robotModel());
        for (const QString& name :
             {QStringLiteral("robot"), QStringLiteral("body"), QStringLiteral("hand")})
            QVERIFY(isVisible(name));
    }

    void a_subnode_is_hidden_when_its_record_says_so()
    {
        MO_ElementModule& element = addSelected(robotModel());
        _stage->setVisible(element, {QStringLiteral("arm")}, false);
        _stage->setVisible(element, {QStringLiteral("leg")}, true);
        QVERIFY(isHidden(QStringLiteral("arm")));
        QVERIFY(isVisible(QStringLiteral("leg")));
        // Below a hidden subnode and without a record of its own.
        QVERIFY(isVisible(QStringLiteral("hand")));
    }

    void a_hidden_shape_does_not_hide_the_subnode()
    {
        MO_ElementModule& element = addSelected(robotModel());
        auto data = std::make_unique<AT_ModelData>();
        AT_ModelNodeData record;
        record.localVisible = false;
        data->setNodeData(AT_ModelNodeKey(QStringLiteral("arm")), record);
        element.setSeqMeta(1, std::move(data));
        QVERIFY(isVisible(QStringLiteral("arm")));
    }

    void the_answer_follows_the_frame()
    {
        MO_ElementModule& element = addSelected(robotModel());
        _stage->setVisible(element, {QStringLiteral("arm")}, false, 10);
        QVERIFY(isVisible(QStringLiteral("arm")));
        _stage->goToFrame(10);
        QVERIFY(isHidden(QStringLiteral("arm")));
        _stage->goToFrame(9);
        QVERIFY(isVisible(QStringLiteral("arm")));
    }

    void a_header_is_looked_up_by_its_own_name_in_the_settings_of_its_own_element()
    {
        MO_ElementModule& a = _stage->addElement(QStringLiteral("a"));
        MO_ElementModule& b = _stage->addElement(QStringLiteral("b"));
        _stage->view();
        _stage->select({&a});
        std::vector<const GV_UiNode*> headers;
        _stage->graph().headerNodes(headers);

        _stage->setVisible(a, {QStringLiteral("b")}, false);
        QVERIFY(!controller()->nodeHasState(Hidden, headers[1]));
        QVERIFY(controller()->nodeHasState(Visible, headers[1]));
        _stage->setVisible(b, {QStringLiteral("b")}, false);
        QVERIFY(controller()->nodeHasState(Hidden, headers[1]));
        QVERIFY(controller()->nodeHasState(Visible, headers[0]));
        // Tree nodes are looked up in the settings of the open element.
        _stage->setVisible(b, {QStringLiteral("arm")}, false);
        QVERIFY(isVisible(QStringLiteral("arm")));
    }

    void without_its_element_a_node_has_no_state()
    {
        MO_ElementModule& element = addSelected(robotModel());
        const GV_UiSgNode node(nullptr, QStringLiteral("arm"), QString(), osg::NodePtr(), true);
        QVERIFY(controller()->nodeHasState(Visible, &node));
        element.parentGroup()->takeNode(&element).reset();
        for (const auto state : {Hidden, Visible}) {
            QVERIFY(!controller()->nodeHasState(state, &node));
            QVERIFY(!controller()->nodeHasState(state, _stage->graph().rootUiNode()));
            QVERIFY(!controller()->hasSelectedSubNodeWithState(state));
            QVERIFY(!controller()->hasUnSelectedSubNodeWithState(state));
        }
    }

    void without_an_open_model_no_subnode_has_a_state()
    {
        _stage->addElement(QStringLiteral("robot"));
        const GV_UiSgNode node(nullptr, QStringLiteral("arm"), QString(), osg::NodePtr(), true);
        for (const auto state : {Hidden, Visible}) {
            QVERIFY(!controller()->nodeHasState(state, &node));
            QVERIFY(!controller()->hasSelectedSubNodeWithState(state));
            QVERIFY(!controller()->hasUnSelectedSubNodeWithState(state));
        }
    }

    void selected_subnodes_are_asked_for_their_records()
    {
        MO_ElementModule& element = addSelected(robotModel());
        _stage->setVisible(element, {QStringLiteral("arm"), QStringLiteral("robot")}, false);
        // A header is no subnode, hidden or not.
        QVERIFY(!controller()->hasSelectedSubNodeWithState(Hidden));
        QVERIFY(!controller()->hasSelectedSubNodeWithState(Visible));
        _stage->subSelect(element, {QStringLiteral("leg")});
        QVERIFY(!controller()->hasSelectedSubNodeWithState(Hidden));
        QVERIFY(controller()->hasSelectedSubNodeWithState(Visible));
        _stage->subSelect(element, {QStringLiteral("arm")});
        QVERIFY(controller()->hasSelectedSubNodeWithState(Hidden));
        QVERIFY(controller()->hasSelectedSubNodeWithState(Visible));
    }

    void selected_subnodes_need_not_be_editable()
    {
        PR_Preference::instance()->setBoolValue(extendedKey, true);
        MO_ElementModule& element =
            addSelected(model(key("body", {group("plain", {shapedKey("arm")})})));
        _stage->setVisible(element, {QStringLiteral("plain")}, false);
        mark({_stage->node(QStringLiteral("plain"))});
        QVERIFY(controller()->hasSelectedSubNodeWithState(Hidden));
    }

    void without_settings_the_first_selected_entry_answers_for_all()
    {
        addSelected(robotModel());
        QRandomGenerator random(11);
        std::vector<GV_UiNode*> nodes = subnodes();
        nodes.push_back(_stage->graph().rootUiNode());
        bool headerCameFirst = false;
        for (int i = 0; i < 100; ++i) {
            std::vector<GV_UiNode*> some;
            for (GV_UiNode* node : nodes) {
                if (random.bounded(2))
                    some.push_back(node);
            }
            mark(some);
            const bool first =
                !some.empty() && _stage->graph().selectedNodes().begin()->second->isSgNode();
            headerCameFirst = headerCameFirst || (!first && some.size() > 1);
            QCOMPARE(controller()->hasSelectedSubNodeWithState(Visible), first);
            QVERIFY(!controller()->hasSelectedSubNodeWithState(Hidden));
        }
        QVERIFY(headerCameFirst);
    }

    void the_path_to_a_selected_subnode_does_not_count_as_unselected()
    {
        MO_ElementModule& element = addSelected(robotModel());
        _stage->subSelect(element, {QStringLiteral("hand"), QStringLiteral("leg")});
        QVERIFY(!controller()->hasUnSelectedSubNodeWithState(Visible));
        element.selInterface()->subDeselect(4);
        _stage->notify();
        QVERIFY(controller()->hasUnSelectedSubNodeWithState(Visible));
        QVERIFY(!controller()->hasUnSelectedSubNodeWithState(Hidden));
        _stage->setVisible(element, {QStringLiteral("leg")}, false);
        QVERIFY(!controller()->hasUnSelectedSubNodeWithState(Visible));
        QVERIFY(controller()->hasUnSelectedSubNodeWithState(Hidden));
    }

    void unselected_subnodes_come_to_what_a_plain_search_finds()
    {
        PR_Preference::instance()->setBoolValue(extendedKey, true);
        QRandomGenerator random(7);
        int answers[2] = {0, 0};
        for (int round = 0; round < 150; ++round) {
            _stage.reset();
            _stage = std::make_unique<GraphStage>();
            MO_ElementModule& element =
                _stage->addElement(QStringLiteral("e"), randomModel(round, 2 + random.bounded(12)));
            _stage->view();
            _stage->select({&element});
            std::vector<GV_UiNode*> marked{_stage->graph().rootUiNode()};
            QStringList hidden;
            for (GV_UiNode* node : subnodes()) {
                if (random.bounded(3) == 0)
                    marked.push_back(node);
                if (random.bounded(3) > 0)
                    hidden.append(node->name());
            }
            if (round % 3)
                _stage->setVisible(element, hidden, false);
            mark(marked);
            for (const auto state : {Hidden, Visible}) {
                bool found = false;
                for (const GV_UiNode* node : subnodes()) {
                    found =
                        found || (node->isEditable() && controller()->nodeHasState(state, node) &&
                                  !leadsToSelected(_stage->graph().selectedNodes(), node));
                }
                QCOMPARE(controller()->hasUnSelectedSubNodeWithState(state), found);
                ++answers[found];
            }
        }
        QVERIFY2(answers[0] > 50 && answers[1] > 50, "one answer comes too rarely to be tested");
    }
};

QTEST_MAIN(tst_GV_GraphXViewCtrlVisibility)
#include "tst_GV_GraphXViewCtrlVisibility.moc"
