// SPDX-License-Identifier: MIT
#include "ChangeLog.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/MO_PegModule.h"
#include "host/scene/TUScene.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SL_Selection.h"

#include <QRegularExpression>
#include <QTest>

namespace {

/// Counts how often it enters a scene and leaves it.
class Traveller : public MO_PegModule
{
public:
    Traveller(int& entered, int& left)
        : MO_PegModule(QStringLiteral("Traveller"))
        , _entered(entered)
        , _left(left)
    {
    }

protected:
    void setScene(TUScene* scene) override
    {
        MO_PegModule::setScene(scene);
        ++(scene ? _entered : _left);
    }

private:
    int& _entered;
    int& _left;
};

MO_Node* addPeg(MO_GroupModule& group, const char* name, int position = -1)
{
    return group.insertNode(std::make_unique<MO_PegModule>(QString::fromLatin1(name)), position);
}

MO_GroupModule* addGroup(MO_GroupModule& group, const char* name)
{
    return static_cast<MO_GroupModule*>(
        group.insertNode(std::make_unique<MO_GroupModule>(QString::fromLatin1(name))));
}

QString namesIn(const MO_GroupModule& group)
{
    QStringList names;
    for (const MO_Node* node : group.nodes())
        names << node->instanceName();
    return names.join(u' ');
}

} // namespace

class tst_MO_GroupModule : public QObject
{
    Q_OBJECT

private:
    TUSceneChangeManager _changes;

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(".?")); }

    void keeps_nodes_in_the_order_of_their_positions()
    {
        MO_GroupModule group{QString()};
        addPeg(group, "b");
        addPeg(group, "d");
        addPeg(group, "a", 0);
        addPeg(group, "c", 2);
        addPeg(group, "e", 4);
        addPeg(group, "f", 100);
        addPeg(group, "g", -1);
        QCOMPARE(namesIn(group), QStringLiteral("a b c d e f g"));
    }

    void knows_the_position_of_its_own_nodes_only()
    {
        MO_GroupModule group{QString()}, other{QString()};
        addPeg(group, "a");
        MO_Node* b = addPeg(group, "b");
        QCOMPARE(group.indexOf(b), 1);
        QCOMPARE(other.indexOf(b), -1);
        QCOMPARE(group.indexOf(nullptr), -1);
        QCOMPARE(b->parentGroup(), &group);
    }

    void ignores_a_null_node()
    {
        MO_GroupModule group{QString()};
        QVERIFY(!group.insertNode(nullptr));
        QVERIFY(!group.takeNode(nullptr));
        QVERIFY(group.nodes().empty());
    }

    void does_not_give_up_a_node_of_another_group()
    {
        MO_GroupModule group{QString()}, other{QString()};
        MO_Node* node = addPeg(other, "a");
        QVERIFY(!group.takeNode(node));
        QCOMPARE(other.indexOf(node), 0);
    }

    void takes_a_whole_subtree_into_the_scene_and_out_again()
    {
        int entered = 0, left = 0;
        auto outer = std::make_unique<MO_GroupModule>(QStringLiteral("Outer"));
        MO_GroupModule* inner = addGroup(*outer, "Inner");
        MO_Node* traveller = inner->insertNode(std::make_unique<Traveller>(entered, left));
        QVERIFY(!traveller->scene());
        QCOMPARE(entered, 0);

        TUScene scene(QStringLiteral("Scene"), &_changes);
        MO_Node* inserted = scene.rootGroup()->insertNode(std::move(outer));
        QCOMPARE(traveller->scene(), &scene);
        QCOMPARE(traveller->sceneCommon(), static_cast<SC_SceneCommon*>(&scene));
        QCOMPARE(entered, 1);

        const std::unique_ptr<MO_Node> taken = scene.rootGroup()->takeNode(inserted);
        QCOMPARE(taken.get(), inserted);
        QVERIFY(!traveller->scene());
        QVERIFY(!taken->parentGroup());
        QCOMPARE(traveller->parentGroup(), inner);
        QCOMPARE(left, 1);
    }

    void tells_a_node_that_it_leaves_when_the_scene_dies()
    {
        int entered = 0, left = 0;
        {
            TUScene scene(QStringLiteral("Scene"), &_changes);
            addGroup(*scene.rootGroup(), "Group")
                ->insertNode(std::make_unique<Traveller>(entered, left));
        }
        QCOMPARE(entered, 1);
        QCOMPARE(left, 1);
    }

    void notes_network_changes_for_the_node_that_came_or_went()
    {
        TUScene scene(QStringLiteral("Scene"), &_changes);
        _changes.notify();
        ChangeLog log(_changes);
        MO_Node* peg = addPeg(*scene.rootGroup(), "Peg");
        _changes.notify();
        QCOMPARE(log.take(), QStringList{"network Peg"});

        std::unique_ptr<MO_Node> taken = scene.rootGroup()->takeNode(peg);
        _changes.notify();
        QCOMPARE(log.take(), QStringList{"network Peg"});

        scene.rootGroup()->insertNode(std::move(taken));
        scene.rootGroup()->takeNode(peg).reset();
        _changes.notify();
        QCOMPARE(log.take(), QStringList{"network ?"});
    }

    void unselects_what_it_gives_up_and_everything_below()
    {
        SL_Selection selection(&_changes);
        TUScene scene(QStringLiteral("Scene"), &_changes);
        MO_GroupModule* group = addGroup(*scene.rootGroup(), "Group");
        MO_Node* inside = addPeg(*addGroup(*group, "Inner"), "Inside");
        MO_Node* outside = addPeg(*scene.rootGroup(), "Outside");
        for (MO_Node* node : {static_cast<MO_Node*>(group), inside, outside})
            selection.add(node);
        _changes.notify();
        ChangeLog log(_changes);

        const std::unique_ptr<MO_Node> taken = scene.rootGroup()->takeNode(group);
        QVERIFY(!group->selected());
        QVERIFY(!inside->selected());
        QCOMPARE(selection.nodes(), std::vector<MO_Node*>{outside});
        _changes.notify();
        QCOMPARE(log.take(), (QStringList{"network Group", "selection"}));
    }

    void survives_groups_nested_more_deeply_than_the_stack()
    {
        constexpr int depth = 20000;
        std::unique_ptr<MO_Node> chain = std::make_unique<MO_PegModule>(QStringLiteral("Leaf"));
        for (int i = 0; i < depth; ++i) {
            auto group = std::make_unique<MO_GroupModule>(QString());
            group->insertNode(std::move(chain));
            chain = std::move(group);
        }
        TUScene scene(QStringLiteral("Scene"), &_changes);
        MO_Node* top = scene.rootGroup()->insertNode(std::move(chain));
        chain = scene.rootGroup()->takeNode(top);
        chain.reset();
        _changes.notify();
    }
};

QTEST_GUILESS_MAIN(tst_MO_GroupModule)
#include "tst_MO_GroupModule.moc"
