// SPDX-License-Identifier: MIT

#include "host/models/AT_ModelData.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/MO_KinematicOutputModule.h"
#include "host/scene/MO_PassThroughModule.h"
#include "host/scene/MO_TypeKeys.h"
#include "host/scene/TUScene.h"
#include "subnodetree/SGV_GraphItem.h"
#include "tests/subnodetree/TreeTest.h"

#include <optional>

/// What rows tell beside their names: which nodes read the subnode, and what of it is off.
class tst_SGV_Graph3DViewAnnotations : public TreeTest
{
    Q_OBJECT

private:
    QString text(const char* name) { return _stage->row(QS(name)).data().toString(); }
    QString tip(const char* name) { return _stage->row(QS(name)).data(Qt::ToolTipRole).toString(); }
    /// The state of the first item with the name; nothing when there is none.
    std::optional<quint32> state(const char* name)
    {
        for (const SGV_GraphItem* item : _stage->panel().model()->items()) {
            if (item->name() == QS(name))
                return item->visibilityState();
        }
        return std::nullopt;
    }
    template <class Node>
    Node& insert(std::unique_ptr<Node> node)
    {
        Node& inserted = *node;
        _stage->scene().rootGroup()->insertNode(std::move(node));
        return inserted;
    }
    static AT_ModelNodeData record(bool visible, bool localVisible)
    {
        AT_ModelNodeData data;
        data.visible = visible;
        data.localVisible = localVisible;
        return data;
    }

private slots:
    void rows_that_nothing_reads_have_no_mark()
    {
        addRobot();
        QCOMPARE(_stage->outline(), QS("body(arm(hand) leg)"));
        QVERIFY(!_stage->row(QS("leg")).data(Qt::ToolTipRole).isValid());
    }

    void outputs_are_listed_in_the_order_of_their_links()
    {
        MO_ElementModule& element = addRobot();
        _stage->addOutput(QS("B"), QS("leg"), element);
        _stage->addOutput(QS("A"), QS("leg"), element);
        _stage->addOutput(QS("C"), QS("hand"), element);
        QCOMPARE(_stage->outline(), QS("body(arm(hand*) leg*)"));
        QCOMPARE(tip("leg"), QS("Connected to B, A"));
        QCOMPARE(tip("hand"), QS("Connected to C"));
        QVERIFY(!_stage->row(QS("arm")).data(Qt::ToolTipRole).isValid());
        QCOMPARE(_stage->row(QS("leg")).data(SGV_GraphModel::SubnodeKeyRole).toString(), QS("leg"));
    }

    void ports_of_the_element_are_read_in_order()
    {
        MO_ElementModule& element = addRobot();
        element.addPort(MO_Port::eOutput);
        element.addPort(MO_Port::eOutput);
        _stage->addOutput(QS("last"), QS("leg"), element, 2);
        _stage->addOutput(QS("first"), QS("leg"), element, 0);
        _stage->addOutput(QS("middle"), QS("leg"), element, 1);
        _stage->addOutput(QS("second"), QS("leg"), element, 0);
        QCOMPARE(tip("leg"), QS("Connected to first, second, middle, last"));
    }

    void a_node_that_is_reached_twice_is_listed_twice()
    {
        MO_ElementModule& element = addRobot();
        element.addPort(MO_Port::eOutput);
        MO_KinematicOutputModule& output = _stage->addOutput(QS("out"), QS("leg"), element);
        QVERIFY(MO_Port::link(element.outPort(1), output.addPort(MO_Port::eInput)));
        _stage->notify();
        QCOMPARE(tip("leg"), QS("Connected to out, out"));
    }

    void nodes_that_only_pass_on_are_looked_through()
    {
        MO_ElementModule& element = addRobot();
        auto& first = insert(std::make_unique<MO_PassThroughModule>(QS("first")));
        auto& second = insert(std::make_unique<MO_PassThroughModule>(QS("second")));
        QVERIFY(MO_Port::link(element.outPort(0), first.inPort(0)));
        QVERIFY(MO_Port::link(first.outPort(0), second.inPort(0)));
        MO_KinematicOutputModule& far = _stage->addOutput(QS("far"), QS("hand"), element);
        QVERIFY(MO_Port::link(second.outPort(0), far.inPort(0)));
        _stage->addOutput(QS("near"), QS("hand"), element);
        QCOMPARE(tip("hand"), QS("Connected to far, near"));
        QVERIFY(MO_Port::link(nullptr, second.inPort(0)));
        _stage->notify();
        QCOMPARE(tip("hand"), QS("Connected to near"));
    }

    void outputs_without_a_subnode_contribute_nothing()
    {
        MO_ElementModule& element = addRobot();
        _stage->addOutput(QS("idle"), QString(), element);
        _stage->addOutput(QS("lost"), QS("no such subnode"), element);
        QCOMPARE(_stage->outline(), QS("body(arm(hand) leg)"));
        // Names are compared as they are.
        _stage->addOutput(QS("loud"), QS("LEG"), element);
        QCOMPARE(_stage->outline(), QS("body(arm(hand) leg)"));
    }

    void an_empty_name_marks_no_nameless_row()
    {
        using namespace ModelBuilder;
        MO_ElementModule& element = addSelected(model(key("top", {shapedKey("")})));
        _stage->addOutput(QS("idle"), QString(), element);
        QCOMPARE(_stage->rows().at(1).data().toString(), QString());
    }

    void other_nodes_downstream_do_not_count()
    {
        MO_ElementModule& element = addRobot();
        MO_Node& peg = _stage->addPeg(QS("peg"));
        if (MO_Port* input = peg.inPort(0))
            QVERIFY(MO_Port::link(element.outPort(0), input));
        MO_Node& alike =
            insert(outputLookalike(QS("SOMETHING_ELSE"), QS("Sub_Node_Name"), QS("hand")));
        QVERIFY(MO_Port::link(element.outPort(0), alike.inPort(0)));
        _stage->notify();
        QCOMPARE(_stage->outline(), QS("body(arm(hand) leg)"));
    }

    void the_first_text_attribute_of_the_name_counts()
    {
        MO_ElementModule& element = addRobot();
        MO_Node& output = insert(
            outputLookalike(STRING_KEY_3D_KINEMATIC_OUTPUT, QS("Sub_Node_Name"), QS("hand")));
        QVERIFY(MO_Port::link(element.outPort(0), output.inPort(0)));
        MO_Node& idle =
            insert(outputLookalike(STRING_KEY_3D_KINEMATIC_OUTPUT, QS("Sub_Node_Name"), QString()));
        QVERIFY(MO_Port::link(element.outPort(0), idle.inPort(0)));
        MO_Node& strange =
            insert(outputLookalike(STRING_KEY_3D_KINEMATIC_OUTPUT, QS("sub_node_name"), QS("leg")));
        QVERIFY(MO_Port::link(element.outPort(0), strange.inPort(0)));
        _stage->notify();
        QCOMPARE(_stage->outline(), QS("body(arm(hand*) leg)"));
        QCOMPARE(tip("hand"), QS("Connected to lookalike"));
    }

    void an_output_without_a_name_gives_way_in_the_list()
    {
        MO_ElementModule& element = addRobot();
        _stage->addOutput(QString(), QS("leg"), element);
        QCOMPARE(text("leg"), QS("leg"));
        _stage->addOutput(QS("out"), QS("leg"), element);
        QCOMPARE(tip("leg"), QS("Connected to out"));
        _stage->addOutput(QString(), QS("leg"), element);
        QCOMPARE(tip("leg"), QS("Connected to out, "));
    }

    void every_row_of_the_name_is_marked()
    {
        MO_ElementModule& element = addSelected(fan(names("twin other twin")));
        _stage->addOutput(QS("out"), QS("twin"), element);
        QCOMPARE(_stage->outline(), QS("top(twin* other twin*)"));
    }

    void marks_follow_the_network()
    {
        MO_ElementModule& element = addRobot();
        const quint64 before = _stage->panel().model()->rowsId();
        MO_KinematicOutputModule& output = _stage->addOutput(QS("out"), QS("leg"), element);
        QCOMPARE(text("leg"), QS("leg*"));
        QVERIFY(MO_Port::link(nullptr, output.inPort(0)));
        QCOMPARE(text("leg"), QS("leg*"));
        _stage->notify();
        QCOMPARE(text("leg"), QS("leg"));
        QVERIFY(!_stage->row(QS("leg")).data(Qt::ToolTipRole).isValid());
        QVERIFY(MO_Port::link(element.outPort(0), output.inPort(0)));
        _stage->notify();
        QCOMPARE(text("leg"), QS("leg*"));
        QVERIFY(setSubnodeName(output, QS("arm")));
        _stage->context().changeManager()->emitNodeChanged(&output);
        _stage->notify();
        QCOMPARE(_stage->outline(), QS("body(arm*(hand) leg)"));
        _stage->remove(output);
        QCOMPARE(_stage->outline(), QS("body(arm(hand) leg)"));
        QCOMPARE(_stage->panel().model()->rowsId(), before);
    }

    void marks_follow_the_shown_element()
    {
        MO_ElementModule& element = addRobot();
        MO_ElementModule& other = _stage->addElement(QS("other"));
        _stage->addOutput(QS("mine"), QS("leg"), element);
        _stage->addOutput(QS("others"), QS("hand"), other);
        QCOMPARE(_stage->outline(), QS("body(arm(hand) leg*)"));
        _stage->select({&other});
        QCOMPARE(_stage->outline(), QS("body(arm(hand*) leg)"));
        QCOMPARE(tip("hand"), QS("Connected to others"));
        _stage->select({});
        _stage->select({&element});
        QCOMPARE(_stage->outline(), QS("body(arm(hand) leg*)"));
    }

    void marks_are_no_part_of_what_a_filter_finds()
    {
        MO_ElementModule& element = addRobot();
        _stage->addOutput(QS("out"), QS("leg"), element);
        _stage->filter(QS("*"));
        QVERIFY(_stage->rows().isEmpty());
        _stage->filter(QS("leg"));
        QCOMPARE(_stage->outline(), QS("body(leg*)"));
    }

    void states_tell_what_is_off()
    {
        MO_ElementModule& element = addRobot();
        QCOMPARE(state("body"), quint32(0));
        _stage->setRecord(element, QS("body"), record(true, true));
        _stage->setRecord(element, QS("arm"), record(false, true));
        _stage->setRecord(element, QS("hand"), record(true, false));
        QCOMPARE(state("body"), quint32(0));
        QCOMPARE(state("arm"), quint32(1));
        QCOMPARE(state("hand"), quint32(2));
        QCOMPARE(state("leg"), quint32(0));
        _stage->setRecord(element, QS("leg"), record(false, false));
        QCOMPARE(state("leg"), quint32(3));
        QVERIFY(_stage->row(QS("leg")).data(Qt::ForegroundRole) !=
                _stage->row(QS("body")).data(Qt::ForegroundRole));
        _stage->setRecord(element, QS("leg"), record(true, true));
        QCOMPARE(state("leg"), quint32(0));
    }

    void what_is_below_a_disabled_row_knows_it()
    {
        MO_ElementModule& element = addRobot();
        _stage->setRecord(element, QS("arm"), record(false, true));
        for (const SGV_GraphItem* item : _stage->panel().model()->items())
            QCOMPARE(item->isAncestorDisabled(), item->name() == QS("hand"));
        _stage->setRecord(element, QS("arm"), record(true, false));
        for (const SGV_GraphItem* item : _stage->panel().model()->items())
            QVERIFY(!item->isAncestorDisabled());
    }

    void a_record_that_goes_leaves_the_row_on()
    {
        MO_ElementModule& element = addRobot();
        _stage->setRecord(element, QS("arm"), record(false, false));
        _stage->setRecord(element, QS("leg"), record(false, true));
        auto data = std::make_unique<AT_ModelData>(*element.seqMeta(1));
        data->removeNodeData(AT_ModelNodeKey(QS("arm")));
        element.setSeqMeta(1, std::move(data));
        _stage->notify();
        QCOMPARE(state("arm"), quint32(0));
        QCOMPARE(state("leg"), quint32(1));
    }

    void without_settings_the_states_stay_until_rows_are_rebuilt()
    {
        MO_ElementModule& element = addRobot();
        _stage->setRecord(element, QS("leg"), record(false, true));
        element.setSeqMeta(1, nullptr);
        _stage->notify();
        QVERIFY(!element.seqMeta(1));
        QCOMPARE(state("leg"), quint32(1));
        MO_ElementModule& plain = _stage->addElement(QS("plain"));
        _stage->select({&plain});
        QCOMPARE(state("leg"), quint32(0));
    }

    void the_settings_of_the_current_frame_hold_when_told()
    {
        MO_ElementModule& element = addRobot();
        _stage->setRecord(element, QS("leg"), record(false, true), 1);
        _stage->setRecord(element, QS("leg"), record(true, false), 5);
        QCOMPARE(state("leg"), quint32(1));
        _stage->goToFrame(5);
        _stage->panel().onSelectionChanged();
        QCOMPARE(state("leg"), quint32(2));
        _stage->goToFrame(4);
        _stage->panel().onSelectionChanged();
        QCOMPARE(state("leg"), quint32(1));
    }

    void a_change_of_the_network_alone_reads_no_states()
    {
        MO_ElementModule& element = addRobot();
        auto data = std::make_unique<AT_ModelData>();
        data->setNodeData(AT_ModelNodeKey(QS("leg")), record(false, true));
        element.setSeqMeta(1, std::move(data));
        _stage->panel().networkChanged();
        QCOMPARE(state("leg"), quint32(0));
        _stage->panel().updateVisibilityData();
        QCOMPARE(state("leg"), quint32(1));
    }

    void without_a_selected_node_the_rows_keep_their_annotations()
    {
        MO_ElementModule& element = addRobot();
        _stage->addOutput(QS("out"), QS("leg"), element);
        _stage->setRecord(element, QS("leg"), record(false, true));
        // The panel has not heard of it yet.
        _stage->context().selection()->clear();
        _stage->panel().updateNetworkConnectionsData();
        _stage->panel().updateVisibilityData();
        QCOMPARE(text("leg"), QS("leg*"));
        QCOMPARE(state("leg"), quint32(1));
    }

    void annotations_change_no_selection()
    {
        MO_ElementModule& element = addRobot();
        _stage->subSelect(element, names("leg hand"));
        _stage->addOutput(QS("out"), QS("leg"), element);
        _stage->setRecord(element, QS("hand"), record(false, false));
        QCOMPARE(_stage->selectedRows(), names("hand leg"));
        QCOMPARE(_stage->subSelected(), names("leg hand"));
        QVERIFY(_stage->lastStep().isEmpty());
    }
};

QTEST_MAIN(tst_SGV_Graph3DViewAnnotations)
#include "tst_SGV_Graph3DViewAnnotations.moc"
