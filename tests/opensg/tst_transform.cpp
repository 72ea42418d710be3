// SPDX-License-Identifier: MIT
#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGTransform.h>

#include <QTest>

using namespace osg;

class tst_transform : public QObject
{
    Q_OBJECT

private:
    static Pnt3f moved(const Matrix& matrix, const Pnt3f& point)
    {
        Pnt3f result;
        matrix.multMatrixPnt(point, result);
        return result;
    }

private slots:
    void initTestCase() { QVERIFY(osgInit(0, nullptr)); }

    void keeps_its_matrix()
    {
        TransformPtr transform;
        const NodeRefPtr node(makeCoredNode<Transform>(&transform));
        QVERIFY(transform->getMatrix() == Matrix());
        Matrix matrix;
        matrix.setTranslate(1, 2, 3);
        transform->setMatrix(matrix);
        QVERIFY(transform->getMatrix() == matrix);
        QCOMPARE(transform->getMatrix()[3][0], 1.0f);
    }

    void a_matrix_is_the_identity_by_default()
    {
        Matrix matrix;
        for (UInt32 column = 0; column < 4; ++column) {
            for (UInt32 row = 0; row < 4; ++row)
                QCOMPARE(matrix[column][row], column == row ? 1.0f : 0.0f);
        }
        matrix[1][2] = 5;
        QVERIFY(matrix != Matrix());
        matrix.setIdentity();
        QVERIFY(matrix == Matrix());
    }

    void a_matrix_is_made_of_columns()
    {
        const Matrix matrix(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16);
        QCOMPARE(matrix[3][0], 4.0f);
        QVERIFY(matrix[0] == Vec4f(1, 5, 9, 13));

        const Real32 columns[16] = {1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15, 4, 8, 12, 16};
        Matrix other;
        other.setValue(columns);
        QVERIFY(other == matrix);
    }

    void a_matrix_moves_and_scales()
    {
        Matrix matrix;
        matrix.setScale(2, 3, 4);
        matrix.setTranslate(10, 20, 30);
        QVERIFY(moved(matrix, Pnt3f(1, 1, 1)) == Pnt3f(12, 23, 34));
        Vec3f vector;
        matrix.multMatrixVec(Vec3f(1, 1, 1), vector);
        QVERIFY(vector == Vec3f(2, 3, 4));
    }

    void a_product_does_the_right_one_first()
    {
        Matrix scale;
        scale.setScale(2, 2, 2);
        Matrix shift;
        shift.setTranslate(1, 0, 0);

        Matrix product = scale;
        product.mult(shift);
        QVERIFY(moved(product, Pnt3f(1, 1, 1)) == Pnt3f(4, 2, 2));
        product = scale;
        product.multLeft(shift);
        QVERIFY(moved(product, Pnt3f(1, 1, 1)) == Pnt3f(3, 2, 2));
        product = shift;
        product.mult(product);
        QVERIFY(moved(product, Pnt3f()) == Pnt3f(2, 0, 0));
    }

    void a_perspective_divides()
    {
        Matrix matrix;
        matrix[2][3] = 1;
        matrix[3][3] = 0;
        Pnt3f result;
        matrix.multFullMatrixPnt(Pnt3f(4, 6, 2), result);
        QVERIFY(result == Pnt3f(2, 3, 1));
        matrix.multFullMatrixPnt(Pnt3f(4, 6, 0), result);
        QVERIFY(result == Pnt3f(4, 6, 0));
    }

    void points_and_vectors_reckon()
    {
        QVERIFY(Pnt3f(3, 2, 1) - Pnt3f(1, 1, 1) == Vec3f(2, 1, 0));
        QVERIFY(Pnt3f(3, 2, 1) + Vec3f(1, 1, 1) == Pnt3f(4, 3, 2));
        QVERIFY(Pnt3f(3, 2, 1) - Vec3f(1, 1, 1) == Pnt3f(2, 1, 0));
        QVERIFY(Vec3f(1, 0, 0).cross(Vec3f(0, 1, 0)) == Vec3f(0, 0, 1));
        QVERIFY(Vec3f(1, 2, 3) + Vec3f(1, 1, 1) - Vec3f(0, 1, 2) == -Vec3f(2, 2, 2) * -1);
        QCOMPARE(Vec3f(1, 2, 3).dot(Vec3f(4, 5, 6)), 32.0f);
        Vec3f vector(0, 3, 4);
        QCOMPARE(vector.length(), 5.0f);
        vector.normalize();
        QCOMPARE(vector.length(), 1.0f);
        Vec3f none;
        none.normalize();
        QVERIFY(none == Vec3f(0, 0, 0));
    }
};

QTEST_APPLESS_MAIN(tst_transform)
#include "tst_transform.moc"
