// SPDX-License-Identifier: MIT
#include "workbench/views/FocusRing.h"

#include "subnodetree/SGV_Graph3DView.h"
#include "tests/workbench/WindowTest.h"
#include "workbench/docks/ViewDock.h"

#include <QLineEdit>
#include <QTreeView>

/// The ring around the view that has the keyboard.
class tst_focus_ring : public WindowTest
{
    Q_OBJECT

private:
    QWidget* worn() { return _window->findChild<FocusRing*>()->view(); }
    QWidget* tree() { return _window->treeView().treeView(); }
    static QColor cornerOf(QWidget* view) { return view->grab().toImage().pixelColor(0, 0); }

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init() { openWindow(); }
    void cleanup() { closeWindow(); }

    void it_is_around_the_view_with_the_focus()
    {
        graph().setFocus();
        QCOMPARE(worn(), static_cast<QWidget*>(&graph()));
        const QColor ring = graph().palette().color(QPalette::Active, QPalette::Highlight);
        QCOMPARE(cornerOf(&graph()), ring);
        tree()->setFocus();
        QCOMPARE(worn(), tree());
        QCOMPARE(cornerOf(tree()), ring);
        QVERIFY(cornerOf(&graph()) != ring);
    }

    void tab_moves_it_on()
    {
        tree()->setFocus();
        key(Qt::Key_Tab);
        QVERIFY(worn() != tree());
        key(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(worn(), tree());
    }

    void a_field_shows_its_focus_itself()
    {
        tree()->setFocus();
        _window->treeView().filterField()->setFocus();
        QCOMPARE(worn(), nullptr);
    }

    void it_follows_the_size_and_lets_the_mouse_through()
    {
        graph().setFocus();
        _window->resize(1000, 640);
        const QWidget* ring = graph().findChild<QWidget*>(QStringLiteral("FocusRing"));
        QVERIFY(ring);
        QTRY_COMPARE(ring->size(), graph().size());
        QTest::mouseClick(graph().viewport(), Qt::LeftButton, {}, QPoint(60, 48));
        QCOMPARE(subSelected(*_robot), QStringList{"Hips"});
    }

    void it_goes_with_its_view()
    {
        ViewDock* dock = _window->openGraphView();
        QCOMPARE(worn(), dock->view()->widget());
        dock->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        graph().setFocus();
        QCOMPARE(worn(), static_cast<QWidget*>(&graph()));
    }
};

QTEST_MAIN(tst_focus_ring)
#include "tst_focus_ring.moc"
