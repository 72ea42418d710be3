// SPDX-License-Identifier: MIT

#include "tests/graphview/PanelTest.h"

namespace {

using namespace ModelBuilder;

const QString leg = QStringLiteral("leg");

} // namespace

/// What a marquee selects.
class tst_GV_GraphXViewCtrlMarquee : public PanelTest
{
    Q_OBJECT

private:
    /// A marquee of the whole of a subnode's box, from outside of everything.
    void dragOver(const QString& name, Qt::KeyboardModifier held = Qt::NoModifier)
    {
        const QPoint corner = this->corner(_stage->node(name));
        _mouse->drag(corner + QPoint(200, 4), corner + QPoint(130, 8), held);
    }

private slots:
    void a_box_that_only_touches_the_marquee_is_hit_data()
    {
        QTest::addColumn<QPoint>("from");
        QTest::addColumn<QPoint>("to");
        QTest::addColumn<QString>("expected");
        const QString hit = QStringLiteral("a(leg)");
        const QString missed = QStringLiteral("a()");
        // The box of the leg goes from (48, 136) to (184, 160).
        QTest::newRow("on the right") << QPoint(300, 150) << QPoint(184, 140) << hit;
        QTest::newRow("right of it") << QPoint(300, 150) << QPoint(185, 140) << missed;
        QTest::newRow("on the left") << QPoint(10, 150) << QPoint(48, 140) << hit;
        QTest::newRow("left of it") << QPoint(10, 150) << QPoint(47, 140) << missed;
        QTest::newRow("on the bottom") << QPoint(100, 300) << QPoint(60, 160) << hit;
        QTest::newRow("below it") << QPoint(100, 300) << QPoint(60, 161) << missed;
        QTest::newRow("on the top") << QPoint(170, 130) << QPoint(180, 136) << hit;
        QTest::newRow("above it") << QPoint(170, 130) << QPoint(180, 135) << missed;
        QTest::newRow("on a corner") << QPoint(300, 300) << QPoint(184, 160) << hit;
        // The header of b goes from (160, 0) to (296, 24).
        QTest::newRow("header, right") << QPoint(330, 10) << QPoint(296, 12) << "b()";
        QTest::newRow("right of header") << QPoint(330, 10) << QPoint(297, 12) << missed;
        QTest::newRow("header, left") << QPoint(150, 10) << QPoint(160, 12) << "b()";
        QTest::newRow("left of header") << QPoint(150, 10) << QPoint(159, 12) << missed;
        QTest::newRow("header, bottom") << QPoint(250, 200) << QPoint(220, 24) << "b()";
        QTest::newRow("below header") << QPoint(250, 200) << QPoint(220, 25) << missed;
        QTest::newRow("header, top") << QPoint(400, -2) << QPoint(200, 0) << "b()";
        QTest::newRow("above header") << QPoint(400, -2) << QPoint(200, -1) << missed;
    }
    void a_box_that_only_touches_the_marquee_is_hit()
    {
        QFETCH(QPoint, from);
        QFETCH(QPoint, to);
        QFETCH(QString, expected);
        QVERIFY(showRobots());
        _mouse->drag(from, to);
        QCOMPARE(selected(), expected);
        // The other way round it is the same.
        _stage->select({node(QStringLiteral("a"))});
        _mouse->press(from, Qt::ShiftModifier);
        _mouse->move(to);
        _mouse->move(from);
        _mouse->move(to);
        _mouse->release(emptySpace);
        QCOMPARE(selected(), expected);
    }

    void a_marquee_replaces_what_is_selected_and_tells_so_once()
    {
        QVERIFY(showRobots());
        _stage->select({node(QStringLiteral("peg")), node(QStringLiteral("a"))});
        _stage->subSelect(element(QStringLiteral("a")), {leg});
        takeNotices();
        QCOMPARE(_mouse->press({260, 120}, Qt::ShiftModifier), View::eMouseMarquee);
        _mouse->move({180, 40});
        QCOMPARE(takeNotices(), std::pair(0, 0));
        // What counts is what is held when the button is let go.
        QVERIFY(repaints([&] { _mouse->release({180, 40}); }) > 0);
        QCOMPARE(selected(), QStringLiteral("a(arm hand)"));
        QCOMPARE(takeNotices(), std::pair(1, 1));
        QCOMPARE(_stage->selectedNames(),
                 QStringList({QStringLiteral("a"), QStringLiteral("arm"), QStringLiteral("hand")}));
    }

    void the_tree_of_a_later_element_stands_below_its_header()
    {
        QVERIFY(showRobots());
        _stage->select({node(QStringLiteral("b"))});
        QCOMPARE(corner(_stage->node(leg)), QPoint(208, 136));
        _mouse->drag({20, 170}, {200, 58});
        QCOMPARE(selected(), QStringLiteral("b(body)"));
        _mouse->drag({400, 170}, {340, 150});
        QCOMPARE(selected(), QStringLiteral("b(leg)"));
    }

    void what_is_folded_away_is_not_hit()
    {
        QVERIFY(showRobots());
        _mouse->click(control(QStringLiteral("arm")));
        _mouse->drag({500, 300}, {0, 36});
        QCOMPARE(selected(), QStringLiteral("a(body arm leg)"));
        _mouse->click(control(QStringLiteral("arm")));
        _mouse->drag({500, 300}, {0, 36});
        QCOMPARE(selected(), QStringLiteral("a(body arm hand leg)"));
    }

    void the_header_of_the_open_element_alone_keeps_it_without_a_sub_selection()
    {
        QVERIFY(showRobots());
        QCOMPARE(_mouse->press({150, 5}, Qt::ShiftModifier), View::eMouseMarquee);
        _mouse->move({100, 20});
        _mouse->release({100, 20});
        QCOMPARE(selected(), QStringLiteral("a()"));
        QCOMPARE(takeNotices(), std::pair(1, 1));
    }

    void headers_of_other_elements_are_selected_beside_the_open_one()
    {
        QVERIFY(showRobots());
        _mouse->drag({155, 5}, {100, 20});
        QCOMPARE(selected(), QStringLiteral("a()"));
        _mouse->drag({400, 5}, {100, 20});
        QCOMPARE(selected(), QStringLiteral("a() b()"));
        QCOMPARE(_stage->headers(), QStringList({QStringLiteral("[a]"), QStringLiteral("b")}));
        // Subnodes keep the open element as its header does.
        _mouse->drag({400, 5}, {155, 50});
        QCOMPARE(selected(), QStringLiteral("a(body) b()"));
    }

    void only_headers_of_other_elements_deselect_the_open_one()
    {
        QVERIFY(showRobots());
        _stage->addElement(QStringLiteral("c"));
        _mouse->drag({600, 5}, {270, 20});
        QStringList names;
        for (const MO_Node* each : _stage->context().selection()->nodes())
            names.append(each->instanceName());
        names.sort();
        QCOMPARE(names, QStringList({QStringLiteral("b"), QStringLiteral("c")}));
        QCOMPARE(_stage->selectedNames(), names);
        QVERIFY(_stage->graph().visibleGraphIx() > 0);
    }

    void a_marquee_of_nothing_only_repaints()
    {
        QVERIFY(showRobots());
        for (const Qt::KeyboardModifier held : {Qt::NoModifier, Qt::ShiftModifier}) {
            _mouse->press(emptySpace, Qt::ShiftModifier);
            _mouse->move(emptySpace - QPoint(90, 90));
            QVERIFY(repaints([&] { _mouse->release(emptySpace, held); }) > 0);
            QCOMPARE(selected(), QStringLiteral("a(leg)"));
            QCOMPARE(takeNotices(), std::pair(0, 0));
        }
    }

    void an_extending_marquee_only_adds()
    {
        QVERIFY(showRobots());
        _stage->select({node(QStringLiteral("peg")), node(QStringLiteral("a"))});
        _stage->subSelect(element(QStringLiteral("a")), {leg});
        takeNotices();
        dragOver(QStringLiteral("arm"), Qt::ShiftModifier);
        QCOMPARE(selected(), QStringLiteral("peg() a(leg arm)"));
        QCOMPARE(takeNotices(), std::pair(0, 1));
        // Neither headers nor subnodes are toggled.
        dragOver(leg, Qt::ControlModifier);
        _mouse->drag({155, 5}, {100, 20}, Qt::ShiftModifier);
        QCOMPARE(selected(), QStringLiteral("peg() a(leg arm)"));
        QCOMPARE(takeNotices(), std::pair(0, 0));
        _mouse->drag({400, 5}, {270, 20}, Qt::ShiftModifier);
        QCOMPARE(selected(), QStringLiteral("peg() a(leg arm) b()"));
        QCOMPARE(takeNotices(), std::pair(1, 0));
    }

    void locked_headers_and_plain_nodes_are_not_hit()
    {
        PR_Preference::instance()->setBoolValue(extendedKey(), true);
        MO_ElementModule& shown = _stage->addElement(
            QStringLiteral("a"), model(group("body", {key("arm", {geometry("hand")})})));
        _stage->addElement(QStringLiteral("b")).setEditable(false);
        shown.setEditable(false);
        _stage->notify();
        QVERIFY(startWith({&shown}));
        _mouse->drag({500, 500}, {0, 0});
        QCOMPARE(selected(), QStringLiteral("a(arm)"));
        _mouse->press({350, 5}, Qt::ShiftModifier);
        _mouse->move({10, 10});
        _mouse->release({10, 10});
        QCOMPARE(selected(), QStringLiteral("a(arm)"));
    }

    void without_an_open_element_headers_are_all_there_is_to_hit()
    {
        QVERIFY(showRobots());
        _stage->select({node(QStringLiteral("peg"))});
        _mouse->drag({500, 500}, {0, 30}, Qt::ShiftModifier);
        QCOMPARE(selected(), QStringLiteral("peg()"));
        _mouse->drag({500, 500}, {270, 0}, Qt::ShiftModifier);
        QCOMPARE(selected(), QStringLiteral("peg() b()"));
        _stage->select({node(QStringLiteral("peg"))});
        _mouse->drag({500, 500}, {270, 0});
        QCOMPARE(selected(), QStringLiteral("b()"));
    }

    void a_nameless_subnode_keeps_the_open_element_without_a_sub_selection()
    {
        MO_ElementModule& shown =
            _stage->addElement(QStringLiteral("a"), model(key(noName, {shapedKey("leg")})));
        QVERIFY(startWith({&shown}, {leg}));
        dragOver(QString(), Qt::ShiftModifier);
        QCOMPARE(selected(), QStringLiteral("a(leg)"));
        dragOver(QString());
        QCOMPARE(selected(), QStringLiteral("a()"));
    }

    void elements_that_are_gone_are_not_selected()
    {
        QVERIFY(showRobots());
        for (const QString& name : {QStringLiteral("a"), QStringLiteral("b")}) {
            MO_Node* doomed = node(name);
            doomed->parentGroup()->takeNode(doomed).reset();
        }
        // Nobody is told of it yet, so their boxes are still there.
        for (const Qt::KeyboardModifier held : {Qt::ShiftModifier, Qt::NoModifier}) {
            _mouse->drag({500, 500}, {0, 0}, held);
            QCOMPARE(selected(), QString());
        }
    }
};

QTEST_MAIN(tst_GV_GraphXViewCtrlMarquee)
#include "tst_GV_GraphXViewCtrlMarquee.moc"
