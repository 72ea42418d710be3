// SPDX-License-Identifier: MIT

#include "graphview/GV_UiSgNode.h"
#include "tests/graphview/PanelTest.h"
#include "tests/graphview/ShownModels.h"

#include <QRandomGenerator>
#include <algorithm>
#include <set>

namespace {

using namespace ModelBuilder;

/// A tree of key nodes and plain ones. Few of its names are alike, and few are empty or missing.
Part randomTree(QRandomGenerator& random, int& nodes)
{
    static constexpr int maxChildren = 4;
    const int number = nodes--;
    Name name = "n" + std::to_string(number);
    if (const int choice = random.bounded(12); choice == 0)
        name = noName;
    else if (choice == 1)
        name = "n" + std::to_string(number + 1);
    Parts parts;
    for (int i = random.bounded(maxChildren); i > 0 && nodes > 0; --i)
        parts.push_back(randomTree(random, nodes));
    return random.bounded(3) ? key(name, parts) : group(name, parts);
}

/// Whether a closed rectangle and the closed box with this corner have a point in common.
bool meets(const QPoint& from, const QPoint& to, const QPoint& corner)
{
    const int left = std::min(from.x(), to.x());
    const int right = std::max(from.x(), to.x());
    const int top = std::min(from.y(), to.y());
    const int bottom = std::max(from.y(), to.y());
    return left <= corner.x() + 136 && corner.x() <= right && top <= corner.y() + 24 &&
           corner.y() <= bottom;
}

/// The hit nodes of a tree, each node looked at.
void addHits(const GV_UiNode* node, int treeX, const QPoint& from, const QPoint& to,
             std::vector<const GV_UiNode*>& hits)
{
    const QPoint corner(treeX + node->column() * 24, node->row() * 34);
    if (node->isSgNode() && node->isEditable() && node->column() >= 0 && meets(from, to, corner))
        hits.push_back(node);
    for (auto it = node->childrenBegin(); it != node->childrenEnd(); ++it)
        addHits(*it, treeX, from, to, hits);
}

/// What the host is to have selected.
struct Selected
{
    std::set<QString> nodes;
    std::vector<int> ids;

    friend bool operator==(const Selected&, const Selected&) = default;
};

} // namespace

/// Marquees on random trees, against a search that looks at every node.
class tst_GV_GraphXViewCtrlMarqueeHits : public PanelTest
{
    Q_OBJECT

private:
    /// What the host has selected, with the sub-selection of one element.
    Selected held(const MO_ElementModule* element)
    {
        Selected selected;
        for (const MO_Node* each : _stage->context().selection()->nodes())
            selected.nodes.insert(each->instanceName());
        if (element && element->selInterface())
            selected.ids = element->selInterface()->subSelectedIds();
        std::sort(selected.ids.begin(), selected.ids.end());
        return selected;
    }

    /// What is to be selected after a marquee is let go, from what is selected before.
    Selected expected(const Selected& before, QPoint from, QPoint to, bool extend, int& hitCount)
    {
        const MO_ElementModule* open = _stage->graph().visibleGraphModelNode();
        std::vector<const GV_UiNode*> hits;
        addHits(_stage->graph().rootUiNode(), _stage->graph().visibleGraphIx() * 160, from, to,
                hits);
        std::set<QString> hitElements;
        std::vector<const GV_UiNode*> headers;
        _stage->graph().headerNodes(headers);
        for (std::size_t ix = 0; ix < headers.size(); ++ix) {
            if (headers[ix]->isEditable() && meets(from, to, QPoint(static_cast<int>(ix) * 160, 0)))
                hitElements.insert(headers[ix]->name());
        }
        hitCount = static_cast<int>(hits.size() + hitElements.size());
        if (hitCount == 0)
            return before;
        Selected after = extend ? before : Selected();
        after.nodes.insert(hitElements.begin(), hitElements.end());
        if (extend || !hits.empty())
            after.nodes.insert(open->instanceName());
        std::set<int> ids(after.ids.begin(), after.ids.end());
        for (const GV_UiNode* node : hits) {
            int id = 0;
            if (open->getSelIdForNodeKey(AT_ModelNodeKey(node->name()), id))
                ids.insert(id);
        }
        after.ids.assign(ids.begin(), ids.end());
        return after;
    }

    /// Whether a press there starts a marquee.
    bool isFree(QPoint at)
    {
        int graphIx = -1;
        GV_UiNode* node = nullptr;
        GV_UiNode::eSelectionType type = GV_UiNode::eEmptySelection;
        if (!_stage->graph().getNodeSelectionInfo({double(at.x()), double(at.y())}, graphIx, node,
                                                  type))
            return true;
        return type != GV_UiNode::eCollapsingControlSelection &&
               (type != GV_UiNode::eNodeSelection || !node->isEditable());
    }

    /// A point of which the coordinates mostly lie on edges of boxes or one unit beside them.
    QPoint randomPoint(QRandomGenerator& random, const std::vector<GV_UiNode*>& nodes)
    {
        const auto coordinate = [&](bool horizontal) {
            const GV_UiNode* node = nodes[random.bounded(quint32(nodes.size()))];
            QPoint at = node->isHeaderNode() || node->column() < 0
                            ? QPoint(random.bounded(3) * 160, 0)
                            : corner(node);
            if (random.bounded(2))
                at += QPoint(136, 24);
            if (random.bounded(3) == 0)
                at += QPoint(random.bounded(3) - 1, random.bounded(3) - 1);
            if (random.bounded(6) == 0)
                at = QPoint(random.bounded(600), random.bounded(600));
            return std::max(horizontal ? at.x() : at.y(), 0);
        };
        return {coordinate(true), coordinate(false)};
    }

private slots:
    void random_marquees_hit_what_a_plain_search_hits()
    {
        QRandomGenerator random(29);
        int cases = 0;
        int hitSomething = 0;
        int beforeLayout = 0;
        for (int tree = 0; tree < 60; ++tree) {
            cleanup();
            init();
            std::vector<MO_Node*> elements;
            for (const char* name : {"x", "y", "z"}) {
                int nodes = 4 + random.bounded(11);
                elements.push_back(&_stage->addElement(
                    QLatin1String(name), model(group("root", {randomTree(random, nodes)}))));
            }
            dynamic_cast<MO_ElementModule*>(elements[random.bounded(3)])->setEditable(false);
            _stage->notify();
            QVERIFY(startWith({elements[random.bounded(3)]}));
            if (random.bounded(2))
                controller()->onToggleDisplayMode();
            for (int tries = 0, done = 0; done < 40 && tries < 400; ++tries) {
                const std::vector<GV_UiNode*> nodes = preOrder(_stage->graph().rootUiNode());
                const QPoint from = randomPoint(random, nodes);
                const QPoint to = randomPoint(random, nodes);
                if (!isFree(from))
                    continue;
                ++done;
                ++cases;
                const bool extend = random.bounded(2);
                QCOMPARE(
                    _mouse->press(from, random.bounded(4) ? Qt::ShiftModifier : Qt::NoModifier),
                    View::eMouseMarquee);
                _mouse->move(to);
                const bool laidOut = random.bounded(2);
                if (random.bounded(2)) {
                    foldAtRandom(random, _stage->graph().rootUiNode());
                    if (laidOut)
                        _stage->graph().calculateGeometricData();
                    else
                        ++beforeLayout;
                }
                const MO_ElementModule* open = _stage->graph().visibleGraphModelNode();
                int hits = 0;
                const Selected wanted = expected(held(open), from, to, extend, hits);
                hitSomething += hits > 0;
                _mouse->release(to, extend ? Qt::ShiftModifier : Qt::NoModifier);
                QCOMPARE(held(open).nodes, wanted.nodes);
                QCOMPARE(held(open).ids, wanted.ids);
                _stage->graph().calculateGeometricData();
            }
        }
        QVERIFY2(cases >= 2000, "there are too few cases");
        QVERIFY2(hitSomething > 500 && cases - hitSomething > 200, "one outcome comes too rarely");
        QVERIFY2(beforeLayout > 200, "trees are laid out too often");
    }
};

QTEST_MAIN(tst_GV_GraphXViewCtrlMarqueeHits)
#include "tst_GV_GraphXViewCtrlMarqueeHits.moc"
