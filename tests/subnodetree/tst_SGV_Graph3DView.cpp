// SPDX-License-Identifier: MIT

#include "host/actions/AC_Manager.h"
#include "subnodetree/SGV_GraphItem.h"
#include "tests/subnodetree/TreeTest.h"

#include <QApplication>
#include <QHeaderView>
#include <QMetaMethod>
#include <QVBoxLayout>

/// What the panel is made of, and by which names it is reached.
class tst_SGV_Graph3DView : public TreeTest
{
    Q_OBJECT

private:
    OpenTreePanel& panel() { return _stage->panel(); }

private slots:
    void before_init_there_are_no_widgets_and_no_path()
    {
        OpenTreePanel fresh(_stage->context().actionManager(), nullptr, &_stage->context());
        QVERIFY(!fresh.treeView());
        QVERIFY(!fresh.model());
        QVERIFY(!fresh.proxyModel());
        QVERIFY(!fresh.filterField());
        QVERIFY(!fresh.pathLabel());
        // There is no line yet to show it in.
        fresh.updateCurrentSubnodePath(QModelIndex());
        QVERIFY(!fresh.layout());
    }

    void it_is_known_by_its_names()
    {
        QCOMPARE(panel().viewName(), QS("graphView"));
        QCOMPARE(panel().objectName(), QS("SGV_GraphView"));
        QCOMPARE(panel().responderIdentity(), QS("SGV_GraphView"));
        QCOMPARE(panel().widget(), static_cast<QWidget*>(&panel()));
        QVERIFY(panel().hasMenu());
        const auto found = _stage->context().actionManager()->responders(QS("SGV_GraphView"));
        QCOMPARE(found.size(), std::size_t(1));
        QCOMPARE(found.front(), static_cast<AC_Responder*>(&panel()));
    }

    void actions_reach_its_methods_in_a_fixed_order()
    {
        const QMetaObject& meta = SGV_Graph3DView::staticMetaObject;
        const QStringList expected{"subSelectionChanged()",
                                   "onSelectionChanged()",
                                   "onSubSelectionChanged()",
                                   "onCurrentFrameChanged()",
                                   "onCurrentSceneChanged(TUScene*)",
                                   "nodesChanged(TUNodeSet)",
                                   "networkChanged()",
                                   "on3DModelSubSectionChanged(QItemSelection,QItemSelection)",
                                   "onFilterChanged()",
                                   "onCustomContextMenu(QPoint)",
                                   "onActionExpandAll()",
                                   "onActionCollapseAll()",
                                   "onActionExpandSelection()",
                                   "onActionCollapseSelection()",
                                   "onActionCopySubNodeName()",
                                   "onActionCopySubNodeNameValidate(AC_ActionInfo*)",
                                   "onActionToggleDebugMode()",
                                   "onActionToggleDebugModeValidate(AC_ActionInfo*)",
                                   "selectAll()",
                                   "deselect()"};
        QStringList methods;
        for (int ix = meta.methodOffset(); ix < meta.methodCount(); ++ix) {
            methods.append(QString::fromLatin1(meta.method(ix).methodSignature()));
            QCOMPARE(meta.method(ix).methodType(),
                     ix == meta.methodOffset() ? QMetaMethod::Signal : QMetaMethod::Slot);
        }
        QCOMPARE(methods, expected);
    }

    void the_tree_has_no_header_and_selects_many_rows()
    {
        QTreeView& tree = _stage->tree();
        QVERIFY(tree.isHeaderHidden());
        addRobot();
        QCOMPARE(tree.header()->sectionResizeMode(0), QHeaderView::ResizeToContents);
        QVERIFY(!tree.header()->stretchLastSection());
        QCOMPARE(tree.selectionMode(), QAbstractItemView::ExtendedSelection);
        QCOMPARE(tree.contextMenuPolicy(), Qt::CustomContextMenu);
        QCOMPARE(tree.iconSize().width(), tree.iconSize().height());
        QVERIFY(tree.iconSize().width() >= 16);
        QCOMPARE(tree.model(), static_cast<QAbstractItemModel*>(panel().proxyModel()));
        QCOMPARE(panel().proxyModel()->sourceModel(),
                 static_cast<QAbstractItemModel*>(panel().model()));
        QVERIFY(!panel().model()->QObject::parent());
        QVERIFY(!panel().proxyModel()->QObject::parent());
    }

    void tree_filter_and_path_stand_one_below_the_other()
    {
        QVERIFY(_stage->show());
        const auto* column = qobject_cast<QVBoxLayout*>(panel().layout());
        QVERIFY(column);
        QCOMPARE(column->count(), 3);
        QCOMPARE(column->itemAt(0)->widget(), static_cast<QWidget*>(panel().treeView()));
        QCOMPARE(column->itemAt(2)->widget(), static_cast<QWidget*>(panel().pathLabel()));
        const auto* line = qobject_cast<QHBoxLayout*>(column->itemAt(1)->layout());
        QVERIFY(line);
        QCOMPARE(line->contentsMargins(), QMargins(5, 0, 5, 0));
        QCOMPARE(line->count(), 2);
        const auto* icon = qobject_cast<QLabel*>(line->itemAt(0)->widget());
        QVERIFY(icon);
        QVERIFY(!icon->pixmap().isNull());
        QCOMPARE(line->itemAt(1)->widget(), static_cast<QWidget*>(panel().filterField()));
        QCOMPARE(panel().pathLabel()->contentsMargins(), QMargins(5, 0, 5, 5));
        QVERIFY(panel().treeView()->isVisible());
        QVERIFY(panel().treeView()->geometry().bottom() < panel().filterField()->geometry().top());
        QVERIFY(panel().filterField()->geometry().bottom() < panel().pathLabel()->geometry().top());
    }

    void init_shows_what_is_selected_already()
    {
        MO_ElementModule& element = _stage->addElement(QS("robot"));
        _stage->addOutput(QS("out"), QS("leg"), element);
        _stage->setVisible(element, {QS("arm")}, false);
        _stage->select({&element});
        _stage->subSelect(element, {QS("hand")});
        QCOMPARE(_stage->outline(), QS("body(arm(hand) leg*)"));
        QCOMPARE(_stage->expandedRows(), names("body arm"));
        QCOMPARE(_stage->selectedRows(), names("hand"));
        QCOMPARE(_stage->path(), QS(" robot > body > arm > hand"));
        QCOMPARE(panel().model()->items().at(1)->visibilityState(),
                 quint32(SGV_GraphItem::Disabled));
        QVERIFY(_stage->lastStep().isEmpty());
    }

    void the_tool_bar_is_the_defined_one()
    {
        QVERIFY(panel().toolbar().isNull());
        QVERIFY(_stage->context().actionManager()->loadDefinitions(
            "<definitions><action id='E' responder='SGV_GraphView' slot='onActionExpandAll' "
            "text='Expand'/><toolbar id='graph3dtoolbar'><item action='E'/></toolbar>"
            "</definitions>"));
        QCOMPARE(panel().toolbar().tagName(), QS("toolbar"));
        QCOMPARE(panel().toolbar().attribute(QS("id")), QS("graph3dtoolbar"));
    }

    void without_an_action_manager_it_works_but_has_no_tool_bar()
    {
        OpenTreePanel alone(nullptr, nullptr, &_stage->context());
        alone.init();
        QVERIFY(alone.toolbar().isNull());
        QVERIFY(!alone.menu(TULayoutView::ePopupMenu));
        MO_ElementModule& element = _stage->addElement(QS("robot"));
        _stage->select({&element});
        QCOMPARE(alone.proxyModel()->rowCount(), 1);
        alone.onCustomContextMenu(QPoint(1, 1));
        QVERIFY(!QApplication::activePopupWidget());
    }

    void a_clone_is_a_second_panel_on_the_session()
    {
        MO_ElementModule& element = addRobot();
        panel().filterField()->setText(QS("hand"));
        QWidget frame;
        TULayoutView* view = panel().clone(&frame);
        auto* copy = dynamic_cast<SGV_Graph3DView*>(view);
        QVERIFY(copy);
        QCOMPARE(copy->parentWidget(), &frame);
        QCOMPARE(copy->actionManager(), panel().actionManager());
        QVERIFY(copy->model() != panel().model());
        QVERIFY(copy->filterField()->text().isEmpty());
        QCOMPARE(copy->model()->items().size(), std::size_t(4));
        _stage->subSelect(element, {QS("leg")});
        QCOMPARE(copy->treeView()->selectionModel()->selectedIndexes().size(), 1);
        QCOMPARE(copy->pathLabel()->text(), QS(" robot > body > leg"));
        // A change in one shows in the other, as one step.
        copy->treeView()->setCurrentIndex(copy->proxyModel()->index(0, 0));
        QCOMPARE(_stage->subSelected(), names("body"));
        QCOMPARE(_stage->selectedRows(), names("body"));
        QCOMPARE(_stage->history().count(), 1);
        QCOMPARE(_stage->context().actionManager()->responders(QS("SGV_GraphView")).size(),
                 std::size_t(2));
    }
};

QTEST_MAIN(tst_SGV_Graph3DView)
#include "tst_SGV_Graph3DView.moc"
