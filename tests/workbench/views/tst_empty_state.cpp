// SPDX-License-Identifier: MIT
#include "workbench/views/EmptyState.h"

#include "Dialogs.h"
#include "Drops.h"
#include "ModelFiles.h"
#include "host/scene/SC_CurrentFrameInterface.h"
#include "subnodetree/SGV_Graph3DView.h"
#include "tests/workbench/WindowTest.h"
#include "workbench/docks/ViewDock.h"
#include "workbench/window/FileActions.h"

#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTreeView>

/// An empty view says why it is empty, and what to do about it.
class tst_empty_state : public WindowTest
{
    Q_OBJECT

private:
    EmptyState* inGraph() { return graph().findChild<EmptyState*>(); }
    EmptyState* inTree() { return _window->treeView().treeView()->findChild<EmptyState*>(); }
    QList<EmptyState*> both() { return {inGraph(), inTree()}; }
    /// What both say; empty when they are out of sight, and something else when they differ.
    QString said()
    {
        if (inGraph()->isVisible() != inTree()->isVisible())
            return QStringLiteral("One is visible, the other one is not.");
        if (!inGraph()->isVisible())
            return {};
        return inGraph()->text() == inTree()->text() ? inGraph()->text()
                                                     : QStringLiteral("They differ.");
    }
    void goToFrame(int frame)
    {
        context().currentFrameInterface()->setCurrentFrame(_session->currentScene(), frame);
        context().changeManager()->notify();
    }
    static QPoint offCentre(const EmptyState& state)
    {
        return state.geometry().center() - state.parentWidget()->rect().center();
    }

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init() { openEmptyWindow(); }
    void cleanup() { closeWindow(); }

    void an_empty_scene_asks_for_a_model_until_there_is_one()
    {
        QVERIFY2(said().contains(QStringLiteral("Nothing is open")), qPrintable(said()));
        open({QStringLiteral(MODELS "/robot.gltf")});
        QCOMPARE(said(), QString());
        _window->files().setAsks(false);
        _window->files().newScene();
        QVERIFY2(said().contains(QStringLiteral("Nothing is open")), qPrintable(said()));
    }

    void without_a_selection_it_asks_for_one()
    {
        open({QStringLiteral(MODELS "/robot.gltf")});
        list().setFocus();
        list().clearSelection();
        context().changeManager()->notify();
        QVERIFY2(said().contains(QStringLiteral("No model is selected")), qPrintable(said()));
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                          list().visualItemRect(list().topLevelItem(0)).center());
        QCOMPARE(said(), QString());
    }

    void a_filter_that_keeps_nothing_says_so_in_the_tree_alone()
    {
        open({QStringLiteral(MODELS "/robot.gltf")});
        QLineEdit* field = _window->treeView().filterField();
        const auto textOver = [](QWidget* viewport) {
            const auto* state = viewport->findChild<EmptyState*>();
            return state && state->isVisible() ? state->text() : QString();
        };
        field->setText(QStringLiteral("wings"));
        QVERIFY(textOver(_window->treeView().treeView()->viewport())
                    .contains(QStringLiteral("\"wings\"")));
        QCOMPARE(textOver(graph().viewport()), QString());
        field->clear();
        QCOMPARE(textOver(_window->treeView().treeView()->viewport()), QString());
    }

    void further_graph_views_have_one_too()
    {
        auto* other = dynamic_cast<GV_GraphXViewQt*>(_window->openGraphView()->view()->widget());
        QVERIFY(other);
        const auto* state = other->viewport()->findChild<EmptyState*>();
        QVERIFY(state && state->isVisible());
    }

    void a_node_that_is_no_model_counts_as_none()
    {
        addPeg("peg");
        QVERIFY2(said().contains(QStringLiteral("No model is selected")), qPrintable(said()));
    }

    void a_frame_without_a_drawing_is_named()
    {
        open({QStringLiteral(MODELS "/robot.gltf")});
        element(0)->exposeModel(5, 1000, CEL_SharedPtr<TD_CelVq3d>());
        context().changeManager()->notify();
        QCOMPARE(said(), QString());
        goToFrame(7);
        QVERIFY2(said().contains(QStringLiteral("robot shows nothing at frame 7")),
                 qPrintable(said()));
        goToFrame(4);
        QCOMPARE(said(), QString());
        goToFrame(5);
        element(0)->exposeModel(5, 1000, element(0)->modelAt(1));
        context().changeManager()->notify();
        QCOMPARE(said(), QString());
    }

    void a_missing_model_is_named_until_its_file_is_back()
    {
        const QTemporaryDir folder;
        const QString model = folder.filePath(QStringLiteral("b&b.gltf"));
        const QString scene = folder.filePath(QStringLiteral("scene.subnodes"));
        QVERIFY(ModelFiles::writeRobot(model));
        open({model});
        QString error;
        QVERIFY(_window->files().saveTo(scene, error));
        QVERIFY(QFile::rename(model, model + QStringLiteral(".away")));
        open({scene});
        QVERIFY2(said().contains(QStringLiteral("The model of b&amp;b is missing")),
                 qPrintable(said()));
        QVERIFY(QFile::rename(model + QStringLiteral(".away"), model));
        graph().setFocus();
        key(Qt::Key_F5);
        QTRY_COMPARE_WITH_TIMEOUT(said(), QString(), 30000);
    }

    void its_link_opens_the_chooser()
    {
        for (EmptyState* state : both()) {
            Dialogs dialogs;
            dialogs.expect(Dialogs::escape());
            // The link lies somewhere in the text; only there the pointer becomes a hand.
            QPoint link(-1, -1);
            for (int y = 0; y < state->height() && link.x() < 0; y += 4) {
                for (int x = 0; x < state->width() && link.x() < 0; x += 4) {
                    QTest::mouseMove(state, QPoint(x, y));
                    if (state->cursor().shape() == Qt::PointingHandCursor)
                        link = QPoint(x, y);
                }
            }
            QVERIFY(link.x() >= 0);
            QTest::mouseClick(state, Qt::LeftButton, {}, link);
            QTRY_VERIFY(dialogs.areDone());
            QCOMPARE(dialogs.texts(), QStringList{QStringLiteral("Open Models and Scenes")});
        }
    }

    void it_stays_in_the_middle()
    {
        for (const QSize& size : {QSize(1100, 800), QSize(1500, 1000), QSize(900, 650)}) {
            _window->resize(size);
            QCoreApplication::processEvents();
            for (const EmptyState* state : both()) {
                QVERIFY(offCentre(*state).manhattanLength() <= 2);
                QVERIFY(state->parentWidget()->rect().contains(state->geometry()));
                QVERIFY(state->height() >= state->heightForWidth(state->width()));
            }
        }
    }

    void models_can_be_dropped_where_it_says_so()
    {
        const QString robot = QStringLiteral(MODELS "/robot.gltf");
        for (EmptyState* state : both()) {
            const QPoint at = state->mapTo(_window.get(), state->rect().center());
            QSignalSpy opened(&_window->files(), &FileActions::allOpened);
            QVERIFY(Drops::dropFiles(*_window, at, {robot}));
            QTRY_COMPARE_WITH_TIMEOUT(opened.count(), 1, 30000);
            QCOMPARE(said(), QString());
            _window->files().setAsks(false);
            _window->files().newScene();
        }
    }

    void the_view_below_it_still_gets_the_mouse()
    {
        QTest::mousePress(inGraph(), Qt::LeftButton, {}, QPoint(2, 2));
        QCOMPARE(graph().mouseAction(), GV_GraphXViewQt::eMouseMarquee);
        QTest::mouseRelease(inGraph(), Qt::LeftButton, {}, QPoint(2, 2));
        QCOMPARE(graph().mouseAction(), GV_GraphXViewQt::eMouseNone);
    }
};

QTEST_MAIN(tst_empty_state)
#include "tst_empty_state.moc"
