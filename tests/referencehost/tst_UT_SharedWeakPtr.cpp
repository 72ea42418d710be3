// SPDX-License-Identifier: MIT
#include "host/scene/MO_DisplayModule.h"
#include "host/scene/MO_PegModule.h"
#include "host/scene/TUNodeSet.h"

#include <QRegularExpression>
#include <QTest>

using WeakNode = UT_SharedWeakPtr<MO_Node>;

class tst_UT_SharedWeakPtr : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(".?")); }

    void is_null_when_never_set_or_made_from_null()
    {
        QVERIFY(WeakNode().isNull());
        QVERIFY(WeakNode(nullptr).isNull());
        QVERIFY(!WeakNode(nullptr));
        QVERIFY(!WeakNode(nullptr).get());
    }

    void reaches_the_object_while_it_lives()
    {
        MO_PegModule peg(QStringLiteral("Peg"));
        const WeakNode weak(&peg);
        QCOMPARE(weak.get(), &peg);
        QVERIFY(weak);
        QCOMPARE(weak->instanceName(), QStringLiteral("Peg"));
    }

    void reads_as_null_once_the_object_is_gone()
    {
        auto peg = std::make_unique<MO_PegModule>(QString());
        const WeakNode weak(peg.get());
        const WeakNode copy = weak;
        peg.reset();
        QVERIFY(weak.isNull());
        QVERIFY(!copy.get());
    }

    void can_be_reset_without_touching_the_object()
    {
        MO_PegModule peg{QString()};
        WeakNode weak(&peg);
        const WeakNode other(&peg);
        weak.reset();
        QVERIFY(weak.isNull());
        QCOMPARE(other.get(), &peg);
    }

    void equals_references_to_the_same_object_of_any_type()
    {
        MO_PegModule a{QString()}, b{QString()};
        QVERIFY(WeakNode(&a) == WeakNode(&a));
        QVERIFY(WeakNode(&a) == UT_SharedWeakPtr<MO_PegModule>(&a));
        QVERIFY(WeakNode(&a) != WeakNode(&b));
        QVERIFY(WeakNode(&a) != WeakNode());
    }

    void keeps_its_identity_in_sets_after_the_object_is_gone()
    {
        auto a = std::make_unique<MO_PegModule>(QString());
        auto b = std::make_unique<MO_DisplayModule>(QString());
        const WeakNode weakA(a.get()), weakB(b.get());
        TUNodeSet set{weakA, weakB, WeakNode(a.get())};
        QCOMPARE(set.size(), 2u);
        a.reset();
        b.reset();
        QVERIFY(weakA != weakB);
        QVERIFY(set.contains(weakA));
        set.erase(weakB);
        QVERIFY(set.contains(weakA));
        QCOMPARE(set.size(), 1u);
    }

    void does_not_mistake_a_new_object_at_the_old_address()
    {
        alignas(MO_PegModule) std::byte place[sizeof(MO_PegModule)];
        auto* first = new (place) MO_PegModule{QString()};
        const WeakNode weak(first);
        first->~MO_PegModule();
        auto* second = new (place) MO_PegModule{QString()};
        QVERIFY(weak.isNull());
        QVERIFY(weak != WeakNode(second));
        second->~MO_PegModule();
    }
};

QTEST_GUILESS_MAIN(tst_UT_SharedWeakPtr)
#include "tst_UT_SharedWeakPtr.moc"
