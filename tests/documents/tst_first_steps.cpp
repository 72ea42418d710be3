// SPDX-License-Identifier: MIT

#include "host/models/AT_ModelData.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/TUScene.h"
#include "referencehost/session/HostSession.h"
#include "subnodetree/SGV_Graph3DView.h"
#include "workbench/window/FileActions.h"
#include "workbench/window/WorkbenchWindow.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <QWindow>

/// The walk through the program that the README promises, step by step and with its keys.
class tst_first_steps : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void an_arm_is_found_hidden_saved_and_reopened();

private:
    void open(const QString& path);
    void close();
    void key(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier);
    void clickRow(const QString& name);
    /// Answers the dialog that the next key opens.
    void answerWith(const QString& path);
    bool isShown(const QString& subnode) const;

    std::unique_ptr<HostSession> _session;
    std::unique_ptr<WorkbenchWindow> _window;
};

void tst_first_steps::initTestCase()
{
    osg::osgInit(0, nullptr);
}

void tst_first_steps::init()
{
    // Off screen, a window with docks is remarked upon; anything else is a failure.
    QTest::failOnWarning(QRegularExpression(
        QStringLiteral("^(?!This plugin does not support propagateSizeHints).")));
}

void tst_first_steps::cleanup()
{
    close();
}

void tst_first_steps::open(const QString& path)
{
    _session = std::make_unique<HostSession>();
    _session->openScene(QStringLiteral("scene"));
    _window = std::make_unique<WorkbenchWindow>(*_session);
    QSignalSpy opened(&_window->files(), &FileActions::allOpened);
    QSignalSpy problems(&_window->files(), &FileActions::problem);
    _window->files().open({path});
    QTRY_COMPARE_WITH_TIMEOUT(opened.count(), 1, 30000);
    QCOMPARE(problems.count(), 0);
    _window->show();
    _window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(_window.get()));
}

void tst_first_steps::close()
{
    _window.reset();
    _session.reset();
}

void tst_first_steps::key(Qt::Key key, Qt::KeyboardModifiers held)
{
    QTest::keyClick(_window->windowHandle(), key, held);
}

void tst_first_steps::clickRow(const QString& name)
{
    QTreeView* tree = _window->treeView().treeView();
    const QModelIndexList found = tree->model()->match(tree->model()->index(0, 0), Qt::DisplayRole,
                                                       name, 1, Qt::MatchRecursive);
    QCOMPARE(found.size(), 1);
    tree->scrollTo(found.first());
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {},
                      tree->visualRect(found.first()).center());
}

void tst_first_steps::answerWith(const QString& path)
{
    auto* timer = new QTimer(_window.get());
    connect(timer, &QTimer::timeout, this, [timer, path] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        timer->stop();
        auto* field = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        QVERIFY(field);
        // Typed, the name would bring up proposals, which take the keys that follow.
        field->setText(path);
        QTest::keyClick(field, Qt::Key_Return);
    });
    timer->start(0);
}

bool tst_first_steps::isShown(const QString& subnode) const
{
    const auto* element = dynamic_cast<const MO_ElementModule*>(
        _session->currentScene()->rootGroup()->nodes().front());
    const AT_ModelData* settings = element ? element->seqMeta(1) : nullptr;
    const AT_ModelNodeData* record =
        settings ? settings->nodeData(AT_ModelNodeKey(subnode)) : nullptr;
    return !record || record->visible;
}

void tst_first_steps::an_arm_is_found_hidden_saved_and_reopened()
{
    const QTemporaryDir folder;
    const QString arm = QStringLiteral("LeftUpperArm");
    const QString scene = folder.filePath(QStringLiteral("arm.subnodes"));
    open(QStringLiteral(SOURCES "/models/robot.gltf"));

    key(Qt::Key_F, Qt::ControlModifier);
    QLineEdit* field = _window->treeView().filterField();
    QTRY_COMPARE(QApplication::focusWidget(), field);
    QTest::keyClicks(field, QStringLiteral("arm"));
    clickRow(arm);
    QVERIFY(isShown(arm));
    key(Qt::Key_F);
    key(Qt::Key_H);
    QTRY_VERIFY(!isShown(arm));
    key(Qt::Key_Z, Qt::ControlModifier);
    QTRY_VERIFY(isShown(arm));
    key(Qt::Key_H);
    QTRY_VERIFY(!isShown(arm));
    key(Qt::Key_H, Qt::ShiftModifier);
    QTRY_VERIFY(isShown(arm));
    key(Qt::Key_H);
    QTRY_VERIFY(!isShown(arm));

    answerWith(scene);
    key(Qt::Key_S, Qt::ControlModifier);
    QTRY_VERIFY(QFile::exists(scene));
    QVERIFY(!_window->isWindowModified());
    close();

    open(scene);
    QVERIFY(!isShown(arm));
}

QTEST_MAIN(tst_first_steps)
#include "tst_first_steps.moc"
