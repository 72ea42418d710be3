// SPDX-License-Identifier: MIT
#include "Dialogs.h"
#include "ModelFiles.h"
#include "graphview/GV_TreeWalk.h"
#include "subnodetree/SGV_Graph3DView.h"
#include "subnodetree/SGV_GraphModel.h"
#include "subnodetree/SubNodeFilterProxyModel.h"
#include "tests/workbench/WindowTest.h"
#include "workbench/window/ActionPalette.h"

#include <QLineEdit>
#include <QTemporaryDir>
#include <QToolBar>
#include <QToolButton>
#include <QTreeView>

/// From a model file to a scene file and back, as users go who have only keys, or only a mouse.
class tst_whole_way : public WindowTest
{
    Q_OBJECT

private:
    const QString _arm = QStringLiteral("LeftShoulder");
    std::unique_ptr<QTemporaryDir> _folder;
    std::unique_ptr<Dialogs> _dialogs;
    QString _scene;

    bool isShown(const QString& name) { return !isHidden(*element(0), name); }
    QStringList selected() { return element(0) ? subSelected(*element(0)) : QStringList(); }
    /// Performs an entry of the menus by its words.
    void perform(const QString& words)
    {
        key(Qt::Key_F1);
        ActionPalette& palette = _window->palette();
        QVERIFY(QTest::qWaitForWindowActive(&palette));
        typeInto(palette.windowHandle(), words);
        QTest::keyClick(palette.windowHandle(), Qt::Key_Return);
        QTRY_VERIFY(!palette.isVisible());
        QCoreApplication::processEvents();
    }
    /// Goes from widget to widget until the one has the focus.
    void tabTo(const QWidget& widget)
    {
        for (int i = 0; i < 60 && !widget.hasFocus(); ++i)
            key(Qt::Key_Tab);
        QVERIFY(widget.hasFocus());
    }
    QToolButton* button(const QString& text)
    {
        for (QToolButton* each : _window->findChildren<QToolButton*>()) {
            const QAction* action = each->defaultAction();
            if (each->isVisible() && action && action->text().remove(u'&') == text)
                return each;
        }
        return nullptr;
    }
    void clickButton(const QString& text)
    {
        QVERIFY2(button(text), qPrintable(text));
        context().actionManager()->validateActions();
        QVERIFY2(button(text)->isEnabled(), qPrintable(text));
        QTest::mouseClick(button(text), Qt::LeftButton);
    }
    /// Opens the menu by a click and clicks the entry in it.
    void clickEntry(const QString& menuTitle, const QString& start)
    {
        QMenu* found = menu(menuTitle);
        QAction* wanted = entry(menuTitle, start);
        QVERIFY(found && wanted);
        QTest::mouseClick(_window->menuBar(), Qt::LeftButton, {},
                          _window->menuBar()->actionGeometry(found->menuAction()).center());
        QTRY_VERIFY(found->isVisible());
        QTest::mouseClick(found, Qt::LeftButton, {}, found->actionGeometry(wanted).center());
        QTRY_VERIFY(!found->isVisible());
    }
    void clickRow(const QString& name)
    {
        SGV_Graph3DView& view = _window->treeView();
        const QModelIndex index =
            view.proxyModel()->mapFromSource(view.model()->findIndex(AT_ModelNodeKey(name)));
        QVERIFY(index.isValid());
        view.treeView()->scrollTo(index);
        QTest::mouseClick(view.treeView()->viewport(), Qt::LeftButton, {},
                          view.treeView()->visualRect(index).center());
    }

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init()
    {
        _folder = std::make_unique<QTemporaryDir>();
        _scene = _folder->filePath(QStringLiteral("arm.subnodes"));
        openEmptyWindow();
        _dialogs = std::make_unique<Dialogs>();
    }
    void cleanup()
    {
        closeWindow();
        QCOMPARE(_dialogs->unexpected(), QStringList());
    }

    void an_arm_is_hidden_saved_and_found_hidden_again_by_keys()
    {
        QSignalSpy opened(&_window->files(), &FileActions::allOpened);
        _dialogs->expect(Dialogs::choose(QStringLiteral(MODELS "/robot.gltf")));
        key(Qt::Key_O, Qt::ControlModifier);
        QTRY_COMPARE_WITH_TIMEOUT(opened.count(), 1, 30000);

        tabTo(graph());
        // Hips, torso, its first child, and on to the arm.
        key(Qt::Key_Right);
        key(Qt::Key_Right);
        key(Qt::Key_Right);
        for (int i = 0; i < 6 && selected() != QStringList{_arm}; ++i)
            key(Qt::Key_Down);
        QCOMPARE(selected(), QStringList{_arm});
        key(Qt::Key_I);
        QVERIFY(isHidden(*element(0), QStringLiteral("Neck")));
        QVERIFY(isShown(_arm));
        key(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(isShown(QStringLiteral("Neck")));
        key(Qt::Key_H);
        QVERIFY(!isShown(_arm));

        _dialogs->expect(Dialogs::choose(_scene));
        key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(!_window->isWindowModified());
        perform(QStringLiteral("new scene"));
        QTRY_VERIFY(listed().isEmpty());
        perform(QStringLiteral("recent arm"));
        QTRY_COMPARE_WITH_TIMEOUT(opened.count(), 2, 30000);
        QCOMPARE(listed(), QStringList{"robot"});
        QVERIFY(!isShown(_arm));
        QVERIFY(isShown(QStringLiteral("Neck")));
        QVERIFY(!_window->isWindowModified());
        QVERIFY(_dialogs->areDone());
    }

    void an_arm_is_found_by_its_name_by_keys()
    {
        open({QStringLiteral(MODELS "/robot.gltf")});
        key(Qt::Key_F, Qt::ControlModifier);
        QLineEdit& field = *_window->treeView().filterField();
        QVERIFY(field.hasFocus());
        typeInto(_window->windowHandle(), _arm);
        QCOMPARE(field.text(), _arm);
        tabTo(*_window->treeView().treeView());
        key(Qt::Key_End);
        QCOMPARE(selected(), QStringList{_arm});
        key(Qt::Key_H);
        QVERIFY(!isShown(_arm));
    }

    void an_arm_is_hidden_saved_and_found_hidden_again_by_mouse()
    {
        QSignalSpy opened(&_window->files(), &FileActions::allOpened);
        _dialogs->expect(Dialogs::choose(QStringLiteral(MODELS "/robot.gltf")));
        clickEntry(QStringLiteral("File"), QStringLiteral("Open..."));
        QTRY_COMPARE_WITH_TIMEOUT(opened.count(), 1, 30000);

        clickRow(_arm);
        QCOMPARE(selected(), QStringList{_arm});
        clickButton(QStringLiteral("Isolate"));
        QVERIFY(isHidden(*element(0), QStringLiteral("Neck")));
        QVERIFY(button(QStringLiteral("Isolate"))->isChecked());
        clickEntry(QStringLiteral("Edit"), QStringLiteral("Undo"));
        QVERIFY(isShown(QStringLiteral("Neck")));
        clickButton(QStringLiteral("Hide"));
        QVERIFY(!isShown(_arm));

        _dialogs->expect(Dialogs::choose(_scene));
        clickEntry(QStringLiteral("File"), QStringLiteral("Save As..."));
        QTRY_VERIFY(!_window->isWindowModified());
        clickEntry(QStringLiteral("File"), QStringLiteral("New Scene"));
        QVERIFY(listed().isEmpty());
        _dialogs->expect(Dialogs::choose(_scene));
        clickEntry(QStringLiteral("File"), QStringLiteral("Open..."));
        QTRY_COMPARE_WITH_TIMEOUT(opened.count(), 2, 30000);
        QVERIFY(!isShown(_arm));
        QVERIFY(isShown(QStringLiteral("Neck")));
        QVERIFY(_dialogs->areDone());
    }
};

QTEST_MAIN(tst_whole_way)
#include "tst_whole_way.moc"
