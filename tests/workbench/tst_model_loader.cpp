// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_GraphXViewQt.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUScene.h"
#include "host/selection/SL_Selection.h"
#include "referencehost/session/HostSession.h"
#include "workbench/files/ImportProgressDialog.h"
#include "workbench/files/ModelLoader.h"
#include "workbench/window/MessageBar.h"
#include "workbench/window/WorkbenchWindow.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QApplication>
#include <QFile>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>

class tst_model_loader : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void each_file_becomes_an_element_named_after_it();
    void the_first_element_is_selected();
    void a_standing_selection_is_kept();
    void names_that_are_taken_get_a_number();
    void the_model_is_shown_on_every_frame();
    void a_file_that_fails_leaves_the_scene_as_it_was();
    void cancelling_forgets_what_waits();
    void the_window_shows_what_went_wrong();
    void the_header_of_a_further_model_appears_by_itself();
    void the_progress_dialog_appears_only_for_long_work_and_cancels();

private:
    QString model(const QString& name) const;
    void loadAll(ModelLoader& loader, const QStringList& paths) const;
    QStringList elementNames() const;

    std::unique_ptr<QTemporaryDir> _folder;
    std::unique_ptr<HostSession> _session;
};

void tst_model_loader::initTestCase()
{
    osg::osgInit(0, nullptr);
}

void tst_model_loader::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
    _folder = std::make_unique<QTemporaryDir>();
    _session = std::make_unique<HostSession>();
    _session->openScene(QStringLiteral("scene"));
}

void tst_model_loader::cleanup()
{
    _session.reset();
    _folder.reset();
}

QString tst_model_loader::model(const QString& name) const
{
    QFile file(_folder->filePath(name));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("%s cannot be written", qPrintable(name));
    file.write("o Part\nv 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 3\n");
    return file.fileName();
}

void tst_model_loader::loadAll(ModelLoader& loader, const QStringList& paths) const
{
    QSignalSpy finished(&loader, &ModelLoader::finished);
    loader.load(paths);
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 30000);
}

QStringList tst_model_loader::elementNames() const
{
    QStringList names;
    for (const MO_Node* node : _session->currentScene()->rootGroup()->nodes())
        names += node->instanceName();
    return names;
}

void tst_model_loader::each_file_becomes_an_element_named_after_it()
{
    ModelLoader loader(*_session);
    loadAll(loader, {model("arm.obj"), model("leg.v2.obj")});
    QCOMPARE(elementNames(), (QStringList{"arm", "leg.v2"}));
    QVERIFY(!loader.isBusy());
}

void tst_model_loader::the_first_element_is_selected()
{
    ModelLoader loader(*_session);
    loadAll(loader, {model("arm.obj"), model("leg.obj")});
    const std::vector<MO_Node*> selected = _session->context().selection()->nodes();
    QCOMPARE(selected.size(), std::size_t(1));
    QCOMPARE(selected.front()->instanceName(), QStringLiteral("arm"));
}

void tst_model_loader::a_standing_selection_is_kept()
{
    ModelLoader loader(*_session);
    loadAll(loader, {model("arm.obj")});
    loadAll(loader, {model("leg.obj")});
    QCOMPARE(_session->context().selection()->nodes().front()->instanceName(),
             QStringLiteral("arm"));
}

void tst_model_loader::names_that_are_taken_get_a_number()
{
    ModelLoader loader(*_session);
    const QString arm = model("arm.obj");
    loadAll(loader, {arm, model("arm_2.obj"), arm, arm});
    QCOMPARE(elementNames(), (QStringList{"arm", "arm_2", "arm_3", "arm_4"}));
}

void tst_model_loader::the_model_is_shown_on_every_frame()
{
    ModelLoader loader(*_session);
    loadAll(loader, {model("arm.obj")});
    const auto* element = dynamic_cast<const MO_ElementModule*>(
        _session->currentScene()->rootGroup()->nodes().front());
    QVERIFY(element);
    QVERIFY(element->modelAt(1));
    QCOMPARE(element->modelAt(100000), element->modelAt(1));
    QVERIFY(!element->modelAt(0));
}

void tst_model_loader::a_file_that_fails_leaves_the_scene_as_it_was()
{
    ModelLoader loader(*_session);
    loadAll(loader, {model("arm.obj")});
    QSignalSpy failed(&loader, &ModelLoader::failed);
    loadAll(loader, {_folder->filePath("missing.obj")});
    QCOMPARE(failed.count(), 1);
    QVERIFY(failed.first().first().toString().contains("missing.obj"));
    QCOMPARE(elementNames(), QStringList{"arm"});
}

void tst_model_loader::cancelling_forgets_what_waits()
{
    ModelLoader loader(*_session);
    QSignalSpy finished(&loader, &ModelLoader::finished);
    QSignalSpy failed(&loader, &ModelLoader::failed);
    connect(&loader, &ModelLoader::started, &loader, &ModelLoader::cancel);
    loader.load({model("arm.obj"), model("leg.obj"), model("head.obj")});
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 30000);
    QVERIFY(elementNames().size() <= 1);
    QVERIFY(!elementNames().contains("leg"));
    QCOMPARE(failed.count(), 0);
    QVERIFY(!loader.isBusy());
}

void tst_model_loader::the_window_shows_what_went_wrong()
{
    WorkbenchWindow window(*_session);
    loadAll(window.loader(), {_folder->filePath("missing.obj")});
    QCOMPARE(window.messages().messages().size(), 1);
    QVERIFY(window.messages().messages().first().contains("missing.obj"));
    loadAll(window.loader(), {model("arm.obj")});
    QVERIFY(window.statusBar()->currentMessage().contains("arm"));
}

void tst_model_loader::the_header_of_a_further_model_appears_by_itself()
{
    class PaintCounter : public QObject
    {
    public:
        bool eventFilter(QObject*, QEvent* event) override
        {
            paints += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
        int paints = 0;
    };

    SC_SessionContext& context = _session->context();
    GV_GraphXViewQt view(context.actionManager(), nullptr, &context);
    view.init(new GV_GraphXViewCtrl(&view, &context));
    view.show();
    ModelLoader loader(*_session);
    loadAll(loader, {model("arm.obj")});
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QApplication::processEvents();
    PaintCounter counter;
    view.viewport()->installEventFilter(&counter);
    loadAll(loader, {model("leg.obj")});
    QTRY_VERIFY_WITH_TIMEOUT(counter.paints > 0, 5000);
}

void tst_model_loader::the_progress_dialog_appears_only_for_long_work_and_cancels()
{
    ModelLoader loader(*_session);
    ImportProgressDialog dialog(loader, nullptr);
    QVERIFY(!dialog.isVisible());
    emit loader.started(QStringLiteral("large.fbx"));
    emit loader.progress(0.1);
    QVERIFY(!dialog.isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(dialog.isVisible(), 5000);
    QVERIFY(dialog.labelText().contains("large.fbx"));
    QSignalSpy canceled(&dialog, &QProgressDialog::canceled);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QCOMPARE(canceled.count(), 1);
    emit loader.finished();
    QVERIFY(!dialog.isVisible());
}

QTEST_MAIN(tst_model_loader)
#include "tst_model_loader.moc"
