// SPDX-License-Identifier: MIT
#include "FilesTesting.h"
#include "RandomScene.h"
#include "workbench/scenefile/SceneBuilder.h"
#include "workbench/scenefile/SceneFileWriter.h"

#include "host/models/AT_ModelData.h"
#include "host/models/TD_CelVq3d.h"

#include "workbench/scenefile/SceneFormat.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QTest>
#include <limits>

using Problem = SceneProblems::Kind;
Q_DECLARE_METATYPE(SceneProblems::Kind)

class tst_scene_file_reader : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { osg::osgInit(0, nullptr); }
    void init();
    void cleanup() { _stage.reset(); }
    void bytes_that_are_no_scene_give_an_error_data();
    void bytes_that_are_no_scene_give_an_error();
    void what_is_wrong_is_left_out_and_noted_data();
    void what_is_wrong_is_left_out_and_noted();
    void every_truncation_of_a_file_is_read_as_far_as_it_goes();
    void a_fault_in_the_middle_keeps_what_is_before_it();
    void groups_that_are_nested_too_deep_move_up();
    void version_1_is_brought_up();
    void a_later_version_is_read_as_far_as_it_is_known();
    void what_is_in_a_node_of_unknown_kind_moves_up();
    void rings_of_links_are_kept();
    void paths_of_models_are_made_absolute();
    void one_message_sums_up_what_was_wrong();

private:
    SceneFileReader::Result built(const QByteArray& bytes);

    std::unique_ptr<DocumentStage> _stage;
};

namespace {

QByteArray sceneWith(const QByteArray& members)
{
    return R"({"format": "subnode-scene", "version": 2, "name": "n", )" + members + "}";
}

} // namespace

void tst_scene_file_reader::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    _stage = std::make_unique<DocumentStage>();
}

/// Makes a scene of the bytes, with empty models, and notes the problems of both steps.
SceneFileReader::Result tst_scene_file_reader::built(const QByteArray& bytes)
{
    SceneFileReader::Result read = SceneFileReader::read(bytes, "/folder");
    SceneBuilder::Models models;
    for (std::size_t i = 0; i < read.scene.models.size(); ++i)
        models.push_back(std::make_shared<TD_CelVq3d>(osg::NullFC));
    SceneBuilder(_stage->session, _stage->loader.library(), read.problems)
        .build(read.scene, models);
    return read;
}

void tst_scene_file_reader::bytes_that_are_no_scene_give_an_error_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("text") << QByteArray("v 0 0 0\nf 1 2 3\n");
    QTest::newRow("zeros") << QByteArray(1000, '\0');
    QTest::newRow("list") << QByteArray("[1, 2]");
    QTest::newRow("other JSON") << QByteArray(R"({"asset": {"version": "2.0"}})");
    QTest::newRow("other format") << QByteArray(R"({"format": 7, "version": 2})");
    QTest::newRow("brackets") << QByteArray(200000, '[');
    QTest::newRow("objects") << QByteArray(R"({"a":)").repeated(100000);
    QTest::newRow("closing") << QByteArray("]}");
}

void tst_scene_file_reader::bytes_that_are_no_scene_give_an_error()
{
    QFETCH(const QByteArray, bytes);
    const SceneFileReader::Result read = SceneFileReader::read(bytes, {});
    QVERIFY(!read.error.isEmpty());
    QVERIFY(read.scene.nodes.empty());
}

void tst_scene_file_reader::what_is_wrong_is_left_out_and_noted_data()
{
    QTest::addColumn<QByteArray>("members");
    QTest::addColumn<Problem>("kind");
    QTest::addColumn<int>("nodes");
    const QByteArray two = R"("nodes": [{"id":1,"kind":"PEG"},{"id":2,"kind":"PEG"}])";
    const QByteArray element =
        R"("models": [{"path": "a.obj"}], "nodes": [{"id":1,"kind":"ELEMENT",)";
    QTest::newRow("nodes of another type") << QByteArray(R"("nodes": 7)") << Problem::Value << 0;
    QTest::newRow("node of another type") << QByteArray(R"("nodes": [7])") << Problem::Node << 0;
    QTest::newRow("no kind") << QByteArray(R"("nodes": [{"id": 1}])") << Problem::Node << 0;
    QTest::newRow("unknown kind") << QByteArray(
                                         R"("nodes": [{"id":1,"kind":"X"},{"id":2,"kind":"PEG"}])")
                                  << Problem::Node << 1;
    QTest::newRow("same id") << QByteArray(
                                    R"("nodes": [{"id":1,"kind":"PEG"},{"id":1,"kind":"PEG"}])")
                             << Problem::Value << 2;
    QTest::newRow("in itself") << QByteArray(R"("nodes": [{"id":1,"group":1,"kind":"GROUP"}])")
                               << Problem::Value << 1;
    QTest::newRow("in a peg")
        << QByteArray(R"("nodes": [{"id":1,"kind":"PEG"},{"id":2,"group":1,"kind":"PEG"}])")
        << Problem::Value << 2;
    QTest::newRow("name of another type")
        << QByteArray(R"("nodes": [{"id":1,"kind":"PEG","name":[]}])") << Problem::Value << 1;
    QTest::newRow("x as text") << QByteArray(R"("nodes": [{"id":1,"kind":"PEG","x":"NaN"}])")
                               << Problem::Value << 1;
    QTest::newRow("broken frame") << QByteArray(R"("frame": 1.5)") << Problem::Value << 0;
    QTest::newRow("huge frame") << QByteArray(R"("frame": 1e300)") << Problem::Value << 0;
    QTest::newRow("link to nothing")
        << two + R"(, "links": [{"from":1,"to":9}])" << Problem::Link << 2;
    QTest::newRow("link without port")
        << two + R"(, "links": [{"from":1,"to":2,"input":5}])" << Problem::Link << 2;
    QTest::newRow("negative port")
        << two + R"(, "links": [{"from":1,"to":2,"output":-1}])" << Problem::Link << 2;
    QTest::newRow("link twice") << two + R"(, "links": [{"from":1,"to":2},{"from":1,"to":2}])"
                                << Problem::Link << 2;
    QTest::newRow("overlap") << element + R"("exposures":[{"first":1,"last":9,"model":0},)"
                                          R"({"first":9,"last":12,"model":0}]}])"
                             << Problem::Exposure << 1;
    QTest::newRow("overlap before") << element + R"("exposures":[{"first":5,"last":9,"model":0},)"
                                                 R"({"first":1,"last":5,"model":0}]}])"
                                    << Problem::Exposure << 1;
    QTest::newRow("backwards") << element + R"("exposures":[{"first":9,"last":1,"model":0}]}])"
                               << Problem::Exposure << 1;
    QTest::newRow("model that is not there")
        << element + R"("exposures":[{"first":1,"last":2,"model":1}]}])" << Problem::Exposure << 1;
    QTest::newRow("exposed peg") << QByteArray(
                                        R"("models":[{"path":"a"}],"nodes":[{"id":1,"kind":"PEG",)"
                                        R"("exposures":[{"first":1,"last":2,"model":0}]}])")
                                 << Problem::Exposure << 1;
    QTest::newRow("settings of nobody")
        << element + R"("settings":[{"frame":1,"subnodes":[{"visible":false}]}]}])"
        << Problem::Setting << 1;
    QTest::newRow("short matrix")
        << element + R"("settings":[{"frame":1,"subnodes":[{"key":"a","transformation":[1,2]}]}]}])"
        << Problem::Value << 1;
    QTest::newRow("matrix of texts")
        << element + R"("settings":[{"frame":1,"subnodes":[{"key":"a","transformation":)"
                     R"(["NaN",0,0,0,0,1,0,0,0,0,1,0,0,0,0,1]}]}]}])"
        << Problem::Value << 1;
    QTest::newRow("unknown attribute")
        << QByteArray(R"("nodes":[{"id":1,"kind":"PEG","attributes":)"
                      R"([{"kind":"string","name":"a","value":"b"}]}])")
        << Problem::Value << 1;
    QTest::newRow("attribute of another kind")
        << QByteArray(R"("nodes":[{"id":1,"kind":"3D_KINEMATIC_OUTPUT","attributes":)"
                      R"([{"kind":"double","name":"Sub_Node_Name","value":"b"}]}])")
        << Problem::Value << 1;
    QTest::newRow("selected nothing")
        << two + R"(, "selection": [{"node": 4}])" << Problem::Selection << 2;
    QTest::newRow("selected twice")
        << two + R"(, "selection": [{"node":1},{"node":1}])" << Problem::Selection << 2;
    QTest::newRow("sub-selected peg")
        << two + R"(, "selection": [{"node":1,"subnodes":["a"]}])" << Problem::Selection << 2;
}

void tst_scene_file_reader::what_is_wrong_is_left_out_and_noted()
{
    QFETCH(const QByteArray, members);
    QFETCH(const Problem, kind);
    QFETCH(const int, nodes);
    const SceneFileReader::Result read = built(sceneWith(members));
    QCOMPARE(read.error, QString());
    QCOMPARE(read.problems.count(kind), 1);
    QCOMPARE(read.problems.all().size(), std::size_t(1));
    QCOMPARE(_stage->session.currentScene()->name(), QStringLiteral("n"));
    QCOMPARE(_stage->root().nodes().size(), static_cast<std::size_t>(nodes));
}

void tst_scene_file_reader::every_truncation_of_a_file_is_read_as_far_as_it_goes()
{
    QByteArray bytes;
    for (quint32 seed = 1; bytes.size() < 3000; ++seed) {
        const auto model = std::make_shared<TD_CelVq3d>(osg::NullFC);
        _stage->loader.library().note(model, "/folder/a.obj");
        RandomScene(_stage->session, {{"/folder/a.obj", model}}, seed).fill();
        bytes = SceneFileWriter(_stage->session, _stage->loader.library()).bytes("/folder");
    }
    const SceneDescription whole = SceneFileReader::read(bytes, "/folder").scene;
    std::size_t most = 0;
    for (qsizetype size = 0; size < bytes.size() - 2; ++size) {
        const SceneFileReader::Result read = SceneFileReader::read(bytes.left(size), "/folder");
        QVERIFY(!read.error.isEmpty() || !read.problems.empty());
        // All but the last node are whole, and none gets lost again as more is there.
        QVERIFY(read.scene.nodes.size() >= most);
        most = read.scene.nodes.size();
        for (std::size_t i = 0; i + 1 < most; ++i)
            QVERIFY(read.scene.nodes[i] == whole.nodes[i]);
        if (size % 97 == 0 && read.error.isEmpty())
            built(bytes.left(size));
    }
    QCOMPARE(most, whole.nodes.size());
}

void tst_scene_file_reader::a_fault_in_the_middle_keeps_what_is_before_it()
{
    const SceneFileReader::Result read =
        built("{\"format\": \"subnode-scene\", \"version\": 2, \"nodes\": [\n"
              "{\"id\": 1, \"kind\": \"PEG\"},\n{\"id\": 2 \"kind\": \"PEG\"}]}");
    QCOMPARE(_stage->root().nodes().size(), std::size_t(1));
    QCOMPARE(read.problems.count(Problem::Damage), 1);
    QVERIFY(read.problems.all().front().detail.contains("line 3"));
}

void tst_scene_file_reader::groups_that_are_nested_too_deep_move_up()
{
    QByteArrayList nodes;
    constexpr int groups = SceneFormat::deepestGroup + 500;
    for (int id = 1; id <= groups; ++id) {
        const QByteArray inGroup =
            id > 1 ? ", \"group\": " + QByteArray::number(id - 1) : QByteArray();
        nodes << "{\"kind\": \"GROUP\", \"id\": " + QByteArray::number(id) + inGroup + "}";
    }
    const SceneFileReader::Result read =
        SceneFileReader::read(sceneWith("\"nodes\": [" + nodes.join(", ") + "]"), {});
    QCOMPARE(read.scene.nodes.size(), std::size_t(groups));
    QVERIFY(read.problems.count(Problem::Value) > 0);
    int deepest = 0;
    std::vector<int> depths;
    for (const SceneDescription::Node& node : read.scene.nodes) {
        depths.push_back(node.parent < 0 ? 0 : depths[std::size_t(node.parent)] + 1);
        deepest = std::max(deepest, depths.back());
    }
    QCOMPARE(deepest, SceneFormat::deepestGroup);
}

void tst_scene_file_reader::version_1_is_brought_up()
{
    const SceneFileReader::Result read =
        built(R"({"format": "subnode-scene", "version": 1, "name": "old", "frame": 4, "elements": [
        {"name": "A", "x": 3, "y": 4.5, "model": "robot.gltf", "hidden": ["Head", "Arm"]},
        {"name": "B", "model": "robot.gltf"}, {"name": "C"}]})");
    QVERIFY(read.problems.empty());
    QCOMPARE(read.scene.name, QStringLiteral("old"));
    QCOMPARE(read.scene.frame, 4);
    QCOMPARE(read.scene.models.size(), std::size_t(1));
    QCOMPARE(read.scene.models.front().path, QStringLiteral("/folder/robot.gltf"));
    QCOMPARE(_stage->root().nodes().size(), std::size_t(3));
    const MO_ElementModule* a = _stage->element(0);
    QCOMPARE(a->instanceName(), QStringLiteral("A"));
    QCOMPARE(a->y(), 4.5);
    QVERIFY(a->modelAt(1));
    QCOMPARE(a->modelAt(std::numeric_limits<int>::max()), _stage->element(1)->modelAt(1));
    QVERIFY(!a->seqMeta(1)->nodeData(AT_ModelNodeKey("Head"))->visible);
    QVERIFY(!a->seqMeta(1)->nodeData(AT_ModelNodeKey("Arm"))->visible);
    QVERIFY(_stage->element(1)->seqMetaFrames().empty());
    QVERIFY(_stage->element(2)->exposures().empty());
}

void tst_scene_file_reader::a_later_version_is_read_as_far_as_it_is_known()
{
    const SceneFileReader::Result read =
        built(R"({"format": "subnode-scene", "version": 3, "lights": [1, 2],
        "nodes": [{"id": 1, "kind": "PEG", "colour": "red"}]})");
    QCOMPARE(_stage->root().nodes().size(), std::size_t(1));
    QCOMPARE(read.problems.count(Problem::LaterVersion), 1);
}

void tst_scene_file_reader::what_is_in_a_node_of_unknown_kind_moves_up()
{
    built(sceneWith(R"("nodes": [{"id":1,"kind":"GROUP","name":"g"},
        {"id":2,"group":1,"kind":"NEW"}, {"id":3,"group":2,"kind":"PEG","name":"p"}])"));
    const auto* group = dynamic_cast<const MO_GroupModule*>(_stage->root().nodes().front());
    QCOMPARE(group->nodes().size(), std::size_t(1));
    QCOMPARE(group->nodes().front()->instanceName(), QStringLiteral("p"));
}

void tst_scene_file_reader::rings_of_links_are_kept()
{
    const SceneFileReader::Result read =
        built(sceneWith(R"("nodes": [{"id":1,"kind":"PASS_THROUGH"},{"id":2,"kind":"PASS_THROUGH"}],
        "links": [{"from":1,"to":2},{"from":2,"to":1}])"));
    QVERIFY(read.problems.empty());
    MO_Node* first = _stage->root().nodes().front();
    QCOMPARE(first->inPort(0)->srcPort()->node()->inPort(0)->srcPort()->node(), first);
}

void tst_scene_file_reader::paths_of_models_are_made_absolute()
{
    const std::vector<SceneDescription::Model> models =
        SceneFileReader::read(sceneWith(R"("models": [{"path": "../a/./b.obj"},
            {"path": ":b.obj", "absolute": "b.obj"}, {"path": "c.obj", "absolute": "/x/c.obj"},
            {"path": "d.obj", "absolute": "/folder/d.obj"}, {"absolute": "/x/e.obj"}])"),
                              "/folder")
            .scene.models;
    const std::vector<SceneDescription::Model> expected = {{"/a/b.obj", ""},
                                                           {"/folder/:b.obj", ""},
                                                           {"/folder/c.obj", "/x/c.obj"},
                                                           {"/folder/d.obj", ""},
                                                           {"/x/e.obj", ""}};
    QVERIFY(models == expected);
}

void tst_scene_file_reader::one_message_sums_up_what_was_wrong()
{
    SceneProblems problems;
    QCOMPARE(problems.summary("a"), QString());
    problems.add(Problem::MissingModel, "/x/a.gltf");
    problems.add(Problem::MissingModel, "/x/b.gltf");
    problems.add(Problem::Link, "a link");
    QCOMPARE(problems.summary("/y/robot.subnodes"),
             QStringLiteral(
                 "robot.subnodes: 2 models are missing: a.gltf, b.gltf; 1 link was left out"));
    for (int i = 0; i < 8; ++i)
        problems.add(Problem::MissingModel, QStringLiteral("/x/%1\n.gltf").arg(i));
    QVERIFY(problems.summary("r").contains("10 models are missing"));
    QVERIFY(problems.summary("r").contains("and 5 more"));
    QVERIFY(!problems.summary("r").contains('\n'));
}

QTEST_MAIN(tst_scene_file_reader)
#include "tst_scene_file_reader.moc"
