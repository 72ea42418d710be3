// SPDX-License-Identifier: MIT

#include "host/commands/CO_CommandManager.h"
#include "tests/graphview/PanelTest.h"
#include "tests/graphview/ShownModels.h"

#include <QRandomGenerator>
#include <QUndoStack>

namespace {

using namespace ModelBuilder;

const QString arm = QStringLiteral("arm");
const QString hand = QStringLiteral("hand");

bool isAnyCollapsed(const GV_UiNode* node, bool collapsed)
{
    if (node->isCollapsed() == collapsed)
        return true;
    return std::any_of(node->childrenBegin(), node->childrenEnd(),
                       [=](const GV_UiNode* child) { return isAnyCollapsed(child, collapsed); });
}

} // namespace

/// Folding and unfolding of the whole tree, and the change between the display modes.
class tst_GV_GraphXViewCtrlFolding : public PanelTest
{
    Q_OBJECT

private:
    bool hasCollapsed() { return controller()->hasSubNodeWithCollapsedState(true); }
    bool hasExpanded() { return controller()->hasSubNodeWithCollapsedState(false); }
    void fold(const QString& name, bool collapsed = true)
    {
        _stage->node(name)->setCollapsed(collapsed);
        _stage->graph().calculateGeometricData();
    }
    QString tree() { return outline(_stage->graph().rootUiNode()); }
    static bool storedMode()
    {
        return PR_Preference::instance()->getBoolValue(extendedKey(), false);
    }
    /// An element whose display modes differ.
    MO_ElementModule& addMixed(const QString& name)
    {
        return _stage->addElement(
            name, model(group("scene", {key("arm", {group("plain", {shapedKey("hand")})})})));
    }
    static QString keyNodesOf(const QString& element)
    {
        return element + QStringLiteral("(arm(hand))");
    }
    static QString everyNodeOf(const QString& element)
    {
        return element + QStringLiteral("(scene(arm(plain(hand()))))");
    }

private slots:
    void collapsing_all_folds_every_node_of_the_open_tree()
    {
        QVERIFY(showRobots());
        QVERIFY(hasExpanded());
        QVERIFY(!hasCollapsed());
        QVERIFY(repaints([&] { controller()->setAllCollapsedState(true); }) > 0);
        for (const GV_UiNode* node : preOrder(_stage->graph().rootUiNode())) {
            QVERIFY(node->isCollapsed());
            QCOMPARE(node->row(), node->isHeaderNode() ? 0 : -1);
        }
        QCOMPARE(_stage->graph().shownRows().nodes().size(), std::size_t(1));
        QVERIFY(!hasExpanded());
        QVERIFY(hasCollapsed());
    }

    void expanding_all_unfolds_every_node_of_the_open_tree()
    {
        QVERIFY(showRobots());
        controller()->setAllCollapsedState(true);
        QVERIFY(repaints([&] { controller()->setAllCollapsedState(false); }) > 0);
        int row = 0;
        for (const GV_UiNode* node : preOrder(_stage->graph().rootUiNode())) {
            QVERIFY(!node->isCollapsed());
            QCOMPARE(node->row(), row++);
        }
        QCOMPARE(row, 5);
        QVERIFY(hasExpanded());
        QVERIFY(!hasCollapsed());
    }

    void a_tree_that_is_folded_in_part_can_go_both_ways()
    {
        QVERIFY(showRobots());
        for (const bool collapsed : {true, false}) {
            controller()->setAllCollapsedState(!collapsed);
            fold(arm, collapsed);
            QVERIFY(hasExpanded());
            QVERIFY(hasCollapsed());
            QVERIFY(repaints([&] { controller()->setAllCollapsedState(collapsed); }) > 0);
            QCOMPARE(hasCollapsed(), collapsed);
            QCOMPARE(hasExpanded(), !collapsed);
        }
    }

    void nothing_happens_where_no_flag_changes()
    {
        QVERIFY(showRobots());
        for (const bool collapsed : {false, true}) {
            controller()->setAllCollapsedState(collapsed);
            const std::uint64_t layout = GV_UiNode::layoutRevision();
            QCOMPARE(repaints([&] { controller()->setAllCollapsedState(collapsed); }), 0);
            QCOMPARE(GV_UiNode::layoutRevision(), layout);
        }
    }

    void leaves_and_what_is_folded_away_count_as_well()
    {
        QVERIFY(showRobots());
        controller()->setAllCollapsedState(true);
        fold(hand, false);
        QCOMPARE(_stage->node(hand)->row(), -1);
        QVERIFY(hasExpanded());
        controller()->setAllCollapsedState(true);
        QVERIFY(_stage->node(hand)->isCollapsed());
        controller()->setAllCollapsedState(false);
        fold(QStringLiteral("a"));
        QVERIFY(hasCollapsed());
    }

    void only_the_open_tree_is_folded()
    {
        QVERIFY(showRobots());
        const GV_UiNode* inA = _stage->node(arm);
        _stage->select({node(QStringLiteral("b"))});
        controller()->setAllCollapsedState(true);
        QVERIFY(_stage->node(arm)->isCollapsed());
        QVERIFY(inA != _stage->node(arm));
        std::vector<const GV_UiNode*> headers;
        _stage->graph().headerNodes(headers);
        QVERIFY(!headers[0]->isCollapsed());
        QVERIFY(!inA->isCollapsed());
        QVERIFY(!hasExpanded());
        _stage->select({node(QStringLiteral("a"))});
        QVERIFY(!hasCollapsed());
    }

    void without_an_open_tree_there_is_nothing_to_fold()
    {
        QVERIFY(startWith({}));
        for (int round = 0; round < 2; ++round) {
            for (const bool collapsed : {true, false}) {
                QVERIFY(!controller()->hasSubNodeWithCollapsedState(collapsed));
                QCOMPARE(repaints([&] { controller()->setAllCollapsedState(collapsed); }), 0);
            }
            _stage->addElement(QStringLiteral("a"));
        }
        std::vector<const GV_UiNode*> headers;
        _stage->graph().headerNodes(headers);
        QVERIFY(!headers.at(0)->isCollapsed());
    }

    void folding_changes_nothing_in_the_host()
    {
        QVERIFY(showRobots());
        controller()->setAllCollapsedState(true);
        controller()->setAllCollapsedState(false);
        controller()->onToggleDisplayMode();
        QCOMPARE(takeNotices(), std::pair(0, 0));
        QCOMPARE(selected(), QStringLiteral("a(leg)"));
        QCOMPARE(_stage->selectedNames(),
                 QStringList({QStringLiteral("a"), QStringLiteral("leg")}));
        QVERIFY(!_stage->context().commandManager()->history()->canUndo());
    }

    void the_display_mode_changes_between_key_nodes_and_every_node()
    {
        QVERIFY(startWith({&addMixed(QStringLiteral("a"))}));
        const QString keyNodes = tree();
        QCOMPARE(keyNodes, keyNodesOf(QStringLiteral("a")));
        QVERIFY(!controller()->isExtendedDisplay());
        fold(arm);
        QVERIFY(repaints([&] { controller()->onToggleDisplayMode(); }) > 0);
        QVERIFY(controller()->isExtendedDisplay());
        QVERIFY(storedMode());
        QCOMPARE(tree(), everyNodeOf(QStringLiteral("a")));
        QVERIFY(!hasCollapsed());
        int row = 0;
        for (const GV_UiNode* node : preOrder(_stage->graph().rootUiNode()))
            QCOMPARE(node->row(), row++);
        QVERIFY(repaints([&] { controller()->onToggleDisplayMode(); }) > 0);
        QVERIFY(!controller()->isExtendedDisplay());
        QVERIFY(!storedMode());
        QCOMPARE(tree(), keyNodes);
    }

    void without_any_model_the_display_mode_is_stored_for_the_next()
    {
        QVERIFY(startWith({}));
        QCOMPARE(repaints([&] { controller()->onToggleDisplayMode(); }), 0);
        QVERIFY(controller()->isExtendedDisplay());
        QVERIFY(storedMode());
        _stage->select({&addMixed(QStringLiteral("a"))});
        QCOMPARE(tree(), everyNodeOf(QStringLiteral("a")));
    }

    void without_an_open_model_the_display_mode_is_stored_for_the_next()
    {
        MO_ElementModule& a = addMixed(QStringLiteral("a"));
        MO_ElementModule& b = addMixed(QStringLiteral("b"));
        QVERIFY(startWith({&b}));
        QCOMPARE(tree(), keyNodesOf(QStringLiteral("b")));
        _stage->select({});
        QVERIFY(repaints([&] { controller()->onToggleDisplayMode(); }) > 0);
        QVERIFY(controller()->isExtendedDisplay());
        QVERIFY(storedMode());
        QVERIFY(!_stage->graph().rootUiNode());
        for (MO_ElementModule* each : {&a, &b}) {
            _stage->select({each});
            QCOMPARE(tree(), everyNodeOf(each->instanceName()));
        }
    }

    void models_that_open_later_follow_the_display_mode()
    {
        MO_ElementModule& a = addMixed(QStringLiteral("a"));
        MO_ElementModule& b = addMixed(QStringLiteral("b"));
        QVERIFY(startWith({&b}));
        _stage->select({&a});
        controller()->onToggleDisplayMode();
        _stage->select({&b});
        QCOMPARE(tree(), everyNodeOf(QStringLiteral("b")));
        controller()->onToggleDisplayMode();
        _stage->select({&a});
        QCOMPARE(tree(), keyNodesOf(QStringLiteral("a")));
    }

    void a_new_view_starts_in_the_display_mode_that_was_chosen_last()
    {
        QVERIFY(startWith({&addMixed(QStringLiteral("a"))}));
        const std::unique_ptr<View> earlier = _stage->newView();
        controller()->onToggleDisplayMode();
        const std::unique_ptr<View> later = _stage->newView();
        QVERIFY(later->controller()->isExtendedDisplay());
        QCOMPARE(outline(later->controller()->uiInfo()->rootUiNode()),
                 everyNodeOf(QStringLiteral("a")));
        QVERIFY(!earlier->controller()->isExtendedDisplay());
        QCOMPARE(outline(earlier->controller()->uiInfo()->rootUiNode()),
                 keyNodesOf(QStringLiteral("a")));
        later->controller()->onToggleDisplayMode();
        QVERIFY(!_stage->newView()->controller()->isExtendedDisplay());
        QVERIFY(controller()->isExtendedDisplay());
    }

    void the_fold_states_are_those_that_a_plain_search_finds()
    {
        QRandomGenerator random(17);
        MO_ElementModule& a = _stage->addElement(QStringLiteral("a"), randomModel(3, 12));
        MO_ElementModule& b = _stage->addElement(QStringLiteral("b"), randomModel(4, 5));
        // One that comes and goes with the frames, its tree with it.
        MO_ElementModule& c = _stage->addElement(QStringLiteral("c"), randomModel(5, 6), 1, 10);
        QVERIFY(startWith({&a}));
        int answers[2] = {0, 0};
        for (int step = 0; step < 1500; ++step) {
            GV_UiNode* root = _stage->graph().rootUiNode();
            const std::vector<GV_UiNode*> nodes = preOrder(root);
            switch (root ? random.bounded(9) : 8) {
            case 0:
                controller()->onToggleDisplayMode();
                break;
            case 1:
                controller()->setAllCollapsedState(random.bounded(2));
                break;
            case 2:
                foldAtRandom(random, root);
                _stage->graph().calculateGeometricData();
                break;
            case 3:
                _stage->goToFrame(random.bounded(2) ? 5 : 20);
                break;
            case 4:
            case 5: {
                GV_UiNode* node = nodes[random.bounded(quint32(nodes.size()))];
                if (node->column() >= 0 && node->hasChildren()) {
                    _mouse->click(corner(node) + QPoint(12, GV_LayoutGrid::controlCentreY));
                    break;
                }
                [[fallthrough]];
            }
            case 6:
            case 7: {
                // Towards the state that most have, so that the last ones are met as well.
                GV_UiNode* node = nodes[random.bounded(quint32(nodes.size()))];
                node->setCollapsed(step / 100 % 2);
                break;
            }
            default:
                _stage->select({std::vector<MO_Node*>{&a, &b, &c}[random.bounded(3)]});
            }
            root = _stage->graph().rootUiNode();
            for (const bool collapsed : {true, false}) {
                const bool found = root && isAnyCollapsed(root, collapsed);
                QCOMPARE(controller()->hasSubNodeWithCollapsedState(collapsed), found);
                ++answers[found];
            }
        }
        QVERIFY2(answers[0] > 100 && answers[1] > 100, "one answer comes too rarely");
    }
};

QTEST_MAIN(tst_GV_GraphXViewCtrlFolding)
#include "tst_GV_GraphXViewCtrlFolding.moc"
