// SPDX-License-Identifier: MIT
#include "workbench/views/FilterCount.h"

#include "host/scene/SC_CurrentFrameInterface.h"
#include "subnodetree/SGV_Graph3DView.h"
#include "subnodetree/SGV_GraphModel.h"
#include "subnodetree/SubNodeFilterProxyModel.h"
#include "tests/workbench/WindowTest.h"
#include "workbench/window/FileActions.h"

#include <QLineEdit>

namespace {

int countBelow(const QAbstractItemModel& model, const QModelIndex& parent = {})
{
    int count = 0;
    for (int row = 0; row < model.rowCount(parent); ++row)
        count += 1 + countBelow(model, model.index(row, 0, parent));
    return count;
}

} // namespace

/// How many rows the filter keeps stands in the status bar.
class tst_filter_count : public WindowTest
{
    Q_OBJECT

private:
    QString text() { return _window->findChild<FilterCount*>()->text(); }
    QLineEdit& field() { return *_window->treeView().filterField(); }
    int all() { return countBelow(*_window->treeView().model()); }
    int kept() { return countBelow(*_window->treeView().proxyModel()); }
    QString keptOfAll() { return QStringLiteral("%1 of %2").arg(kept()).arg(all()); }

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init() { openWindow(); }
    void cleanup() { closeWindow(); }

    void without_a_filter_it_counts_all()
    {
        QVERIFY(all() > 20);
        QTRY_VERIFY2(text().contains(QString::number(all())), qPrintable(text()));
        QVERIFY2(!text().contains(QStringLiteral(" of ")), qPrintable(text()));
        QVERIFY2(!text().contains(u'('), qPrintable(text()));
    }

    void every_key_in_the_filter_counts_anew()
    {
        key(Qt::Key_F, Qt::ControlModifier);
        QVERIFY(field().hasFocus());
        for (const QChar letter : QStringLiteral("Left")) {
            QTest::keyClick(_window->windowHandle(), letter.toLatin1());
            QVERIFY(kept() > 0);
            QTRY_COMPARE(text(), keptOfAll());
        }
        QVERIFY(kept() < all());
        QTest::keyClicks(&field(), QStringLiteral("no such"));
        QTRY_COMPARE(text(), QStringLiteral("0 of %1").arg(all()));
        field().clear();
        QTRY_VERIFY(!text().contains(QStringLiteral(" of ")));
    }

    void without_a_model_there_is_nothing_to_count()
    {
        _window->files().setAsks(false);
        _window->files().newScene();
        QTRY_COMPARE(text(), QString());
        field().setText(QStringLiteral("Left"));
        QCOMPARE(text(), QString());
        open({QStringLiteral(MODELS "/crane.gltf")});
        QVERIFY(all() > 0);
        QTRY_COMPARE(text(), keptOfAll());
    }

    void a_frame_without_a_drawing_leaves_nothing_to_count()
    {
        _robot->exposeModel(5, 1000, CEL_SharedPtr<TD_CelVq3d>());
        context().changeManager()->notify();
        field().setText(QStringLiteral("Left"));
        const QString before = text();
        QCOMPARE(before, keptOfAll());
        const auto goToFrame = [this](int frame) {
            context().currentFrameInterface()->setCurrentFrame(_session->currentScene(), frame);
            context().changeManager()->notify();
        };
        goToFrame(7);
        QTRY_COMPARE(text(), QString());
        goToFrame(2);
        QTRY_COMPARE(text(), before);
    }

    void every_node_of_the_scene_graph_is_counted_when_shown()
    {
        const int keys = all();
        _window->treeView().setFocus();
        key(Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(all() > keys);
        QTRY_VERIFY2(text().contains(QString::number(all())), qPrintable(text()));
    }
};

QTEST_MAIN(tst_filter_count)
#include "tst_filter_count.moc"
