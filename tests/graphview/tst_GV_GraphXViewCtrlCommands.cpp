// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "host/commands/CO_CommandManager.h"
#include "host/models/AT_ModelData.h"
#include "host/preferences/PR_Preference.h"
#include "host/scene/MO_GroupModule.h"
#include "host/selection/SLB_NodeInterface.h"
#include "tests/graphview/ShownModels.h"
#include "tests/graphview/StageTest.h"

#include <QRandomGenerator>
#include <QUndoStack>
#include <optional>
#include <set>

namespace {

using namespace ModelBuilder;

const QString extendedKey = QStringLiteral("GV_EXTENDED_DISPLAY");
const QString showName = QStringLiteral("Show Model Nodes");
const QString hideName = QStringLiteral("Hide Model Nodes");
const QString body = QStringLiteral("body");
const QString arm = QStringLiteral("arm");
const QString hand = QStringLiteral("hand");
const QString leg = QStringLiteral("leg");

/// A record that differs from the default one in everything but being visible.
AT_ModelNodeData oddRecord(bool visible)
{
    AT_ModelNodeData record;
    record.visible = visible;
    record.localVisible = false;
    record.transformation.setTranslate(1, 2, 3);
    return record;
}

AT_ModelNodeData defaultRecord(bool visible)
{
    AT_ModelNodeData record;
    record.visible = visible;
    return record;
}

/// A copy of the settings at a frame; none where there are none.
std::optional<AT_ModelData> settings(const MO_ElementModule& element, int frame = 1)
{
    const AT_ModelData* data = element.seqMeta(frame);
    return data ? std::optional(*data) : std::nullopt;
}

bool holdsSelected(const GV_GraphUiInfo::SelectedNodeMap& selected, const GV_UiNode* node)
{
    const bool isSelected = std::any_of(selected.begin(), selected.end(),
                                        [node](const auto& entry) { return entry.second == node; });
    return isSelected ||
           std::any_of(node->childrenBegin(), node->childrenEnd(),
                       [&](const GV_UiNode* child) { return holdsSelected(selected, child); });
}

} // namespace

/// Showing and hiding subnodes, which can be undone.
class tst_GV_GraphXViewCtrlCommands : public StageTest
{
    Q_OBJECT

private:
    QUndoStack& history() { return *_stage->context().commandManager()->history(); }
    /// The names of the hidden ones among the records that hold at a frame.
    static QStringList hidden(const MO_ElementModule& element, int frame = 1)
    {
        QStringList names;
        const std::optional<AT_ModelData> data = settings(element, frame);
        for (const auto& [key, record] : data ? data->records() : AT_ModelData::Records()) {
            if (!record.visible)
                names.append(key.name());
        }
        return names;
    }
    static void setRecords(MO_ElementModule& element, const AT_ModelData::Records& records)
    {
        auto data = std::make_unique<AT_ModelData>();
        for (const auto& [key, record] : records)
            data->setNodeData(key, record);
        element.setSeqMeta(1, std::move(data));
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

    void selected_subnodes_are_hidden_and_shown_in_one_step_each()
    {
        MO_ElementModule& element = addSelected(robotModel());
        _stage->subSelect(element, {hand, leg});
        controller()->onSetNodesVisible(false);
        QCOMPARE(hidden(element), QStringList({hand, leg}));
        QCOMPARE(history().count(), 1);
        QCOMPARE(history().undoText(), hideName);
        controller()->onSetNodesVisible(true);
        QCOMPARE(hidden(element), QStringList());
        QCOMPARE(history().count(), 2);
        QCOMPARE(history().undoText(), showName);
        // The selection stays.
        QCOMPARE(_stage->selectedNames(), QStringList({hand, leg, QStringLiteral("robot")}));
    }

    void without_settings_default_records_are_made_and_undoing_leaves_none()
    {
        MO_ElementModule& element = addSelected(robotModel());
        _stage->subSelect(element, {arm});
        for (const bool visible : {false, true}) {
            controller()->onSetNodesVisible(visible);
            AT_ModelData expected;
            expected.setNodeData(AT_ModelNodeKey(arm), defaultRecord(visible));
            for (int round = 0; round < 2; ++round) {
                QCOMPARE(settings(element), std::optional(expected));
                history().undo();
                QVERIFY(!settings(element));
                history().redo();
            }
            history().undo();
        }
    }

    void nothing_of_a_record_changes_but_being_visible()
    {
        MO_ElementModule& element = addSelected(robotModel());
        _stage->subSelect(element, {arm, hand, leg});
        const AT_ModelData::Records records{{AT_ModelNodeKey(arm), oddRecord(true)},
                                            {AT_ModelNodeKey(body), oddRecord(true)},
                                            {AT_ModelNodeKey(leg), oddRecord(false)}};
        setRecords(element, records);
        const std::optional<AT_ModelData> before = settings(element);
        for (const bool visible : {false, true}) {
            AT_ModelData expected = *before;
            expected.setNodeData(AT_ModelNodeKey(arm), oddRecord(visible));
            expected.setNodeData(AT_ModelNodeKey(leg), oddRecord(visible));
            expected.setNodeData(AT_ModelNodeKey(hand), defaultRecord(visible));
            controller()->onSetNodesVisible(visible);
            QCOMPARE(settings(element), std::optional(expected));
            history().undo();
            QCOMPARE(settings(element), before);
            history().redo();
            QCOMPARE(settings(element), std::optional(expected));
            history().undo();
        }
    }

    void hiding_what_is_hidden_is_a_step_all_the_same()
    {
        MO_ElementModule& element = addSelected(robotModel());
        _stage->setVisible(element, {arm}, false);
        _stage->subSelect(element, {arm});
        const std::optional<AT_ModelData> before = settings(element);
        controller()->onSetNodesVisible(false);
        QCOMPARE(history().count(), 1);
        QCOMPARE(history().undoText(), hideName);
        QCOMPARE(settings(element), before);
    }

    void without_a_selected_subnode_there_is_no_step()
    {
        MO_ElementModule& element = addSelected(robotModel());
        for (const bool visible : {false, true})
            controller()->onSetNodesVisible(visible);
        mark({});
        for (const bool visible : {false, true})
            controller()->onSetNodesVisible(visible);
        QCOMPARE(history().count(), 0);
        QVERIFY(!settings(element));
    }

    void without_an_open_element_there_is_no_step()
    {
        _stage->addElement(QStringLiteral("a"));
        MO_ElementModule& doomed = addSelected(robotModel());
        _stage->subSelect(doomed, {arm});
        for (int round = 0; round < 2; ++round) {
            // Nobody is told at first, and so the subnode is still marked.
            if (round == 0)
                doomed.parentGroup()->takeNode(&doomed).reset();
            else
                _stage->select({});
            for (const bool visible : {false, true}) {
                controller()->onSetNodesVisible(visible);
                controller()->onSetOtherNodesVisible(visible);
            }
            QCOMPARE(history().count(), 0);
        }
    }

    void selected_plain_nodes_are_hidden_but_unselected_ones_are_not()
    {
        PR_Preference::instance()->setBoolValue(extendedKey, true);
        const QString plain = QStringLiteral("plain");
        MO_ElementModule& element =
            addSelected(model(key("body", {group("plain", {shapedKey("arm")})})));
        mark({_stage->node(body)});
        controller()->onSetOtherNodesVisible(false);
        QCOMPARE(hidden(element), QStringList(arm));
        mark({_stage->node(plain)});
        controller()->onSetNodesVisible(false);
        QCOMPARE(hidden(element), QStringList({arm, plain}));
    }

    void hiding_all_others_spares_the_path_to_what_is_selected()
    {
        PR_Preference::instance()->setBoolValue(extendedKey, true);
        MO_ElementModule& element =
            addSelected(model(key("body", {key("arm", {group("plain", {key("hand")}), key("cuff")}),
                                           key("leg", {key("foot")})})));
        _stage->subSelect(element, {hand});
        _stage->node(leg)->setCollapsed(true);
        _stage->graph().calculateGeometricData();
        controller()->onSetOtherNodesVisible(false);
        QCOMPARE(hidden(element),
                 QStringList({QStringLiteral("cuff"), QStringLiteral("foot"), leg}));
        QCOMPARE(history().count(), 1);
        QCOMPARE(history().undoText(), hideName);
        // There is nothing left to hide.
        controller()->onSetOtherNodesVisible(false);
        QCOMPARE(history().count(), 1);
        history().undo();
        QVERIFY(!settings(element));
    }

    void hiding_all_others_with_nothing_selected_hides_everything()
    {
        MO_ElementModule& element = addSelected(robotModel());
        controller()->onSetOtherNodesVisible(false);
        QCOMPARE(hidden(element), QStringList({arm, body, hand, leg}));
    }

    void showing_all_others_shows_only_what_is_hidden()
    {
        MO_ElementModule& element = addSelected(robotModel());
        controller()->onSetOtherNodesVisible(true);
        QCOMPARE(history().count(), 0);
        QVERIFY(!settings(element));
        _stage->setVisible(element, {body, hand, leg}, false);
        _stage->subSelect(element, {hand});
        AT_ModelData expected = *settings(element);
        expected.setNodeData(AT_ModelNodeKey(leg), defaultRecord(true));
        controller()->onSetOtherNodesVisible(true);
        QCOMPARE(settings(element), std::optional(expected));
        QCOMPARE(history().undoText(), showName);
        controller()->onSetOtherNodesVisible(true);
        QCOMPARE(history().count(), 1);
    }

    void the_settings_that_hold_at_the_current_frame_are_written()
    {
        MO_ElementModule& element = addSelected(robotModel());
        _stage->setVisible(element, {leg}, false, 1);
        _stage->setVisible(element, {leg}, true, 10);
        _stage->setVisible(element, {hand}, false, 20);
        _stage->subSelect(element, {arm});
        _stage->goToFrame(15);
        controller()->onSetNodesVisible(false);
        QCOMPARE(hidden(element, 1), QStringList(leg));
        QCOMPARE(hidden(element, 10), QStringList(arm));
        QCOMPARE(hidden(element, 20), QStringList(hand));
        _stage->goToFrame(1);
        controller()->onSetOtherNodesVisible(true);
        QCOMPARE(hidden(element, 1), QStringList());
        QCOMPARE(hidden(element, 10), QStringList(arm));
    }

    void the_panel_is_repainted_after_each_step()
    {
        MO_ElementModule& element = addSelected(robotModel());
        _stage->subSelect(element, {arm});
        QVERIFY(repaints([&] { controller()->onSetNodesVisible(false); }) > 0);
        QVERIFY(repaints([&] { history().undo(); }) > 0);
        QVERIFY(repaints([&] { history().redo(); }) > 0);
        QVERIFY(repaints([&] { controller()->onSetOtherNodesVisible(false); }) > 0);
    }

    void the_others_are_those_that_a_plain_search_finds()
    {
        QRandomGenerator random(23);
        int steps = 0;
        for (int round = 0; round < 200; ++round) {
            _stage.reset();
            _stage = std::make_unique<GraphStage>();
            PR_Preference::instance()->setBoolValue(extendedKey, random.bounded(2));
            MO_ElementModule& element = addSelected(randomModel(round, 2 + random.bounded(20)));
            AT_ModelData::Records records;
            std::vector<GV_UiNode*> marked;
            const std::vector<GV_UiNode*> nodes = preOrder(_stage->graph().rootUiNode());
            for (GV_UiNode* node : nodes) {
                if (random.bounded(5) == 0)
                    marked.push_back(node);
                if (random.bounded(2))
                    records[AT_ModelNodeKey(node->name())] = oddRecord(random.bounded(2));
            }
            if (random.bounded(4))
                setRecords(element, records);
            mark(marked);

            const bool visible = random.bounded(2);
            const std::optional<AT_ModelData> before = settings(element);
            std::optional<AT_ModelData> expected = before;
            for (const GV_UiNode* node : nodes) {
                const AT_ModelNodeKey key(node->name());
                const AT_ModelNodeData* found = before ? before->nodeData(key) : nullptr;
                AT_ModelNodeData record = found ? *found : AT_ModelNodeData();
                if (!node->isSgNode() || !node->isEditable() || record.visible == visible ||
                    holdsSelected(_stage->graph().selectedNodes(), node))
                    continue;
                record.visible = visible;
                if (!expected)
                    expected.emplace();
                expected->setNodeData(key, record);
            }
            controller()->onSetOtherNodesVisible(visible);
            QCOMPARE(settings(element), expected);
            QCOMPARE(history().count(), expected == before ? 0 : 1);
            QCOMPARE(history().undoText(),
                     expected == before ? QString() : (visible ? showName : hideName));
            steps += history().count();
            history().undo();
            QCOMPARE(settings(element), before);
            history().redo();
            QCOMPARE(settings(element), expected);
        }
        QVERIFY2(steps > 50 && steps < 180, "one outcome comes too rarely");
    }
};

QTEST_MAIN(tst_GV_GraphXViewCtrlCommands)
#include "tst_GV_GraphXViewCtrlCommands.moc"
