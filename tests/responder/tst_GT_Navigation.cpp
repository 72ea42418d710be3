// SPDX-License-Identifier: MIT

#include "host/models/TD_CelVq3d.h"
#include "host/models/TD_NodeName.h"
#include "host/models/TD_SceneGraphUtil.h"
#include "tests/responder/ResponderTest.h"

#include <QWidget>
#include <functional>
#include <vector>

namespace {

using namespace ModelBuilder;
using Visit = std::function<void(const osg::NodePtr&)>;

void forEachChild(osg::NodePtr node, const Visit& visit)
{
    for (osg::UInt32 ix = 0; ix < node->getNChildren(); ++ix)
        visit(node->getChild(ix));
}

bool isKey(const osg::NodePtr& node)
{
    return TD_SceneGraphUtil::isKeySubnode(node);
}

/// Every key node, each with the nearest one above it, in pre-order.
struct Relation
{
    osg::NodePtr node;
    osg::NodePtr above;
};

void collect(const osg::NodePtr& node, const osg::NodePtr& above, std::vector<Relation>& all)
{
    if (isKey(node))
        all.push_back({node, above});
    forEachChild(
        node, [&](const osg::NodePtr& child) { collect(child, isKey(node) ? node : above, all); });
}

/// Where the walks lead from the first key node of a name: parent, child, next, previous.
QStringList expectedWalks(const osg::NodePtr& root, const QString& name)
{
    std::vector<Relation> all;
    collect(root, osg::NullFC, all);
    std::size_t at = 0;
    while (TD_nodeName(all.at(at).node) != name)
        ++at;
    const Relation& current = all.at(at);
    std::vector<QString> siblings;
    std::size_t place = 0;
    QString child;
    for (std::size_t ix = 0; ix < all.size(); ++ix) {
        if (all.at(ix).above == current.above) {
            if (ix == at)
                place = siblings.size();
            siblings.push_back(TD_nodeName(all.at(ix).node));
        }
    }
    // What comes right behind it in pre-order is its child, or is not below it at all.
    if (at + 1 < all.size() && all.at(at + 1).above == current.node)
        child = TD_nodeName(all.at(at + 1).node);
    const std::size_t count = siblings.size();
    const bool alone = count < 2 || osg::NodePtr(current.node)->getParent() == osg::NullFC;
    return {TD_nodeName(current.above), child, alone ? QString() : siblings.at((place + 1) % count),
            alone ? QString() : siblings.at((place + count - 1) % count)};
}

} // namespace

/// Walking from a subnode to its relatives.
class tst_GT_Navigation : public ResponderTest
{
    Q_OBJECT

private:
    QStringList keys()
    {
        return {_responder->getSelectedParentNodeKey(), _responder->getFirstSelectedChildNodeKey(),
                _responder->getSelectedNextSiblingNodeKey(),
                _responder->getSelectedPreviousSiblingNodeKey()};
    }
    /// Where the walks lead from a subnode: parent, child, next, previous. Fails when a walk leads
    /// elsewhere than its validator and its key say.
    QStringList walksFrom(const MO_ElementModule& element, const QString& name)
    {
        QStringList ends;
        for (qsizetype ix = 0; ix < walkingActions().size(); ++ix) {
            const QByteArray action = walkingActions().at(ix);
            subSelectOnly(element, {name});
            const QString key = keys().at(ix);
            const bool enabled = isEnabled(action);
            run(action);
            const QStringList ended = subSelected(element);
            if (enabled != !key.isEmpty() || ended != QStringList{enabled ? key : name}) {
                QTest::qFail(action.constData(), __FILE__, __LINE__);
            }
            ends.append(key);
        }
        return ends;
    }

    /// Calls the action while a key is held down in a window.
    template <class Action>
    static void holding(Qt::Key key, Qt::KeyboardModifier modifier, const Action& action)
    {
        QWidget window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTest::keyPress(window.windowHandle(), key, modifier);
        action();
        QTest::keyRelease(window.windowHandle(), key);
        QCOMPARE(QGuiApplication::keyboardModifiers(), Qt::NoModifier);
    }

private slots:
    void walks_lead_to_the_relatives_data()
    {
        QTest::addColumn<QString>("from");
        QTest::addColumn<QStringList>("walks");
        QTest::newRow("the first of three") << "a" << QStringList{"top", "a1", "b", "c"};
        QTest::newRow("the middle one") << "b" << QStringList{"top", "", "c", "a"};
        QTest::newRow("the last one") << "c" << QStringList{"top", "c1", "a", "b"};
        QTest::newRow("an only child") << "a1" << QStringList{"a", "a2", "", ""};
        QTest::newRow("an only child without children") << "a2" << QStringList{"a1", "", "", ""};
        QTest::newRow("the first of two") << "c1" << QStringList{"c", "", "c2", "c2"};
        QTest::newRow("the second of two") << "c2" << QStringList{"c", "", "c1", "c1"};
        QTest::newRow("below a plain root") << "top" << QStringList{"", "a", "side", "side"};
        QTest::newRow("below plain nodes") << "side" << QStringList{"", "", "top", "top"};
    }
    void walks_lead_to_the_relatives()
    {
        QFETCH(const QString, from);
        QFETCH(const QStringList, walks);
        // Plain nodes stand between many of them, and relate them as if they were not there.
        const MO_ElementModule& element = addSelected(model(group(
            "scene",
            {key("top",
                 {transform("t", {group("g", {key("a", {geometry("x"), key("a1", {key("a2")})})})}),
                  coreless("n", {key("b")}),
                  key("c", {transform("u", {key("c1")}), geometry("s", {key("c2")})})}),
             transform("v", {group("w", {key("side")})})})));
        QCOMPARE(walksFrom(element, from), walks);
    }

    void at_the_very_top_there_are_no_siblings()
    {
        const MO_ElementModule& root = addSelected();
        QCOMPARE(walksFrom(root, "body"), QStringList({"", "arm", "", ""}));
        const MO_ElementModule& alone = addSelected(model(key("one")));
        QCOMPARE(walksFrom(alone, "one"), QStringList({"", "", "", ""}));
        const MO_ElementModule& below = addSelected(model(group("scene", {key("one")})));
        QCOMPARE(walksFrom(below, "one"), QStringList({"", "", "", ""}));
    }

    void of_equal_names_the_first_one_is_where_walks_begin()
    {
        const MO_ElementModule& element =
            addSelected(model(group("scene", {key("a", {key("same", {key("low")}), key("b")}),
                                              key("c", {key("same", {key("other")}), key("d")})})));
        QCOMPARE(walksFrom(element, "same"), QStringList({"a", "low", "b", "b"}));
        // A walk may arrive at the name, and goes on from the first one.
        subSelectOnly(element, {"d"});
        run(nextAction);
        QCOMPARE(subSelected(element), QStringList{"same"});
        run(parentAction);
        QCOMPARE(subSelected(element), QStringList{"a"});
    }

    void walks_do_not_lead_to_subnodes_without_a_name()
    {
        const MO_ElementModule& element = addSelected(
            model(key("", {key("a", {key(noName, {key("deep")})}), key(""), key("b"), key("c")})));
        QCOMPARE(walksFrom(element, "a"), QStringList({"", "", "", "c"}));
        QCOMPARE(walksFrom(element, "b"), QStringList({"", "", "c", ""}));
        QCOMPARE(walksFrom(element, "deep"), QStringList({"", "", "", ""}));
    }

    void walks_begin_at_what_was_sub_selected_first()
    {
        const MO_ElementModule& element = addSelected();
        for (const QByteArray& action : {parentAction, nextAction, previousAction, childAction}) {
            subSelectOnly(element, {"arm", "hand", "leg"});
            run(action);
            QCOMPARE(subSelected(element), QStringList{action == parentAction  ? "body"
                                                       : action == childAction ? "hand"
                                                                               : "leg"});
        }
    }

    void a_subnode_that_the_model_shown_now_lacks_has_no_relatives()
    {
        MO_ElementModule& element = addSelected();
        element.exposeModel(5, 6, model(group("scene", {key("x"), key("y")})));
        subSelectOnly(element, {"x"});
        QCOMPARE(keys(), QStringList({"", "", "", ""}));
        QCOMPARE(walksFrom(element, "x"), QStringList({"", "", "", ""}));
        _stage->goToFrame(5);
        QCOMPARE(keys(), QStringList({"", "", "y", "y"}));
        QCOMPARE(walksFrom(element, "hand"), QStringList({"", "", "", ""}));
    }

    void every_walk_is_told_once()
    {
        const MO_ElementModule& element = addSelected();
        TUSceneChangeManager* changes = _stage->context().changeManager();
        for (const QByteArray& action : walkingActions()) {
            subSelectOnly(element, {"arm"});
            QStringList toldWith;
            const auto connection =
                connect(changes, &TUSceneChangeManager::subSelectionChanged, this,
                        [&] { toldWith += subSelected(element).join(QLatin1Char(' ')); });
            QSignalSpy others(changes, &TUSceneChangeManager::selectionChanged);
            isEnabled(action);
            QCOMPARE(toldWith, QStringList());
            run(action);
            QCOMPARE(toldWith, subSelected(element));
            QVERIFY(others.isEmpty());
            disconnect(connection);
        }
        QCOMPARE(history().count(), 0);
    }

    void nothing_is_told_without_a_sub_selection()
    {
        addSelected();
        QSignalSpy told(_stage->context().changeManager(),
                        &TUSceneChangeManager::subSelectionChanged);
        _responder->selectSubnode(QStringLiteral("arm"));
        for (const QByteArray& action : walkingActions())
            run(action);
        QVERIFY(told.isEmpty());
        _responder->subSelectionHasChanged();
        QCOMPARE(told.count(), 1);
    }

    void an_unknown_subnode_leaves_the_sub_selection()
    {
        const MO_ElementModule& element = addSelected();
        subSelectOnly(element, {"arm", "leg"});
        for (const char* name : {"", "nobody", "ARM"}) {
            _responder->selectSubnode(QLatin1String(name));
            QCOMPARE(subSelected(element), QStringList({"arm", "leg"}));
        }
        _responder->selectSubnode(QStringLiteral("leg"));
        QCOMPARE(subSelected(element), QStringList{"leg"});
    }

    void with_a_key_held_walks_add_to_the_sub_selection_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<Qt::KeyboardModifier>("modifier");
        QTest::addColumn<bool>("appends");
        QTest::newRow("Shift") << Qt::Key_Shift << Qt::ShiftModifier << true;
        QTest::newRow("Control") << Qt::Key_Control << Qt::ControlModifier << true;
        QTest::newRow("Alt") << Qt::Key_Alt << Qt::AltModifier << false;
    }
    void with_a_key_held_walks_add_to_the_sub_selection()
    {
        QFETCH(const Qt::Key, key);
        QFETCH(const Qt::KeyboardModifier, modifier);
        QFETCH(const bool, appends);
        const MO_ElementModule& element = addSelected();
        const QStringList targets{"body", "hand", "leg", "leg"};
        QVERIFY(!_responder->appendToSelection());
        holding(key, modifier, [&] {
            QCOMPARE(QGuiApplication::keyboardModifiers(), modifier);
            QCOMPARE(_responder->appendToSelection(), appends);
            for (qsizetype ix = 0; ix < targets.size(); ++ix) {
                subSelectOnly(element, {"arm"});
                QSignalSpy told(_stage->context().changeManager(),
                                &TUSceneChangeManager::subSelectionChanged);
                run(walkingActions().at(ix));
                QCOMPARE(subSelected(element), appends ? QStringList({"arm", targets.at(ix)})
                                                       : QStringList{targets.at(ix)});
                QCOMPARE(told.count(), 1);
            }
        });
        QVERIFY(!_responder->appendToSelection());
    }

    void walks_in_random_models_lead_where_the_scene_graph_says()
    {
        int walked = 0;
        for (quint32 seed = 1; seed <= 60; ++seed) {
            const auto shown = randomModel(seed, 2 + static_cast<int>(seed % 40));
            MO_ElementModule& element = addSelected(shown);
            std::vector<Relation> all;
            collect(shown->rootNodePtr(), osg::NullFC, all);
            for (const Relation& relation : all) {
                const QString name = TD_nodeName(relation.node);
                if (name.isEmpty())
                    continue;
                QCOMPARE(walksFrom(element, name), expectedWalks(shown->rootNodePtr(), name));
                ++walked;
            }
            _stage->remove(element);
        }
        QVERIFY(walked > 300);
    }
};

QTEST_MAIN(tst_GT_Navigation)
#include "tst_GT_Navigation.moc"
