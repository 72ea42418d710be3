// SPDX-License-Identifier: MIT

#include "host/models/TD_CelVq3d.h"
#include "host/models/TD_NodeName.h"
#include "host/models/TD_SceneGraphUtil.h"
#include "tests/graphview/ModelBuilder.h"
#include "tests/workbench/isolation/PlainDrawing.h"
#include "workbench/isolation/VisibilitySettings.h"

#include <OpenSG/OSGSimpleAttachments.h>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

namespace {

using Settings = std::optional<AT_ModelData>;
using Model = CEL_SharedPtr<TD_CelVq3d>;

constexpr quint32 models = 400;

std::vector<osg::NodePtr> allNodes(const osg::NodePtr& root)
{
    std::vector<osg::NodePtr> nodes{root};
    for (std::size_t at = 0; at < nodes.size(); ++at) {
        const osg::NodePtr node = nodes[at];
        for (osg::UInt32 i = 0; i < node->getNChildren(); ++i)
            nodes.push_back(node->getChild(i));
    }
    return nodes;
}

/// With a name of its own for each node; subnodes of one name share their settings.
Model withOwnNames(const Model& model)
{
    int number = 0;
    for (const osg::NodePtr& node : allNodes(model->rootNodePtr()))
        osg::setName(node, "node" + std::to_string(number++));
    return model;
}

std::vector<AT_ModelNodeKey> keysOf(const osg::NodePtr& root)
{
    std::vector<AT_ModelNodeKey> keys;
    for (const osg::NodePtr& node : allNodes(root)) {
        if (TD_SceneGraphUtil::isKeySubnode(node))
            keys.emplace_back(TD_nodeName(node));
    }
    return keys;
}

AT_ModelNodeData randomRecord(QRandomGenerator& random)
{
    AT_ModelNodeData record;
    record.visible = random.bounded(2) == 0;
    record.localVisible = random.bounded(2) == 0;
    record.hasTransformation = random.bounded(2) == 0;
    record.transformation[3][0] = static_cast<float>(random.bounded(3));
    return record;
}

Settings randomSettings(QRandomGenerator& random, const osg::NodePtr& root)
{
    if (random.bounded(5) == 0)
        return std::nullopt;
    AT_ModelData settings;
    if (random.bounded(5) == 0)
        return settings;
    for (const AT_ModelNodeKey& key : keysOf(root)) {
        if (random.bounded(2) == 0)
            settings.setNodeData(key, randomRecord(random));
    }
    settings.setNodeData(AT_ModelNodeKey(QStringLiteral("elsewhere")), randomRecord(random));
    return settings;
}

std::vector<AT_ModelNodeKey> randomSelection(QRandomGenerator& random, const osg::NodePtr& root)
{
    std::vector<AT_ModelNodeKey> selected;
    const int oneIn = 1 + random.bounded(10);
    for (const AT_ModelNodeKey& key : keysOf(root)) {
        if (random.bounded(oneIn) == 0)
            selected.push_back(key);
    }
    if (random.bounded(3) == 0)
        selected.emplace_back(QStringLiteral("elsewhere"));
    return selected;
}

} // namespace

class tst_visibility_settings_at_random : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }
    void just_what_is_isolated_is_drawn();
    void only_visibility_is_changed();
    void coming_back_gives_the_same_settings();
    void only_visibility_comes_back();
};

void tst_visibility_settings_at_random::just_what_is_isolated_is_drawn()
{
    QStringList wrong;
    for (quint32 seed = 0; seed < models; ++seed) {
        QRandomGenerator random(seed);
        const Model model = withOwnNames(ModelBuilder::randomModel(seed, 2 + random.bounded(60)));
        const osg::NodePtr root = model->rootNodePtr();
        const Settings held = randomSettings(random, root);
        const std::vector<AT_ModelNodeKey> selected = randomSelection(random, root);
        QSet<QString> names;
        for (const AT_ModelNodeKey& key : selected)
            names.insert(key.name());
        const AT_ModelData isolated = VisibilitySettings::isolated(held, root, selected);
        if (PlainDrawing::shapes(root, isolated) != PlainDrawing::isolatedShapes(root, held, names))
            wrong += QString::number(seed);
    }
    QCOMPARE(wrong, QStringList());
}

void tst_visibility_settings_at_random::only_visibility_is_changed()
{
    for (quint32 seed = 0; seed < models; ++seed) {
        QRandomGenerator random(seed);
        const Model model = ModelBuilder::randomModel(seed, 40);
        const Settings held = randomSettings(random, model->rootNodePtr());
        const AT_ModelData before = held.value_or(AT_ModelData());
        AT_ModelData after = VisibilitySettings::isolated(
            held, model->rootNodePtr(), randomSelection(random, model->rootNodePtr()));
        const AT_ModelData::Records records = after.records();
        for (const auto& [key, record] : records) {
            const AT_ModelNodeData* was = before.nodeData(key);
            AT_ModelNodeData expected = was ? *was : AT_ModelNodeData();
            expected.visible = record.visible;
            expected.localVisible = record.localVisible;
            QVERIFY(record == expected);
        }
        for (const auto& [key, record] : before.records())
            QVERIFY(after.nodeData(key));
    }
}

void tst_visibility_settings_at_random::coming_back_gives_the_same_settings()
{
    // Also where names are alike, empty or missing.
    for (quint32 seed = 0; seed < models; ++seed) {
        QRandomGenerator random(seed);
        const Model model = ModelBuilder::randomModel(seed, 2 + random.bounded(60));
        const osg::NodePtr root = model->rootNodePtr();
        const Settings held = randomSettings(random, root);
        const AT_ModelData isolated =
            VisibilitySettings::isolated(held, root, randomSelection(random, root));
        QVERIFY2(VisibilitySettings::restored(isolated, held) == held,
                 qPrintable(QStringLiteral("seed %1").arg(seed)));
    }
}

void tst_visibility_settings_at_random::only_visibility_comes_back()
{
    for (quint32 seed = 0; seed < models; ++seed) {
        QRandomGenerator random(seed);
        const Model model = withOwnNames(ModelBuilder::randomModel(seed, 40));
        const osg::NodePtr root = model->rootNodePtr();
        const Settings held = randomSettings(random, root);
        AT_ModelData now = VisibilitySettings::isolated(held, root, randomSelection(random, root));
        AT_ModelData expected = held.value_or(AT_ModelData());
        for (const AT_ModelNodeKey& key : keysOf(root)) {
            if (random.bounded(3) > 0)
                continue;
            const AT_ModelNodeData* isolated = now.nodeData(key);
            AT_ModelNodeData record = isolated ? *isolated : AT_ModelNodeData();
            record.hasTransformation = true;
            record.transformation[3][2] = 7;
            now.setNodeData(key, record);
            const AT_ModelNodeData* was = expected.nodeData(key);
            record.visible = !was || was->visible;
            record.localVisible = !was || was->localVisible;
            expected.setNodeData(key, record);
        }
        const Settings back = VisibilitySettings::restored(now, held);
        QVERIFY2(back.value_or(AT_ModelData()) == expected,
                 qPrintable(QStringLiteral("seed %1").arg(seed)));
        QCOMPARE(back.has_value(), held.has_value() || !expected.records().empty());
    }
}

QTEST_APPLESS_MAIN(tst_visibility_settings_at_random)
#include "tst_visibility_settings_at_random.moc"
