// SPDX-License-Identifier: MIT
#include "PortTest.h"
#include "host/selection/SL_Selection.h"
#include "referencehost/commands/DeleteNodes.h"

/// Where a value ends up that nodes pass on to each other.
class tst_MO_PortChains : public PortTest
{
    Q_OBJECT

private slots:
    void init() { openScene(); }
    void cleanup() { closeScene(); }

    void looks_through_nodes_that_only_pass_on()
    {
        const MO_Node *source = element("s"), *p = passThrough("p"), *q = passThrough("q"),
                      *a = receiver("a");
        feed(source, p);
        feed(p, q);
        QVERIFY(out(source)->realDstPorts().empty());
        feed(q, a);
        QCOMPARE(out(source)->dstPorts(), Ports{in(p)});
        QCOMPARE(out(source)->realDstPorts(), Ports{in(a)});
        QCOMPARE(out(p)->realDstPorts(), Ports{in(a)});
        QVERIFY(in(a)->realDstPorts().empty());
    }

    void does_not_look_through_nodes_that_make_something_of_it()
    {
        const MO_Node *source = element("s"), *middle = element("m"), *a = receiver("a");
        feed(source, middle);
        feed(middle, a);
        QCOMPARE(out(source)->realDstPorts(), Ports{in(middle)});
    }

    void receives_in_the_order_of_the_links_branch_by_branch()
    {
        const MO_Node *source = element("s"), *p = passThrough("p"), *q = passThrough("q");
        const MO_Node *a = receiver("a"), *b = receiver("b"), *c = receiver("c"),
                      *d = receiver("d"), *e = receiver("e");
        feed(source, a);
        feed(source, p);
        feed(source, e);
        feed(p, c);
        feed(p, q);
        feed(q, b);
        feed(q, d);
        QCOMPARE(out(source)->realDstPorts(), (Ports{in(a), in(c), in(b), in(d), in(e)}));
    }

    void counts_a_port_as_often_as_it_is_reached()
    {
        const MO_Node *source = element("s"), *p = passThrough("p"), *q = passThrough("q");
        MO_Node *join = passThrough("join"), *both = receiver("both");
        join->addPort(MO_Port::eInput);
        both->addPort(MO_Port::eInput);
        feed(source, p);
        feed(source, q);
        feed(p, join);
        MO_Port::link(out(q), in(join, 1));
        feed(join, both);
        QCOMPARE(out(source)->realDstPorts(), (Ports{in(both), in(both)}));
        MO_Port::link(out(p), in(both, 1));
        QCOMPARE(out(source)->realDstPorts(), (Ports{in(both), in(both, 1), in(both)}));
    }

    void passes_on_through_every_output_port()
    {
        const MO_Node *source = element("s"), *a = receiver("a"), *b = receiver("b");
        MO_Node* p = passThrough("p");
        p->addPort(MO_Port::eOutput);
        feed(source, p);
        MO_Port::link(out(p, 1), in(b));
        feed(p, a);
        QCOMPARE(out(source)->realDstPorts(), (Ports{in(a), in(b)}));
    }

    void a_ring_ends_where_it_began()
    {
        const MO_Node *source = element("s"), *q = passThrough("q"), *a = receiver("a");
        MO_Node* p = passThrough("p");
        p->addPort(MO_Port::eInput);
        feed(source, p);
        feed(p, q);
        MO_Port::link(out(q), in(p, 1));
        QVERIFY(out(source)->realDstPorts().empty());
        feed(q, a);
        QCOMPARE(out(source)->realDstPorts(), Ports{in(a)});
        QCOMPARE(out(p)->realDstPorts(), Ports{in(a)});
        QCOMPARE(out(q)->realDstPorts(), Ports{in(a)});
    }

    void a_node_that_feeds_itself_is_harmless()
    {
        const MO_Node *loop = passThrough("loop"), *self = element("self");
        QVERIFY(feed(loop, loop));
        QVERIFY(out(loop)->realDstPorts().empty());
        QVERIFY(feed(self, self));
        QCOMPARE(out(self)->realDstPorts(), Ports{in(self)});
    }

    void a_chain_may_be_longer_than_the_stack()
    {
        const MO_Node* source = element("s");
        const MO_Node* last = source;
        for (int i = 0; i < 20000; ++i) {
            const MO_Node* next = passThrough("p");
            feed(last, next);
            last = next;
        }
        const MO_Node* a = receiver("a");
        feed(last, a);
        QCOMPARE(out(source)->realDstPorts(), Ports{in(a)});
    }

    void links_of_nodes_out_of_the_scene_do_not_count()
    {
        const MO_Node *source = element("s"), *a = receiver("a"), *b = receiver("b");
        MO_Node* p = passThrough("p");
        feed(source, p);
        feed(source, b);
        feed(p, a);
        std::unique_ptr<MO_Node> taken = _scene->rootGroup()->takeNode(p);
        QCOMPARE(out(source)->realDstPorts(), Ports{in(b)});
        QVERIFY(out(p)->realDstPorts().empty());
        QCOMPARE(out(source)->dstPorts(), (Ports{in(p), in(b)}));
        _scene->rootGroup()->insertNode(std::move(taken));
        QCOMPARE(out(source)->realDstPorts(), (Ports{in(a), in(b)}));
    }

    void links_into_another_scene_do_not_count()
    {
        TUScene other(QStringLiteral("Other"), &_changes);
        const MO_Node* source = element("s");
        const MO_Node* far =
            other.rootGroup()->insertNode(std::make_unique<MO_KinematicOutputModule>("far"));
        QVERIFY(feed(source, far));
        QCOMPARE(out(source)->dstPorts(), Ports{in(far)});
        QVERIFY(out(source)->realDstPorts().empty());
    }

    void links_come_back_when_deleting_is_undone()
    {
        SL_Selection selection(&_changes);
        MO_Node *source = element("s"), *p = passThrough("p"), *a = receiver("a");
        feed(source, p);
        feed(p, a);
        for (const std::vector<MO_Node*>& deleted :
             {std::vector<MO_Node*>{p}, {a}, {source}, {a, p, source}}) {
            DeleteNodes command(deleted, &selection);
            QVERIFY(command.execute());
            QVERIFY(out(source)->realDstPorts().empty());
            QVERIFY(command.undo());
            QCOMPARE(out(source)->realDstPorts(), Ports{in(a)});
            QVERIFY(command.redo());
            QVERIFY(out(source)->realDstPorts().empty());
            QVERIFY(command.undo());
        }
        {
            DeleteNodes last({a}, &selection);
            QVERIFY(last.execute());
        }
        QVERIFY(out(source)->realDstPorts().empty());
        QVERIFY(out(p)->dstPorts().empty());
    }
};

QTEST_GUILESS_MAIN(tst_MO_PortChains)
#include "tst_MO_PortChains.moc"
