// SPDX-License-Identifier: MIT
#include "FilesTesting.h"
#include "RandomScene.h"
#include "workbench/scenefile/SceneBuilder.h"
#include "workbench/scenefile/SceneFileWriter.h"
#include "workbench/scenefile/SceneText.h"

#include "host/commands/CO_CommandManager.h"
#include "host/models/AT_ModelNodeKey.h"
#include "host/models/TD_CelVq3d.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGKeyTransform.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <QSignalSpy>
#include <QTest>
#include <QUndoStack>
#include <limits>

class tst_scene_round_trip : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { osg::osgInit(0, nullptr); }
    void init();
    void cleanup() { _stage.reset(); }
    void random_scenes_come_back_as_they_were();
    void a_scene_with_real_models_comes_back_through_files();
    void groups_may_be_nested_deeper_than_json_may();
    void saving_again_gives_the_same_bytes();
    void models_are_named_relative_to_the_file();
    void a_moved_folder_still_finds_its_models();
    void an_opened_scene_is_told_as_a_whole();
    void parts_that_are_shown_no_more_are_not_written_as_selected();
    void text_that_is_none_is_written_as_a_replacement();

private:
    RandomScene::Models models();

    std::unique_ptr<DocumentStage> _stage;
};

void tst_scene_round_trip::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    _stage = std::make_unique<DocumentStage>();
}

/// Models of a few parts, whose names are anything but plain.
RandomScene::Models tst_scene_round_trip::models()
{
    RandomScene::Models models;
    for (int i = 0; i < 4; ++i) {
        const osg::NodePtr root = osg::makeCoredNode<osg::Group>();
        for (int part = 0; part < 10; ++part) {
            const osg::NodePtr node = osg::makeCoredNode<osg::KeyTransform>();
            osg::setName(node, QStringLiteral("Ä\"\\%1 %2").arg(i).arg(part).toUtf8().constData());
            root->addChild(node);
        }
        const QString path = QStringLiteral("/models/%1/ü %1.obj").arg(i);
        models[path] = std::make_shared<TD_CelVq3d>(root);
        _stage->loader.library().note(models[path], path);
    }
    return models;
}

void tst_scene_round_trip::random_scenes_come_back_as_they_were()
{
    const RandomScene::Models known = models();
    for (quint32 seed = 1; seed <= 120; ++seed) {
        RandomScene(_stage->session, known, seed).fill();
        const QString before = _stage->dump();
        const QByteArray bytes =
            SceneFileWriter(_stage->session, _stage->loader.library()).bytes("/models");
        SceneFileReader::Result read = SceneFileReader::read(bytes, "/models");
        SceneBuilder::Models found;
        for (const SceneDescription::Model& model : read.scene.models)
            found.push_back(known.at(model.path));
        SceneBuilder(_stage->session, _stage->loader.library(), read.problems)
            .build(read.scene, found);
        QVERIFY2(read.error.isEmpty() && read.problems.empty(),
                 qPrintable(read.problems.summary("x")));
        QVERIFY2(_stage->dump() == before, qPrintable(QStringLiteral("seed %1").arg(seed)));
        QCOMPARE(sceneText(read.scene, "/models"), bytes);
    }
}

void tst_scene_round_trip::a_scene_with_real_models_comes_back_through_files()
{
    QVERIFY(_stage->load(QStringLiteral(MODELS "/robot.gltf")));
    QVERIFY(_stage->load(QStringLiteral(MODELS "/crane.gltf")));
    RandomScene::Models known;
    for (const int index : {0, 1}) {
        const CEL_SharedPtr<TD_CelVq3d> model = _stage->element(index)->modelAt(1);
        known[_stage->loader.library().originOf(model).path] = model;
    }
    QCOMPARE(known.size(), std::size_t(2));
    for (quint32 seed = 500; seed < 506; ++seed) {
        RandomScene(_stage->session, known, seed).fill();
        const QString before = _stage->dump();
        QString message;
        QVERIFY2(_stage->document.saveAs(_stage->path("all.subnodes"), &message),
                 qPrintable(message));
        _stage->document.newScene();
        QVERIFY(_stage->open(_stage->path("all.subnodes"), &message));
        QCOMPARE(message, QString());
        QCOMPARE(_stage->dump(), before);
    }
}

void tst_scene_round_trip::groups_may_be_nested_deeper_than_json_may()
{
    MO_GroupModule* group = &_stage->root();
    for (int depth = 0; depth < 1000; ++depth) {
        group = dynamic_cast<MO_GroupModule*>(
            group->insertNode(std::make_unique<MO_GroupModule>(QString::number(depth))));
    }
    const QString file = _stage->path("deep.subnodes");
    QVERIFY(_stage->document.saveAs(file, nullptr));
    _stage->document.newScene();
    QVERIFY(_stage->open(file));
    int depth = 0;
    for (const MO_GroupModule* at = &_stage->root(); !at->nodes().empty(); ++depth)
        at = dynamic_cast<const MO_GroupModule*>(at->nodes().front());
    QCOMPARE(depth, 1000);
}

void tst_scene_round_trip::saving_again_gives_the_same_bytes()
{
    RandomScene(_stage->session, models(), 77).fill();
    // The files of these models are not there, and with them goes what is selected of them.
    _stage->session.context().selection()->clear();
    const QString file = _stage->path("same.subnodes");
    QVERIFY(_stage->document.saveAs(file, nullptr));
    const QByteArray first = contentOf(file);
    QVERIFY(_stage->open(file));
    QVERIFY(_stage->document.save(nullptr, SceneDocument::Consent::Given));
    QCOMPARE(contentOf(file), first);
}

void tst_scene_round_trip::models_are_named_relative_to_the_file()
{
    QVERIFY(_stage->load(_stage->writeModel("arm.obj", {"Arm", "Hand"})));
    QVERIFY(_stage->document.saveAs(_stage->path("one.subnodes"), nullptr));
    QVERIFY(contentOf(_stage->path("one.subnodes")).contains("\"path\": \"arm.obj\""));
}

void tst_scene_round_trip::a_moved_folder_still_finds_its_models()
{
    QVERIFY(QDir(_stage->folder.path()).mkpath("old"));
    QVERIFY(_stage->load(_stage->writeModel("old/arm.obj", {"Arm", "Hand"})));
    QVERIFY(_stage->document.saveAs(_stage->path("old/one.subnodes"), nullptr));
    _stage->document.newScene();
    QVERIFY(QDir(_stage->folder.path()).rename("old", "new"));
    QString message;
    QVERIFY(_stage->open(_stage->path("new/one.subnodes"), &message));
    QCOMPARE(message, QString());
    QVERIFY(_stage->element(0)->modelAt(1)->rootNodePtr() != osg::NullFC);

    // And a scene that was moved away from its models finds them where they were.
    QVERIFY(QFile::rename(_stage->path("new/one.subnodes"), _stage->path("two.subnodes")));
    QVERIFY(QDir(_stage->folder.path()).rename("new", "old"));
    QVERIFY(_stage->open(_stage->path("two.subnodes"), &message));
    QCOMPARE(message, QString());
}

void tst_scene_round_trip::an_opened_scene_is_told_as_a_whole()
{
    QVERIFY(_stage->load(_stage->writeModel("arm.obj", {"Arm", "Hand"})));
    _stage->addPeg("peg");
    QVERIFY(_stage->document.saveAs(_stage->path("one.subnodes"), nullptr));
    const TUSceneChangeManager* changes = _stage->session.context().changeManager();
    QSignalSpy scenes(changes, &TUSceneChangeManager::currentSceneChanged);
    QSignalSpy networks(changes, &TUSceneChangeManager::networkChanged);
    QSignalSpy nodes(changes, &TUSceneChangeManager::nodesChanged);
    QVERIFY(_stage->open(_stage->path("one.subnodes")));
    QCOMPARE(scenes.count(), 1);
    QCOMPARE(networks.count(), 1);
    QCOMPARE(nodes.count(), 1);
    QCOMPARE(_stage->session.context().commandManager()->history()->count(), 0);
}

void tst_scene_round_trip::parts_that_are_shown_no_more_are_not_written_as_selected()
{
    QVERIFY(_stage->load(_stage->writeModel("arm.obj", {"Arm", "Hand"})));
    int id = 0;
    QVERIFY(_stage->element(0)->getSelIdForNodeKey(AT_ModelNodeKey("Hand"), id));
    _stage->element(0)->selInterface()->subSelect(id, true);
    QVERIFY(_stage->document.unsaved().content.contains("Hand"));
    _stage->element(0)->exposeModel(1, std::numeric_limits<int>::max(), nullptr);
    QVERIFY(_stage->element(0)->selInterface()->isSubSelected(id));
    QVERIFY(!_stage->document.unsaved().content.contains("Hand"));
}

void tst_scene_round_trip::text_that_is_none_is_written_as_a_replacement()
{
    _stage->addPeg(QStringLiteral("a") + QChar(0xD800) + QStringLiteral("b"));
    QVERIFY(_stage->document.saveAs(_stage->path("one.subnodes"), nullptr));
    QVERIFY(_stage->open(_stage->path("one.subnodes")));
    QCOMPARE(_stage->root().nodes().front()->instanceName(),
             QStringLiteral("a") + QChar(0xFFFD) + QStringLiteral("b"));
}

QTEST_MAIN(tst_scene_round_trip)
#include "tst_scene_round_trip.moc"
