// SPDX-License-Identifier: MIT
#include "host/geometry/Box2.h"
#include "host/geometry/Matrix2x3.h"

#include <QRegularExpression>
#include <QTest>

using namespace Math;

class tst_Math : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(".?")); }

    void points_and_vectors_are_zero_by_default()
    {
        QVERIFY((Point2d() == Point2d{0.0, 0.0}));
        QVERIFY((Vector2d() == Vector2d{0.0, 0.0}));
    }

    void points_move_by_vectors_and_differ_by_them()
    {
        const Point2d p{1.0, 2.0};
        const Vector2d v{10.0, -4.0};
        QVERIFY((p + v == Point2d{11.0, -2.0}));
        QVERIFY((p - v == Point2d{-9.0, 6.0}));
        QVERIFY(((p + v) - p == v));
    }

    void vectors_add_subtract_and_scale()
    {
        const Vector2d a{1.0, 2.0}, b{3.0, 5.0};
        QVERIFY((a + b == Vector2d{4.0, 7.0}));
        QVERIFY((a - b == Vector2d{-2.0, -3.0}));
        QVERIFY((2.0 * a == Vector2d{2.0, 4.0}));
    }

    void rectangles_measure_themselves()
    {
        const Rect2d rect{-1.0, 2.0, 5.0, 10.0};
        QCOMPARE(rect.width(), 6.0);
        QCOMPARE(rect.height(), 8.0);
        QVERIFY((rect.center() == Point2d{2.0, 6.0}));
    }

    void rectangles_with_swapped_sides_have_negative_size()
    {
        const Rect2d rect{5.0, 10.0, -1.0, 2.0};
        QCOMPARE(rect.width(), -6.0);
        QCOMPARE(rect.height(), -8.0);
    }

    void boxes_start_empty_with_zero_coordinates()
    {
        const Box2d box;
        QVERIFY(box.isEmpty());
        QVERIFY(box.GetRect() == Rect2d());
        QVERIFY(box != Box2d(0.0, 0.0, 0.0, 0.0));
    }

    void boxes_take_the_first_point_exactly()
    {
        // The zeros of an empty box must not be taken for a corner.
        Box2di box;
        box.AddClosed(5, -7);
        QVERIFY(!box.isEmpty());
        QVERIFY(box == Box2di(5, -7, 5, -7));
    }

    void boxes_grow_in_every_direction()
    {
        Box2di box(0, 0, 1, 1);
        box.AddClosed(-3, 4);
        QVERIFY(box == Box2di(-3, 0, 1, 4));
        box.AddClosed(0, 0);
        QVERIFY(box == Box2di(-3, 0, 1, 4));
    }

    void uniting_with_an_empty_box_changes_nothing()
    {
        Box2d box(1.0, 2.0, 3.0, 4.0);
        box.unite(Box2d());
        QVERIFY(box == Box2d(1.0, 2.0, 3.0, 4.0));
        Box2d empty;
        empty.unite(box);
        QVERIFY(empty == box);
        empty.unite(Box2d(0.0, 5.0, 1.0, 6.0));
        QVERIFY(empty == Box2d(0.0, 2.0, 3.0, 6.0));
    }

    void boxes_of_integers_become_rectangles_of_doubles()
    {
        QVERIFY((Box2di(1, 2, 3, 4).GetRect() == Rect2d{1.0, 2.0, 3.0, 4.0}));
    }

    void matrices_are_the_identity_by_default()
    {
        QVERIFY((Matrix2x3() * Point2d{3.0, -4.0} == Point2d{3.0, -4.0}));
    }

    void matrices_translate_and_scale_points()
    {
        QVERIFY((Matrix2x3::translation({10.0, 20.0}) * Point2d{1.0, 2.0} == Point2d{11.0, 22.0}));
        QVERIFY((Matrix2x3::scale(3.0) * Point2d{1.0, 2.0} == Point2d{3.0, 6.0}));
    }

    void products_of_matrices_apply_the_right_one_first()
    {
        const Matrix2x3 move = Matrix2x3::translation({1.0, 0.0});
        const Matrix2x3 turn{0.0, 1.0, -1.0, 0.0, 5.0, 7.0};
        const Point2d p{2.0, 3.0};
        QVERIFY((turn * move) * p == turn * (move * p));
        QVERIFY((move * turn) * p == move * (turn * p));
        QVERIFY(turn * move != move * turn);
    }
};

QTEST_GUILESS_MAIN(tst_Math)
#include "tst_Math.moc"
