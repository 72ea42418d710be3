// SPDX-License-Identifier: MIT
#include <OpenSG/OSGGroup.h>

#include <QTest>

/// Code that names the namespace through the macros only.
OSG_BEGIN_NAMESPACE
struct Inside
{
    NodePtr node;
};
OSG_END_NAMESPACE

OSG_USING_NAMESPACE

class tst_config : public QObject
{
    Q_OBJECT

private slots:
    void the_macros_name_the_namespace()
    {
        const OSG::Inside inside;
        const osg::Inside same = inside;
        const Inside used = same;
        QVERIFY(used.node == OSG::NullFC);
    }

    void the_scalars_have_their_sizes()
    {
        static_assert(sizeof(UInt32) == 4 && sizeof(Int32) == 4 && sizeof(Real32) == 4);
        static_assert(sizeof(Char8) == 1 && sizeof(BitVector) == 8);
        static_assert(std::is_same_v<Char8, char> && std::is_unsigned_v<UInt32>);
    }
};

QTEST_APPLESS_MAIN(tst_config)
#include "tst_config.moc"
