// SPDX-License-Identifier: MIT
#include "FilesTesting.h"

#include "host/commands/CO_CommandManager.h"
#include "host/commands/tu_node.h"
#include "host/scene/MO_PegModule.h"
#include "host/scene/SC_CurrentFrameInterface.h"
#include "host/selection/SL_Selection.h"
#include "host/selection/SL_SelectionCommands.h"
#include "referencehost/commands/DeleteNodes.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QSignalSpy>
#include <QTest>
#include <QUndoStack>

class tst_scene_changes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { osg::osgInit(0, nullptr); }
    void init();
    void cleanup() { _stage.reset(); }
    void undo_steps_that_are_taken_back_leave_nothing_to_save();
    void a_command_that_tells_early_can_be_taken_back();
    void selecting_and_walking_through_frames_is_nothing_to_save();
    void a_change_that_is_no_undo_step_is_something_to_save();
    void emptying_the_history_saves_nothing();
    void a_lost_way_back_counts_as_modified();

private:
    void addPegByCommand();
    QUndoStack& history() { return *_stage->session.context().commandManager()->history(); }

    std::unique_ptr<DocumentStage> _stage;
};

void tst_scene_changes::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    _stage = std::make_unique<DocumentStage>();
}

void tst_scene_changes::addPegByCommand()
{
    _stage->session.context().commandManager()->execute(
        new tu_node::AddSubNodeCmd(&_stage->root(), new MO_PegModule(QStringLiteral("peg"))),
        QStringLiteral("Add"));
}

void tst_scene_changes::undo_steps_that_are_taken_back_leave_nothing_to_save()
{
    QSignalSpy modified(&_stage->document, &SceneDocument::modifiedChanged);
    QSignalSpy content(&_stage->document, &SceneDocument::contentChanged);
    addPegByCommand();
    addPegByCommand();
    QVERIFY(content.count() >= 2);
    QVERIFY(_stage->document.isModified());
    history().undo();
    QVERIFY(_stage->document.isModified());
    history().undo();
    QVERIFY(!_stage->document.isModified());
    history().setIndex(2);
    QVERIFY(_stage->document.isModified());
    QCOMPARE(modified.count(), 3);
}

void tst_scene_changes::a_command_that_tells_early_can_be_taken_back()
{
    MO_Node* peg = _stage->addPeg("peg");
    SC_SessionContext& context = _stage->session.context();
    context.selection()->add(peg);
    QVERIFY(_stage->document.saveAs(_stage->path("a.subnodes"), nullptr));
    context.commandManager()->execute(new DeleteNodes({peg}, context.selection()), "Delete");
    QVERIFY(_stage->document.isModified());
    history().undo();
    QVERIFY(!_stage->document.isModified());
    history().redo();
    QVERIFY(_stage->document.isModified());
}

void tst_scene_changes::selecting_and_walking_through_frames_is_nothing_to_save()
{
    MO_Node* peg = _stage->addPeg("peg");
    QVERIFY(_stage->document.saveAs(_stage->path("a.subnodes"), nullptr));
    SC_SessionContext& context = _stage->session.context();
    {
        const SL_SelectionCommands::Scope scope(context.commandManager(), context.selection());
        context.selection()->add(peg);
    }
    QCOMPARE(history().count(), 1);
    context.currentFrameInterface()->setCurrentFrame(_stage->session.currentScene(), 7);
    QVERIFY(!_stage->document.isModified());
    addPegByCommand();
    QVERIFY(_stage->document.isModified());
    history().setIndex(0);
    QVERIFY(!_stage->document.isModified());
}

void tst_scene_changes::a_change_that_is_no_undo_step_is_something_to_save()
{
    _stage->addPeg("peg");
    QVERIFY(_stage->document.isModified());
    addPegByCommand();
    history().undo();
    QVERIFY(_stage->document.isModified());
}

void tst_scene_changes::emptying_the_history_saves_nothing()
{
    addPegByCommand();
    history().clear();
    QVERIFY(_stage->document.isModified());
}

void tst_scene_changes::a_lost_way_back_counts_as_modified()
{
    addPegByCommand();
    QVERIFY(_stage->document.saveAs(_stage->path("a.subnodes"), nullptr));
    history().undo();
    addPegByCommand();
    QVERIFY(_stage->document.isModified());
}

QTEST_MAIN(tst_scene_changes)
#include "tst_scene_changes.moc"
