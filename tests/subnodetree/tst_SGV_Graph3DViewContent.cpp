// SPDX-License-Identifier: MIT

#include "host/models/AT_ModelData.h"
#include "host/models/TD_CelVq3d.h"
#include "host/scene/MO_KinematicOutputModule.h"
#include "tests/subnodetree/TreeTest.h"

/// How the panel follows the host's selection, frame and network, and the path that it shows.
class tst_SGV_Graph3DViewContent : public TreeTest
{
    Q_OBJECT

private:
    OpenTreePanel& panel() { return _stage->panel(); }

    static AT_ModelNodeData moved()
    {
        AT_ModelNodeData record;
        record.transformation.setTranslate(1, 2, 3);
        return record;
    }

private slots:
    void the_path_leads_from_the_element_to_the_first_sub_selected_row()
    {
        QVERIFY(_stage->path().isEmpty());
        MO_ElementModule& element = addRobot();
        QCOMPARE(_stage->path(), QS(" robot > "));
        _stage->subSelect(element, {QS("arm")});
        QCOMPARE(_stage->path(), QS(" robot > body > arm"));
        // The first one stays it.
        _stage->subSelect(element, {QS("body"), QS("hand")});
        QCOMPARE(_stage->path(), QS(" robot > body > arm"));
        element.selInterface()->subDeselect(element.selInterface()->subSelectedIds().front());
        _stage->notify();
        QCOMPARE(_stage->path(), QS(" robot > body"));
        _stage->filter(QS("leg"));
        QCOMPARE(_stage->path(), QS(" robot > body"));
        _stage->filter(QS("no such"));
        QCOMPARE(_stage->path(), QS(" robot > "));
        _stage->filter(QString());
        QCOMPARE(_stage->path(), QS(" robot > body"));
        _stage->select({});
        QCOMPARE(_stage->path(), QS(" "));
    }

    void an_element_without_a_name_leads_no_path()
    {
        MO_ElementModule& element = _stage->addElement(QString());
        _stage->panel();
        _stage->select({&element});
        QCOMPARE(_stage->path(), QS(" "));
        _stage->subSelect(element, {QS("hand")});
        QCOMPARE(_stage->path(), QS(" body > arm > hand"));
    }

    void a_node_below_an_element_shows_that_element_in_the_path_but_no_rows()
    {
        MO_ElementModule& element = addRobot();
        MO_KinematicOutputModule& output = _stage->addOutput(QS("out"), QS("leg"), element);
        _stage->subSelect(element, {QS("leg")});
        _stage->select({&output});
        QVERIFY(panel().model()->isEmpty());
        QCOMPARE(_stage->path(), QS(" robot > "));
        // Cut off, it works on no element's model.
        QVERIFY(MO_Port::link(nullptr, output.inPort(0)));
        _stage->notify();
        QCOMPARE(_stage->path(), QS(" "));
        QVERIFY(MO_Port::link(element.outPort(0), output.inPort(0)));
        _stage->notify();
        QCOMPARE(_stage->path(), QS(" robot > "));
    }

    void only_the_node_selected_first_is_shown()
    {
        MO_ElementModule& robot = addRobot();
        MO_ElementModule& car = _stage->addElement(QS("car"), fan(names("wheel door")));
        MO_Node& peg = _stage->addPeg(QS("peg"));
        _stage->select({&robot, &car});
        QCOMPARE(_stage->outline(), QS("body(arm(hand) leg)"));
        _stage->select({&car, &robot});
        QCOMPARE(_stage->outline(), QS("top(wheel door)"));
        QCOMPARE(_stage->path(), QS(" car > "));
        _stage->context().selection()->remove(&car);
        _stage->notify();
        QCOMPARE(_stage->outline(), QS("body(arm(hand) leg)"));
        _stage->select({&peg, &robot});
        QCOMPARE(_stage->outline(), QString());
    }

    void nothing_to_show_empties_the_tree_once()
    {
        MO_ElementModule& robot = addRobot();
        MO_Node& peg = _stage->addPeg(QS("peg"));
        MO_ElementModule& empty = _stage->addEmptyElement(QS("empty"));
        MO_ElementModule& hollow = _stage->addElement(QS("hollow"), ModelBuilder::emptyModel());
        for (const std::vector<MO_Node*>& selected :
             std::vector<std::vector<MO_Node*>>{{&peg}, {&empty}, {&hollow}, {}}) {
            _stage->select({&robot});
            QCOMPARE(panel().model()->items().size(), std::size_t(4));
            const quint64 before = panel().model()->rowsId();
            _stage->select(selected);
            QCOMPARE(_stage->rows().size(), 0);
            QVERIFY(panel().model()->items().empty());
            const quint64 emptied = panel().model()->rowsId();
            QVERIFY(emptied > before);
            panel().onSelectionChanged();
            panel().onCurrentFrameChanged();
            panel().networkChanged();
            if (selected != std::vector<MO_Node*>{&hollow})
                QCOMPARE(panel().model()->rowsId(), emptied);
            QVERIFY(_stage->selectedRows().isEmpty());
        }
    }

    void expansion_is_kept_for_the_same_element_and_renewed_for_another()
    {
        MO_ElementModule& robot = addRobot();
        MO_ElementModule& twin = _stage->addElement(QS("twin"));
        QCOMPARE(_stage->expandedRows(), names("body arm"));
        _stage->tree().collapse(_stage->row(QS("arm")));
        _stage->select({&robot});
        _stage->context().changeManager()->emitNodeChanged(&robot);
        _stage->context().changeManager()->emitNetworkChanged(&robot);
        _stage->goToFrame(7);
        QCOMPARE(_stage->expandedRows(), names("body"));
        _stage->select({&twin});
        QCOMPARE(_stage->expandedRows(), names("body arm"));
        _stage->tree().collapseAll();
        _stage->select({&robot});
        QCOMPARE(_stage->expandedRows(), names("body arm"));
    }

    void a_model_shared_by_two_elements_keeps_its_rows_and_expands_all()
    {
        const CEL_SharedPtr<TD_CelVq3d> shared = robotModel();
        addSelected(shared);
        MO_ElementModule& twin = _stage->addElement(QS("twin"), shared);
        const quint64 before = panel().model()->rowsId();
        _stage->tree().collapseAll();
        _stage->select({&twin});
        QCOMPARE(panel().model()->rowsId(), before);
        QCOMPARE(_stage->expandedRows(), names("body arm"));
    }

    void another_frame_shows_the_drawing_there()
    {
        MO_ElementModule& element = _stage->addElement(QS("robot"), robotModel(), 1, 5);
        element.exposeModel(6, 9, fan(names("wheel door")));
        _stage->panel();
        _stage->select({&element});
        _stage->tree().collapseAll();
        const quint64 before = panel().model()->rowsId();
        _stage->goToFrame(5);
        QCOMPARE(panel().model()->rowsId(), before);
        QVERIFY(_stage->expandedRows().isEmpty());
        _stage->goToFrame(6);
        QCOMPARE(_stage->outline(), QS("top(wheel door)"));
        QCOMPARE(_stage->expandedRows(), names("top"));
        _stage->goToFrame(10);
        QCOMPARE(_stage->outline(), QString());
        QCOMPARE(_stage->path(), QS(" robot > "));
        _stage->goToFrame(1);
        QCOMPARE(_stage->outline(), QS("body(arm(hand) leg)"));
        QCOMPARE(_stage->expandedRows(), names("body arm"));
    }

    void a_new_drawing_at_the_frame_is_shown_when_told()
    {
        MO_ElementModule& element = addRobot();
        element.exposeModel(1, 1, fan(names("wheel")));
        _stage->notify();
        QCOMPARE(_stage->outline(), QS("top(wheel)"));
    }

    void moved_subnodes_show_the_hierarchy_of_the_moved_copy()
    {
        MO_ElementModule& element = addRobot();
        _stage->subSelect(element, {QS("hand")});
        const quint64 before = panel().model()->rowsId();
        _stage->setRecord(element, QS("arm"), AT_ModelNodeData());
        QCOMPARE(panel().model()->rowsId(), before);
        QVERIFY(panel().model()->showsRootNode(element.modelAt(1)->rootNodePtr()));
        _stage->setRecord(element, QS("arm"), moved());
        const quint64 rebuilt = panel().model()->rowsId();
        QVERIFY(rebuilt > before);
        QVERIFY(!panel().model()->showsRootNode(element.modelAt(1)->rootNodePtr()));
        QCOMPARE(_stage->outline(), QS("body(arm(hand) leg)"));
        QCOMPARE(_stage->selectedRows(), names("hand"));
        QCOMPARE(_stage->subSelected(), names("hand"));
        panel().onSelectionChanged();
        _stage->goToFrame(3);
        _stage->select({&element});
        QCOMPARE(panel().model()->rowsId(), rebuilt);
        // Back as modelled.
        _stage->setRecord(element, QS("arm"), AT_ModelNodeData());
        QVERIFY(panel().model()->showsRootNode(element.modelAt(1)->rootNodePtr()));
    }

    void a_reset_forgets_the_rows_and_the_next_update_brings_them_back_expanded()
    {
        MO_ElementModule& element = addRobot();
        _stage->subSelect(element, {QS("leg")});
        _stage->tree().collapseAll();
        panel().reset();
        QVERIFY(panel().model()->isEmpty());
        QCOMPARE(_stage->subSelected(), names("leg"));
        panel().updateModel();
        QCOMPARE(_stage->expandedRows(), names("body arm"));
        QCOMPARE(_stage->selectedRows(), names("leg"));
    }

    void a_null_scene_counts_as_any_other_notice()
    {
        addRobot();
        panel().onCurrentSceneChanged(nullptr);
        panel().nodesChanged({});
        QCOMPARE(_stage->outline(), QS("body(arm(hand) leg)"));
    }
};

QTEST_MAIN(tst_SGV_Graph3DViewContent)
#include "tst_SGV_Graph3DViewContent.moc"
