// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXViewQt.h"
#include "graphview/GV_LayoutGrid.h"
#include "graphview/GV_UiNode.h"
#include "host/models/AT_ModelNodeKey.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/TUScene.h"
#include "host/selection/SL_SubSelectionUtil.h"
#include "tests/graphview/PanelMouse.h"
#include "tests/subnodetree/TreeTest.h"

#include <QRandomGenerator>
#include <QSet>
#include <array>
#include <functional>

namespace {

using namespace ModelBuilder;

CEL_SharedPtr<TD_CelVq3d> craneModel()
{
    return model(group(
        "scene", {key("base", {key("mast", {transform("shift", {key("boom", {shapedKey("hook")})}),
                                            shapedKey("cabin")})}),
                  shapedKey("wheel_left"), shapedKey("wheel_right")}));
}

/// Some of the crane's subnodes and some of its own.
CEL_SharedPtr<TD_CelVq3d> truckModel()
{
    return model(key("chassis", {shapedKey("cabin"), shapedKey("wheel_left"),
                                 key("trailer", {shapedKey("wheel_right"), shapedKey("hook")})}));
}

} // namespace

/// A graph view and a subnode tree on one session, and everything that users do to both: they never
/// differ on what is selected.
class tst_both_views_agree : public TreeTest
{
    Q_OBJECT

private:
    /// The element that both views show; null when none is selected.
    MO_ElementModule* shownElement()
    {
        return dynamic_cast<MO_ElementModule*>(_stage->context().selection()->firstNode());
    }
    std::vector<MO_Node*> nodes() { return _stage->scene().rootGroup()->nodes(); }
    int below(int bound) { return static_cast<int>(_random.bounded(bound)); }
    Qt::KeyboardModifiers someModifier()
    {
        constexpr std::array modifiers{Qt::NoModifier, Qt::NoModifier, Qt::ControlModifier,
                                       Qt::ShiftModifier};
        return modifiers.at(static_cast<std::size_t>(below(4)));
    }
    static bool isSubnode(const QModelIndex& row) { return row.flags() & Qt::ItemIsSelectable; }

    void addAtRandom()
    {
        const QS name = QS("element%1").arg(_added++);
        MO_ElementModule& element = _stage->addElement(name, craneModel(), 1, 4);
        element.exposeModel(5, 7, truckModel());
        _stage->notify();
    }

    /// A gesture on the tree: one step when it changed anything, and none otherwise.
    QString treeGesture(const std::function<void()>& gesture)
    {
        const QStringList before = _stage->subSelected();
        const int steps = _stage->history().index();
        gesture();
        const int made = _stage->history().index() - steps;
        const bool changed = _stage->subSelected() != before;
        if (made != (changed ? 1 : 0))
            return QS("%1 steps for a change from (%2) to (%3)")
                .arg(made)
                .arg(before.join(u' '), _stage->subSelected().join(u' '));
        if (changed && _stage->lastStep() != QS("Subnode Selection"))
            return QS("a step named ") + _stage->lastStep();
        _clicks += changed ? 1 : 0;
        return {};
    }
    /// Anything that must leave the sub-selection and the history as they are.
    QString quietly(const std::function<void()>& action)
    {
        const QStringList before = _stage->subSelected();
        const int steps = _stage->history().index();
        action();
        if (_stage->subSelected() != before)
            return QS("the sub-selection changed");
        return _stage->history().index() == steps ? QS() : QS("the history changed");
    }

    QString clickTree()
    {
        QModelIndexList shown;
        for (const QModelIndex& row : _stage->rows()) {
            bool hidden = false;
            for (QModelIndex above = row.parent(); above.isValid(); above = above.parent())
                hidden = hidden || !_stage->tree().isExpanded(above);
            if (!hidden)
                shown.append(row);
        }
        if (shown.isEmpty())
            return {};
        const QModelIndex row = shown.at(below(static_cast<int>(shown.size())));
        const QS name = row.data(SGV_GraphModel::SubnodeKeyRole).toString();
        return treeGesture([&] { _stage->click(name, someModifier()); });
    }
    void clickGraph()
    {
        std::vector<GV_UiNode*> boxes;
        for (const QModelIndex& row : _stage->rows()) {
            if (GV_UiNode* node = _stage->node(row.data(SGV_GraphModel::SubnodeKeyRole).toString()))
                boxes.push_back(node);
        }
        QPoint at(700, 500);
        if (!boxes.empty() && below(6) > 0) {
            const GV_UiNode* node =
                boxes.at(static_cast<std::size_t>(below(static_cast<int>(boxes.size()))));
            at = QPoint(_stage->graph().visibleGraphIx() * GV_LayoutGrid::headerPitch +
                            node->column() * GV_LayoutGrid::indent + 60,
                        node->row() * GV_LayoutGrid::rowPitch + 12);
        }
        _mouse->click(at, someModifier());
    }
    void subSelectInHost()
    {
        const MO_ElementModule* element = shownElement();
        if (!element)
            return;
        SLB_NodeInterface* selected = element->selInterface();
        const int id = 1 + below(14);
        switch (below(4)) {
        case 0:
            selected->subDeselect(id);
            break;
        case 1:
            selected->clearSubSelection();
            break;
        default:
            selected->subSelect(id, below(3) > 0);
        }
        _stage->notify();
    }
    void selectInHost()
    {
        std::vector<MO_Node*> chosen;
        for (MO_Node* node : nodes()) {
            if (below(2) == 0)
                chosen.insert(chosen.begin(), node);
        }
        _stage->select(chosen);
    }
    void hideAndShow()
    {
        if (MO_ElementModule* element = shownElement())
            _stage->setVisible(*element, _stage->subSelected(), below(2) == 0, 1 + below(9));
        tellSubSelection();
    }
    QString moveInTime()
    {
        const QS fault = quietly([&] { _stage->goToFrame(1 + below(9)); });
        tellSubSelection();
        return fault;
    }
    /// Nodes that come into the graph with a frame or a change are not selected before the next
    /// word of the sub-selection.
    void tellSubSelection()
    {
        _stage->context().changeManager()->emitSubSelectionChanged();
        _stage->notify();
    }
    /// Leaves a state in which there is nothing to click on.
    QString showSomething()
    {
        if (!shownElement()) {
            selectInHost();
            return {};
        }
        return quietly([&] {
            _stage->filter(QString());
            _stage->goToFrame(1 + below(7));
            tellSubSelection();
        });
    }
    QString fold()
    {
        constexpr std::array folding{"onActionCollapseAll", "onActionExpandAll",
                                     "onActionCollapseSelection", "onActionExpandSelection"};
        return quietly([&] { _stage->perform(folding.at(static_cast<std::size_t>(below(4)))); });
    }
    void deleteShown()
    {
        if (MO_ElementModule* element = shownElement())
            _stage->remove(*element);
        while (nodes().size() < 3)
            addAtRandom();
    }

    /// Makes a move; what it did wrong, or nothing.
    QString move()
    {
        if (_stage->rows().isEmpty() && below(3) == 0)
            return showSomething();
        const int kind = below(100);
        if (kind < 34)
            return clickTree();
        if (kind < 50)
            clickGraph();
        else if (kind < 60)
            subSelectInHost();
        else if (kind < 66)
            return quietly([&] {
                constexpr std::array texts{"", "", "", "w", "HOOK", "cabin", "zzz", "."};
                _stage->filter(QS::fromLatin1(texts.at(static_cast<std::size_t>(below(8)))));
            });
        else if (kind < 73)
            return moveInTime();
        else if (kind < 80)
            _stage->history().undo();
        else if (kind < 85)
            _stage->history().redo();
        else if (kind < 90)
            selectInHost();
        else if (kind < 93)
            hideAndShow();
        else if (kind < 94)
            deleteShown();
        else if (kind < 96)
            return quietly([&] { _stage->panel().onActionToggleDebugMode(); });
        else if (kind < 98)
            return fold();
        else
            return treeGesture([&] { _stage->perform(below(2) == 0 ? "selectAll" : "deselect"); });
        return {};
    }

    /// How the views differ from the host; empty when they do not.
    QString difference()
    {
        const QStringList host = _stage->subSelected();
        const QSet<QS> wanted(host.begin(), host.end());
        QStringList expected;
        for (const QModelIndex& row : _stage->rows()) {
            const QS name = row.data(SGV_GraphModel::SubnodeKeyRole).toString();
            if (isSubnode(row) && wanted.contains(name))
                expected.append(name);
        }
        if (_stage->selectedRows() != expected)
            return QS("the tree has (%1) where the host has (%2)")
                .arg(_stage->selectedRows().join(u' '), host.join(u' '));
        return differenceInGraph();
    }
    /// The same for the graph view, which may have another one of the selected elements open. It
    /// has of the host's sub-selection what there are nodes of.
    QString differenceInGraph()
    {
        QStringList expected;
        const MO_ElementModule* open = _stage->graph().visibleGraphModelNode();
        for (const int id :
             SL_SubSelectionUtil::getSubSelectedIds(open ? open->selInterface() : nullptr)) {
            AT_ModelNodeKey key;
            if (open->getNodeKeyForSelId(id, key) && _stage->node(key.name()))
                expected.append(key.name());
        }
        QStringList inGraph = _stage->selectedNames();
        inGraph.removeIf([](const QS& name) { return name.startsWith(QS("element")); });
        if (inGraph == sorted(expected))
            return {};
        return QS("the graph has (%1) where the host has (%2)")
            .arg(inGraph.join(u' '), expected.join(u' '));
    }

    QRandomGenerator _random;
    std::unique_ptr<PanelMouse> _mouse;
    int _added = 0;
    /// How many clicks on the tree have changed something.
    int _clicks = 0;

private slots:
    void cleanup()
    {
        _mouse.reset();
        TreeTest::cleanup();
    }

    void a_click_in_either_view_shows_in_the_other()
    {
        MO_ElementModule& element = _stage->addElement(QS("robot"));
        _mouse = std::make_unique<PanelMouse>(_stage->view());
        QVERIFY(_mouse->show());
        QVERIFY(_stage->show());
        _stage->select({&element});
        _stage->click(QS("hand"));
        QVERIFY(_stage->selectedNames().contains(QS("hand")));
        const GV_UiNode* leg = _stage->node(QS("leg"));
        _mouse->click(QPoint(leg->column() * GV_LayoutGrid::indent + 60,
                             leg->row() * GV_LayoutGrid::rowPitch + 12));
        QCOMPARE(_stage->subSelected(), names("leg"));
        QCOMPARE(_stage->selectedRows(), names("leg"));
        QVERIFY(_stage->selectedNames().contains(QS("leg")));
        QVERIFY(!_stage->selectedNames().contains(QS("hand")));
    }

    void whatever_is_done_they_agree_data()
    {
        QTest::addColumn<quint32>("seed");
        for (const quint32 seed : {1U, 2U, 3U, 4U, 5U})
            QTest::addRow("%u", seed) << seed;
    }
    void whatever_is_done_they_agree()
    {
        QFETCH(const quint32, seed);
        _random.seed(seed);
        _clicks = 0;
        while (nodes().size() < 2)
            addAtRandom();
        _stage->addPeg(QS("peg"));
        _mouse = std::make_unique<PanelMouse>(_stage->view());
        QVERIFY(_mouse->show());
        QVERIFY(_stage->show());
        _stage->select({nodes().front()});
        for (int step = 0; step < 400; ++step) {
            const QS fault = move();
            const QS where = QS("after %1 moves: ").arg(step + 1);
            QVERIFY2(fault.isEmpty(), qUtf8Printable(where + fault));
            const QS apart = difference();
            QVERIFY2(apart.isEmpty(), qUtf8Printable(where + apart));
        }
        QVERIFY(_clicks > 20);
    }
};

QTEST_MAIN(tst_both_views_agree)
#include "tst_both_views_agree.moc"
