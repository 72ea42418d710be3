// SPDX-License-Identifier: MIT
#include "PlainKeyNodes.h"
#include "SampleModel.h"
#include "host/models/TD_KeyNodeFinders.h"
#include "tests/graphview/ModelBuilder.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGGeometry.h>
#include <QRegularExpression>
#include <QTest>

using PlainKeyNodes::Nodes;
using PlainKeyNodes::wrongAnswer;

namespace {

osg::NodePtr find(const osg::NodePtr& root, const QString& name)
{
    return TD_FindKeyNode()(root, AT_ModelNodeKey(name));
}

osg::NodePtr firstChild(const osg::NodePtr& node)
{
    return TD_FindFirstChildKeyNode()(node);
}

osg::NodePtr parentOf(const osg::NodePtr& node)
{
    return TD_FindParentKeyNode()(node);
}

Nodes childrenOf(const osg::NodePtr& node)
{
    Nodes list;
    TD_FindChildrenKeyNode::getChildren(node, list);
    return list;
}

} // namespace

class tst_TD_KeyNodeFinders : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init() { QTest::failOnWarning(QRegularExpression(".?")); }

    void find_nothing_at_null()
    {
        QVERIFY(find(osg::NullFC, QStringLiteral("a")) == osg::NullFC);
        QVERIFY(parentOf(osg::NullFC) == osg::NullFC);
        QVERIFY(firstChild(osg::NullFC) == osg::NullFC);
        QVERIFY(childrenOf(osg::NullFC).empty());
        const Model empty = ModelBuilder::emptyModel();
        QVERIFY(find(empty->rootNodePtr(), QStringLiteral("a")) == osg::NullFC);
        QVERIFY(childrenOf(empty->rootNodePtr()).empty());
    }

    void agree_with_plain_walks_on_any_graph()
    {
        int keyNodes = 0;
        for (quint32 seed = 0; seed < 60; ++seed) {
            Model model = ModelBuilder::randomModel(seed, 1 + static_cast<int>(seed) * 2);
            const osg::NodeRefPtr root(model->rootNodePtr());
            QCOMPARE(wrongAnswer(root), QString());
            // And once more, now that everything was asked.
            QCOMPARE(wrongAnswer(root), QString());
            model.reset();
            QCOMPARE(wrongAnswer(root), QString());
            keyNodes += static_cast<int>(childrenOf(root).size());
        }
        QVERIFY(keyNodes > 60);
    }

    void agree_with_plain_walks_without_a_model()
    {
        using namespace ModelBuilder;
        const osg::NodeRefPtr root(
            build(group("root", {transform("part3", {key("", {key("part3")}), key(noName)}),
                                 coreless(noName, {key("part3", {geometry("part4")})}),
                                 key("part4"), geometry("part5")})));
        QCOMPARE(childrenOf(root).size(), 4u);
        QCOMPARE(wrongAnswer(root), QString());
    }

    void find_the_root_itself_when_it_is_a_subnode()
    {
        const osg::NodeRefPtr root(addNode<osg::KeyTransform>(osg::NullFC, "same"));
        const osg::NodePtr below = addNode<osg::KeyTransform>(root, "same");
        const auto check = [&] {
            QVERIFY(find(root, QStringLiteral("same")) == root);
            QVERIFY(firstChild(root) == below);
            QVERIFY(parentOf(below) == root);
            QVERIFY(parentOf(root) == osg::NullFC);
            QVERIFY(childrenOf(root) == Nodes{below});
        };
        check();
        const TD_CelVq3d model(root);
        check();
        QVERIFY(find(below, QStringLiteral("same")) == below);
    }

    void find_the_first_of_equal_names_in_pre_order()
    {
        const osg::NodeRefPtr root(addNode<osg::Group>(osg::NullFC, "same"));
        const osg::NodePtr plain = addNode<osg::Transform>(root, "same");
        const osg::NodePtr deep = addNode<osg::KeyTransform>(plain, "same");
        addNode<osg::KeyTransform>(root, "same");
        QVERIFY(find(root, QStringLiteral("same")) == deep);
        const TD_CelVq3d model(root);
        QVERIFY(find(root, QStringLiteral("same")) == deep);
    }

    void find_no_subnode_without_a_name_by_a_key()
    {
        const osg::NodeRefPtr root(osg::makeCoredNode<osg::KeyTransform>());
        addNode<osg::KeyTransform>(root, "");
        const auto check = [&] {
            QVERIFY(TD_FindKeyNode()(root, AT_ModelNodeKey()) == osg::NullFC);
            QVERIFY(find(root, QStringLiteral("")) == osg::NullFC);
            QCOMPARE(childrenOf(root).size(), 1u);
        };
        check();
        const TD_CelVq3d model(root);
        check();
    }

    void children_are_appended_to_the_list()
    {
        const Model model = modelOf({"a", "b"});
        const osg::NodePtr root = model->rootNodePtr();
        const osg::NodePtr a = root->getChild(0), b = root->getChild(1);
        Nodes list{root};
        TD_FindChildrenKeyNode::getChildren(root, list);
        TD_FindChildrenKeyNode::getChildren(root, list);
        TD_FindChildrenKeyNode::getChildren(a, list);
        TD_FindChildrenKeyNode::getChildren(osg::NullFC, list);
        QVERIFY(list == (Nodes{root, a, b, a, b}));
    }

    void models_may_share_a_root()
    {
        const osg::NodeRefPtr root(addNode<osg::Group>(osg::NullFC, "root"));
        addNode<osg::KeyTransform>(addNode<osg::Transform>(root, "part3"), "part3");
        const osg::NodePtr a = addNode<osg::KeyTransform>(root, "a");
        auto first = std::make_unique<TD_CelVq3d>(root);
        QVERIFY(find(root, QStringLiteral("a")) == a);
        auto second = std::make_unique<TD_CelVq3d>(root);
        QCOMPARE(wrongAnswer(root), QString());
        first.reset();
        QCOMPARE(wrongAnswer(root), QString());
        second.reset();
        addNode<osg::KeyTransform>(addNode<osg::KeyTransform>(a, "part3"), "b");
        QCOMPARE(wrongAnswer(root), QString());
    }

    void see_changes_made_after_the_model_is_gone()
    {
        const osg::NodeRefPtr root(addNode<osg::Group>(osg::NullFC, "root"));
        const osg::NodePtr a = addNode<osg::KeyTransform>(root, "a");
        {
            const TD_CelVq3d model(root);
            QVERIFY(find(root, QStringLiteral("a")) == a);
            QVERIFY(childrenOf(root) == Nodes{a});
        }
        setNodeName(a, "renamed");
        const osg::NodePtr b = addNode<osg::KeyTransform>(root, "b");
        const auto check = [&] {
            QVERIFY(find(root, QStringLiteral("a")) == osg::NullFC);
            QVERIFY(find(root, QStringLiteral("renamed")) == a);
            QVERIFY(find(root, QStringLiteral("b")) == b);
            QVERIFY(childrenOf(root) == (Nodes{a, b}));
        };
        check();
        const TD_CelVq3d again(root);
        check();
    }

    void a_part_of_a_model_may_be_a_model_too()
    {
        const osg::NodeRefPtr root(addNode<osg::Group>(osg::NullFC, "root"));
        addNode<osg::KeyTransform>(root, "part3");
        const osg::NodePtr part = addNode<osg::KeyTransform>(root, "part4");
        const osg::NodePtr inner = addNode<osg::KeyTransform>(part, "part3");
        const TD_CelVq3d whole(root);
        auto partial = std::make_unique<TD_CelVq3d>(part);
        QVERIFY(find(part, QStringLiteral("part3")) == inner);
        QCOMPARE(wrongAnswer(root), QString());
        partial.reset();
        QCOMPARE(wrongAnswer(root), QString());
    }

    void go_as_deep_as_a_chain_of_20000()
    {
        constexpr int length = 20000;
        std::vector<osg::NodeRefPtr> plain{
            osg::NodeRefPtr(addNode<osg::KeyTransform>(osg::NullFC, "top"))};
        while (static_cast<int>(plain.size()) < length)
            plain.emplace_back(addNode<osg::Transform>(plain.back(), "between"));
        const osg::NodePtr top = plain.front();
        const osg::NodePtr bottom = addNode<osg::KeyTransform>(plain.back(), "bottom");
        const auto check = [&] {
            QVERIFY(find(top, QStringLiteral("bottom")) == bottom);
            QVERIFY(find(top, QStringLiteral("between")) == osg::NullFC);
            QVERIFY(parentOf(bottom) == top);
            QVERIFY(firstChild(top) == bottom);
            QVERIFY(childrenOf(plain[length / 2]) == Nodes{bottom});
            QVERIFY(childrenOf(bottom).empty());
        };
        check();
        {
            const TD_CelVq3d model(top);
            check();
        }
        // From the top, so that no node dies inside the death of another.
        for (osg::NodeRefPtr& node : plain)
            node = osg::NodePtr();
    }
};

QTEST_GUILESS_MAIN(tst_TD_KeyNodeFinders)
#include "tst_TD_KeyNodeFinders.moc"
