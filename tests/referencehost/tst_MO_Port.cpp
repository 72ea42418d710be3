// SPDX-License-Identifier: MIT
#include "ChangeLog.h"
#include "PortTest.h"

#include <QRandomGenerator>

class tst_MO_Port : public PortTest
{
    Q_OBJECT

private slots:
    void init() { openScene(); }
    void cleanup() { closeScene(); }

    void belongs_to_its_node_by_direction_and_index()
    {
        MO_PegModule peg{QString()};
        const int inputs = peg.nInPorts(), outputs = peg.nOutPorts();
        MO_Port* input = peg.addPort(MO_Port::eInput);
        MO_Port* output = peg.addPort(MO_Port::eOutput);
        MO_Port* second = peg.addPort(MO_Port::eInput);
        QCOMPARE(peg.nInPorts(), inputs + 2);
        QCOMPARE(peg.nOutPorts(), outputs + 1);
        QCOMPARE(peg.inPort(inputs), input);
        QCOMPARE(peg.inPort(inputs + 1), second);
        QCOMPARE(peg.outPort(outputs), output);
        QVERIFY(!peg.inPort(inputs + 2) && !peg.inPort(-1));
        QVERIFY(!peg.outPort(outputs + 1) && !peg.outPort(-1));
        QCOMPARE(input->node(), static_cast<MO_Node*>(&peg));
        QCOMPARE(input->direction(), MO_Port::eInput);
        QCOMPARE(output->direction(), MO_Port::eOutput);
        QVERIFY(!input->srcPort() && output->dstPorts().empty());
    }

    void feeds_any_number_of_inputs_in_the_order_of_linking()
    {
        const MO_Node *source = element("s"), *a = receiver("a"), *b = receiver("b");
        QVERIFY(feed(source, b));
        QVERIFY(feed(source, a));
        QCOMPARE(out(source)->dstPorts(), (Ports{in(b), in(a)}));
        QCOMPARE(out(source)->realDstPorts(), (Ports{in(b), in(a)}));
        QCOMPARE(in(a)->srcPort(), out(source));
        QCOMPARE(in(b)->srcPort(), out(source));
    }

    void an_input_linked_again_leaves_what_fed_it()
    {
        const MO_Node *first = element("1"), *second = element("2"), *a = receiver("a"),
                      *b = receiver("b");
        feed(first, a);
        feed(first, b);
        QVERIFY(feed(second, a));
        QCOMPARE(in(a)->srcPort(), out(second));
        QCOMPARE(out(first)->dstPorts(), Ports{in(b)});
        QVERIFY(feed(first, a));
        QCOMPARE(out(first)->dstPorts(), (Ports{in(b), in(a)}));
        QVERIFY(out(second)->dstPorts().empty());
    }

    void unlinks_with_null()
    {
        const MO_Node *source = element("s"), *a = receiver("a"), *b = receiver("b");
        feed(source, a);
        feed(source, b);
        QVERIFY(MO_Port::link(nullptr, in(a)));
        QVERIFY(!in(a)->srcPort());
        QCOMPARE(out(source)->dstPorts(), Ports{in(b)});
        QVERIFY(!MO_Port::link(nullptr, in(a)));
    }

    void refuses_what_does_not_fit_or_is_so_already()
    {
        const MO_Node *source = element("s"), *other = element("o"), *a = receiver("a");
        feed(source, a);
        _changes.notify();
        const ChangeLog log(_changes);
        QVERIFY(!feed(source, a));
        QVERIFY(!MO_Port::link(in(other), in(a)));
        QVERIFY(!MO_Port::link(out(other), out(a)));
        QVERIFY(!MO_Port::link(in(a), out(other)));
        QVERIFY(!MO_Port::link(nullptr, out(source)));
        QVERIFY(!MO_Port::link(out(source), nullptr));
        QVERIFY(!MO_Port::link(nullptr, nullptr));
        _changes.notify();
        QVERIFY(log.told().isEmpty());
        QCOMPARE(in(a)->srcPort(), out(source));
        QCOMPARE(out(source)->dstPorts(), Ports{in(a)});
        QVERIFY(out(a)->dstPorts().empty() && out(other)->dstPorts().empty());
    }

    void notes_a_network_change_for_each_node_that_is_concerned()
    {
        const MO_Node *first = element("first"), *second = element("second"), *a = receiver("a");
        _changes.notify();
        ChangeLog log(_changes);
        feed(first, a);
        QVERIFY(log.told().isEmpty());
        _changes.notify();
        QCOMPARE(log.take(), QStringList{"network a first"});
        feed(second, a);
        _changes.notify();
        QCOMPARE(log.take(), QStringList{"network a first second"});
        MO_Port::link(nullptr, in(a));
        _changes.notify();
        QCOMPARE(log.take(), QStringList{"network a second"});
    }

    void a_node_out_of_the_scene_notes_nothing()
    {
        const MO_Node* inside = element("inside");
        const MO_KinematicOutputModule outside{QStringLiteral("outside")};
        _changes.notify();
        ChangeLog log(_changes);
        QVERIFY(feed(inside, &outside));
        _changes.notify();
        QCOMPARE(log.take(), QStringList{"network inside"});
    }

    void a_port_that_dies_is_unlinked_on_both_sides()
    {
        MO_PegModule node{QString()};
        auto output = std::make_unique<MO_Port>(&node, MO_Port::eOutput);
        auto first = std::make_unique<MO_Port>(&node, MO_Port::eInput);
        const MO_Port second(&node, MO_Port::eInput);
        MO_Port::link(output.get(), first.get());
        MO_Port::link(output.get(), const_cast<MO_Port*>(&second));
        first.reset();
        QCOMPARE(output->dstPorts().size(), 1u);
        output.reset();
        QVERIFY(!second.srcPort());
    }

    void nodes_may_die_in_any_order()
    {
        QRandomGenerator random(5);
        for (int round = 0; round < 200; ++round) {
            std::vector<std::unique_ptr<MO_Node>> nodes;
            for (int i = 0; i < 6; ++i)
                nodes.push_back(std::make_unique<MO_PassThroughModule>(QString::number(i)));
            for (const auto& node : nodes)
                feed(nodes[random.bounded(6U)].get(), node.get());
            while (!nodes.empty()) {
                nodes.erase(nodes.begin() + random.bounded(int(nodes.size())));
                std::size_t fed = 0, feeding = 0;
                for (const auto& node : nodes) {
                    fed += in(node.get())->srcPort() ? 1 : 0;
                    feeding += out(node.get())->dstPorts().size();
                }
                QCOMPARE(fed, feeding);
            }
        }
    }
};

QTEST_GUILESS_MAIN(tst_MO_Port)
#include "tst_MO_Port.moc"
