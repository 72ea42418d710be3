// SPDX-License-Identifier: MIT

#include "host/models/AT_ModelData.h"
#include "host/models/TD_CelVq3d.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/MO_KinematicOutputModule.h"
#include "host/scene/TUScene.h"
#include "tests/subnodetree/TreeTest.h"

#include <QPointer>
#include <functional>

namespace {

using namespace ModelBuilder;

} // namespace

/// Things that vanish while the panel looks at them, and models that are unlike any other.
class tst_SGV_Graph3DViewFaults : public TreeTest
{
    Q_OBJECT

private:
    SGV_Graph3DView& panel() { return _stage->panel(); }

    /// Everything that the panel can be told or asked to do, in turn.
    void tellAll()
    {
        panel().onSubSelectionChanged();
        panel().onFilterChanged();
        panel().selectAll();
        panel().onActionExpandSelection();
        panel().onActionCollapseSelection();
        panel().onActionCopySubNodeName();
        panel().deselect();
        panel().networkChanged();
        panel().onCurrentFrameChanged();
        panel().nodesChanged({});
        panel().onCurrentSceneChanged(nullptr);
        panel().onActionToggleDebugMode();
        panel().onActionToggleDebugMode();
        panel().onSelectionChanged();
        panel().onActionExpandAll();
        panel().onActionCollapseAll();
    }
    bool isShownEmpty()
    {
        return _stage->rows().isEmpty() && _stage->selectedRows().isEmpty() &&
               _stage->path() == QS(" ");
    }

private slots:
    void an_element_that_dies_unannounced_leaves_rows_that_do_nothing()
    {
        MO_ElementModule& element = addRobot();
        QVERIFY(_stage->show());
        _stage->click(QS("hand"));
        const int steps = _stage->history().count();
        element.parentGroup()->takeNode(&element).reset();
        QCOMPARE(_stage->rows().size(), 4);
        _stage->click(QS("leg"));
        QCOMPARE(_stage->history().count(), steps);
        _stage->tree().viewport()->grab();
        tellAll();
        QVERIFY(isShownEmpty());
        _stage->notify();
        QVERIFY(isShownEmpty());
    }

    void each_notice_alone_copes_with_a_dead_element()
    {
        const std::vector<std::function<void()>> notices{
            [&] { panel().onSelectionChanged(); },
            [&] { panel().onSubSelectionChanged(); },
            [&] { panel().onCurrentFrameChanged(); },
            [&] { panel().networkChanged(); },
            [&] { panel().nodesChanged({}); },
            [&] { panel().onFilterChanged(); },
            [&] { panel().onActionToggleDebugMode(); },
            [&] { panel().selectAll(); },
            [&] { panel().onCurrentSceneChanged(nullptr); }};
        for (const auto& notice : notices) {
            MO_ElementModule& element = addRobot();
            _stage->subSelect(element, names("leg"));
            element.parentGroup()->takeNode(&element).reset();
            notice();
            QVERIFY(_stage->subSelected().isEmpty());
            _stage->notify();
            QVERIFY(isShownEmpty());
        }
    }

    void a_deleted_element_gives_way_to_the_next_selected_one()
    {
        MO_ElementModule& element = addRobot();
        MO_ElementModule& other = _stage->addElement(QS("other"), fan(names("a b")));
        _stage->select({&element, &other});
        _stage->remove(element);
        QCOMPARE(_stage->outline(), QS("top(a b)"));
        QCOMPARE(_stage->path(), QS(" other > "));
    }

    void a_model_that_goes_leaves_no_rows()
    {
        MO_ElementModule& element = addRobot();
        QVERIFY(_stage->show());
        _stage->click(QS("leg"));
        element.exposeModel(1, 1000, {});
        // Nobody was told yet, and the rows live on.
        _stage->click(QS("hand"));
        QCOMPARE(_stage->subSelected(), names("hand"));
        _stage->notify();
        QVERIFY(_stage->rows().isEmpty());
        QCOMPARE(_stage->subSelected(), names("hand"));
        tellAll();
        QVERIFY(_stage->rows().isEmpty());
        element.exposeModel(1, 1000, robotModel());
        _stage->notify();
        QCOMPARE(_stage->outline(), QS("body(arm(hand) leg)"));
        QCOMPARE(_stage->selectedRows(), _stage->subSelected());
    }

    void settings_that_go_leave_the_rows()
    {
        MO_ElementModule& element = addRobot();
        AT_ModelNodeData moved;
        moved.transformation.setTranslate(1, 2, 3);
        _stage->setRecord(element, QS("arm"), moved);
        _stage->subSelect(element, names("hand"));
        element.setSeqMeta(1, nullptr);
        tellAll();
        QCOMPARE(_stage->outline(), QS("body(arm(hand) leg)"));
        QVERIFY(panel().model()->showsRootNode(element.modelAt(1)->rootNodePtr()));
    }

    void the_selection_may_vanish_between_notices()
    {
        addRobot();
        _stage->context().selection()->clear();
        QCOMPARE(_stage->rows().size(), 4);
        panel().selectAll();
        QVERIFY(_stage->lastStep().isEmpty());
        tellAll();
        QVERIFY(isShownEmpty());
    }

    void a_closed_scene_empties_the_panel()
    {
        MO_ElementModule& element = addRobot();
        QVERIFY(_stage->show());
        _stage->addOutput(QS("out"), QS("leg"), element);
        _stage->click(QS("leg"));
        _stage->session().closeScene();
        QVERIFY(isShownEmpty());
        tellAll();
        QVERIFY(isShownEmpty());
        _stage->session().openScene(QS("next"));
        MO_ElementModule& next = _stage->addElement(QS("next"));
        _stage->select({&next});
        QCOMPARE(_stage->outline(), QS("body(arm(hand) leg)"));
    }

    void a_scene_that_replaces_another_takes_its_rows()
    {
        addRobot();
        _stage->session().openScene(QS("next"));
        QVERIFY(isShownEmpty());
    }

    void the_output_that_is_selected_may_lose_its_element()
    {
        MO_ElementModule& element = addRobot();
        MO_KinematicOutputModule& output = _stage->addOutput(QS("out"), QS("leg"), element);
        _stage->select({&output});
        QCOMPARE(_stage->path(), QS(" robot > "));
        _stage->remove(element);
        QVERIFY(isShownEmpty());
        tellAll();
        QVERIFY(isShownEmpty());
    }

    void the_panel_may_go_with_a_selection_in_it()
    {
        MO_ElementModule& element = addRobot();
        QVERIFY(_stage->show());
        _stage->click(QS("leg"));
        _stage->destroyPanel();
        QCOMPARE(_stage->subSelected(), names("leg"));
        QCOMPARE(_stage->history().count(), 1);
        _stage->history().undo();
        _stage->remove(element);
        QVERIFY(_stage->subSelected().isEmpty());
    }

    void a_panel_may_go_before_init()
    {
        auto fresh = std::make_unique<SGV_Graph3DView>(nullptr, nullptr, &_stage->context());
        QPointer<QObject> watched(fresh.get());
        fresh.reset();
        QVERIFY(!watched);
        _stage->notify();
    }

    void the_session_may_go_before_the_panel()
    {
        _stage.reset();
        auto session = std::make_unique<GraphStage>();
        auto late = std::make_unique<SGV_Graph3DView>(session->context().actionManager(), nullptr,
                                                      &session->context());
        late->init();
        MO_ElementModule& element = session->addElement(QS("robot"));
        session->select({&element});
        session->subSelect(element, names("leg"));
        QCOMPARE(late->model()->items().size(), std::size_t(4));
        session.reset();
        QVERIFY(late->model()->isEmpty());
        QPointer<QTreeView> tree(late->treeView());
        late.reset();
        QVERIFY(!tree);
    }

    void a_panel_owns_its_models()
    {
        addRobot();
        const QPointer<SGV_GraphModel> model(panel().model());
        const QPointer<SubNodeFilterProxyModel> proxy(panel().proxyModel());
        const QPointer<QTreeView> tree(panel().treeView());
        _stage->destroyPanel();
        QVERIFY(!model);
        QVERIFY(!proxy);
        QVERIFY(!tree);
    }

    void an_element_may_die_while_the_panel_tells_of_a_click()
    {
        MO_ElementModule& element = addRobot();
        QVERIFY(_stage->show());
        connect(
            &panel(), &SGV_Graph3DView::subSelectionChanged, this,
            [&] { element.parentGroup()->takeNode(&element).reset(); }, Qt::SingleShotConnection);
        _stage->click(QS("leg"));
        QVERIFY(isShownEmpty());
    }

    void a_chain_of_thousands_is_shown_filtered_and_selected()
    {
        MO_ElementModule& element = addSelected(chain(2000));
        QCOMPARE(panel().model()->items().size(), std::size_t(2000));
        _stage->subSelect(element, names("link1999"));
        QCOMPARE(_stage->selectedRows(), names("link1999"));
        QVERIFY(_stage->path().startsWith(QS(" robot > link0 > link1 > ")));
        QVERIFY(_stage->path().endsWith(QS(" > link1998 > link1999")));
        _stage->filter(QS("link1234"));
        QCOMPARE(_stage->rows().size(), 1235);
        QVERIFY(_stage->selectedRows().isEmpty());
        _stage->filter(QString());
        QCOMPARE(_stage->selectedRows(), names("link1999"));
        QCOMPARE(_stage->subSelected(), names("link1999"));
        QVERIFY(_stage->lastStep().isEmpty());
        _stage->select({});
        QVERIFY(_stage->rows().isEmpty());
    }

    void empty_doubled_and_very_long_names_are_taken_as_they_are()
    {
        const std::string longName(5000, 'x');
        MO_ElementModule& element =
            addSelected(model(key("", {shapedKey("twin"), key("", {shapedKey("twin")}),
                                       shapedKey(longName), shapedKey(noName)})));
        QVERIFY(_stage->show());
        const int width = panel().minimumSizeHint().width();
        QCOMPARE(_stage->rows().size(), 6);
        _stage->subSelect(element, {QS("twin"), QS::fromStdString(longName)});
        QCOMPARE(_stage->selectedRows(), QStringList({QS("twin"), QS::fromStdString(longName)}));
        QCOMPARE(_stage->path(), QS(" robot >  > twin"));
        element.selInterface()->subDeselect(element.selInterface()->subSelectedIds().front());
        _stage->notify();
        QCOMPARE(_stage->path().size(), QS(" robot >  > ").size() + 5000);
        QCOMPARE(panel().minimumSizeHint().width(), width);
        tellAll();
        QCOMPARE(_stage->rows().size(), 6);
    }

    void a_filter_takes_every_character_literally_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"a.b", "a*", "[x]", "(", "\\d", "^a$", "a|b", "?", "+", "100%",
                                 "%1", " ", "<b>", "&amp;", "ä€"})
            QTest::addRow("%s", name) << QString::fromUtf8(name);
    }
    void a_filter_takes_every_character_literally()
    {
        QFETCH(const QString, name);
        MO_ElementModule& element =
            addSelected(fan({QS("plain"), QS("before") + name + QS("after"), QS("aab1d")}));
        _stage->subSelect(element, {QS("before") + name + QS("after")});
        _stage->filter(name);
        QCOMPARE(_stage->rows().size(), 2);
        QCOMPARE(_stage->selectedRows(), QStringList(QS("before") + name + QS("after")));
        QVERIFY(!_stage->row(QS("before") + name + QS("after")).data().toString().isEmpty());
        _stage->filter(name + QS("zzz"));
        QVERIFY(_stage->rows().isEmpty());
    }
};

QTEST_MAIN(tst_SGV_Graph3DViewFaults)
#include "tst_SGV_Graph3DViewFaults.moc"
