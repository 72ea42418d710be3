// SPDX-License-Identifier: MIT

#include "graphview/GV_UiHeaderNode.h"
#include "graphview/GV_UiNodeKey.h"
#include "graphview/GV_UiSgNode.h"
#include "host/scene/MO_ElementModule.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>
#include <unordered_set>

namespace {

GV_UiNodeKey keyOf(const QString& parentName, const QString& name)
{
    GV_UiNode parent(nullptr, parentName, QString(), true);
    const GV_UiNode node(&parent, name, QString(), true);
    return GV_UiNodeKey(&node);
}

quint64 hashOf(const GV_UiNodeKey& key)
{
    return GV_UiNodeKey::GV_UiNodeKeyHasher()(key);
}

/// The rule for one name, byte by byte and without short cuts.
quint64 plainHash(const QString& name)
{
    quint64 hash = 0xcbf29ce484222325;
    for (const char byte : name.toStdString()) {
        hash ^= static_cast<unsigned char>(byte);
        hash *= 0x100000001b3;
    }
    return hash ^ (hash >> 32);
}

QString randomText(QRandomGenerator& random, bool ascii)
{
    QString text;
    for (int length = random.bounded(30); length > 0; --length)
        text.append(QChar(static_cast<char16_t>(random.bounded(ascii ? 0x80 : 0x10000))));
    return text;
}

} // namespace

class tst_GV_UiNodeKey : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void nullNodeGivesTheEmptyKey()
    {
        const GV_UiNodeKey key(nullptr);
        QCOMPARE(key.parentName, QString());
        QCOMPARE(key.nodeName, QString());
    }

    void partIsKnownByItsNameAndItsParents()
    {
        const GV_UiNodeKey key = keyOf(QStringLiteral("Arm"), QStringLiteral("Hand"));
        QCOMPARE(key.parentName, QStringLiteral("Arm"));
        QCOMPARE(key.nodeName, QStringLiteral("Hand"));
    }

    void fullNamesCountNotTheShownOnes()
    {
        GV_UiNode parent(nullptr, QStringLiteral("Forearm"), QStringLiteral("F…m"), true);
        const GV_UiNode node(&parent, QStringLiteral("Finger"), QStringLiteral("F…r"), true);
        const GV_UiNodeKey key(&node);
        QCOMPARE(key.parentName, QStringLiteral("Forearm"));
        QCOMPARE(key.nodeName, QStringLiteral("Finger"));
    }

    void parentNameComesFirst()
    {
        const auto [first, second] = keyOf(QStringLiteral("Arm"), QStringLiteral("Hand"));
        QCOMPARE(first, QStringLiteral("Arm"));
        QCOMPARE(second, QStringLiteral("Hand"));
    }

    void headerHasNoParentName()
    {
        const GV_UiHeaderNode header(QStringLiteral("Robot"), QString(), osg::NodePtr(), {}, true);
        const GV_UiNodeKey key(&header);
        QVERIFY(key.parentName.isEmpty());
        QCOMPARE(key.nodeName, QStringLiteral("Robot"));
    }

    void headersOfOneNameShareAKey()
    {
        const GV_UiHeaderNode one(QStringLiteral("Robot"), QString(), osg::NodePtr(), {}, true);
        const GV_UiHeaderNode other(QStringLiteral("Robot"), QString(), osg::NodePtr(), {}, false);
        QCOMPARE(GV_UiNodeKey(&one), GV_UiNodeKey(&other));
    }

    void namelessNodeHasAnEmptyNodeName()
    {
        QVERIFY(keyOf(QStringLiteral("Arm"), QString()).nodeName.isEmpty());
    }

    void nodesOfOneNameBelowParentsOfOneNameShareAKey()
    {
        QCOMPARE(keyOf(QStringLiteral("Arm"), QStringLiteral("Hand")),
                 keyOf(QStringLiteral("Arm"), QStringLiteral("Hand")));
    }

    void keysDifferInEitherName()
    {
        const GV_UiNodeKey hand = keyOf(QStringLiteral("Arm"), QStringLiteral("Hand"));
        QVERIFY(!(hand == keyOf(QStringLiteral("Leg"), QStringLiteral("Hand"))));
        QVERIFY(!(hand == keyOf(QStringLiteral("Arm"), QStringLiteral("Foot"))));
        QVERIFY(!(hand == keyOf(QStringLiteral("Hand"), QStringLiteral("Arm"))));
    }

    void comparisonIsExact()
    {
        const GV_UiNodeKey hand = keyOf(QStringLiteral("Arm"), QStringLiteral("Hand"));
        QVERIFY(!(hand == keyOf(QStringLiteral("arm"), QStringLiteral("Hand"))));
        QVERIFY(!(hand == keyOf(QStringLiteral("Arm"), QStringLiteral("HAND"))));
        QVERIFY(!(hand == keyOf(QStringLiteral("Arm"), QStringLiteral("Hand "))));
        // One letter of its own, and the same as a letter with an accent behind it.
        QVERIFY(!(keyOf({}, QStringLiteral("\u00e9")) == keyOf({}, QStringLiteral("e\u0301"))));
    }

    void namelessAndEmptyNamesAreTheSame()
    {
        QCOMPARE(keyOf(QString(), QString()), keyOf(QStringLiteral(""), QStringLiteral("")));
    }

    void copiesTakeBothNames()
    {
        const GV_UiNodeKey hand = keyOf(QStringLiteral("Arm"), QStringLiteral("Hand"));
        const GV_UiNodeKey copy(hand);
        GV_UiNodeKey assigned(nullptr);
        assigned = hand;
        QCOMPARE(copy, hand);
        QCOMPARE(assigned, hand);
    }

    void keyOutlivesItsNode()
    {
        auto node = std::make_unique<GV_UiNode>(nullptr, QStringLiteral("Arm"), QString(), true);
        const GV_UiNodeKey key(node.get());
        node.reset();
        QCOMPARE(key.nodeName, QStringLiteral("Arm"));
    }

    void hash_data()
    {
        QTest::addColumn<QString>("parentName");
        QTest::addColumn<QString>("nodeName");
        QTest::addColumn<quint64>("hash");
        const QString none;
        const QString arm = QStringLiteral("Arm");
        const QString hand = QStringLiteral("Hand");
        const QString body = QStringLiteral("K\u00f6rper");
        QTest::newRow("no names") << none << none << 0x5c17a52cd071c043ull;
        QTest::newRow("node only") << none << QStringLiteral("a") << 0x9535247c1d14de41ull;
        QTest::newRow("parent only") << QStringLiteral("a") << none << 0x3886e584b6c34f42ull;
        QTest::newRow("longer") << none << QStringLiteral("foobar") << 0xc0da1e06aa8af2f3ull;
        QTest::newRow("both") << arm << hand << 0x488dcba90231f93cull;
        QTest::newRow("both, swapped") << hand << arm << 0xab4b55ea9ebec800ull;
        QTest::newRow("two bytes a letter")
            << body << QStringLiteral("\u00c4rmel") << 0x0fe1096bb4e5ea29ull;
        QTest::newRow("three bytes a letter")
            << body << QStringLiteral("\u624b") << 0x8943b1cd5b89dd31ull;
        QTest::newRow("four bytes a letter")
            << none << QStringLiteral("\U0001f916") << 0x34da66955bf9984dull;
        QTest::newRow("zero byte") << QString(QStringLiteral("a") + QChar(0) + u'b')
                                   << QStringLiteral("a") << 0xbb152181b3309e2bull;
        QTest::newRow("long") << QString(10000, u'x') << QString(10000, u'y')
                              << 0x5eb697857fc0974aull;
    }
    void hash()
    {
        QFETCH(QString, parentName);
        QFETCH(QString, nodeName);
        QTEST(hashOf(keyOf(parentName, nodeName)), "hash");
    }

    void emptyNameHashesToTheFoldedStartValue()
    {
        QCOMPARE(plainHash(QString()), 0xcbf29ce44fd0bfc1ull);
    }

    void hashFollowsTheRuleForAnyText()
    {
        QRandomGenerator random(1);
        for (int i = 0; i < 5000; ++i) {
            const QString parentName = randomText(random, i % 2 == 0);
            const QString name = randomText(random, i % 3 == 0);
            QCOMPARE(hashOf(keyOf(parentName, name)),
                     plainHash(parentName) ^ (plainHash(name) << 1));
        }
    }

    void equalKeysAreOneInASet()
    {
        std::unordered_set<GV_UiNodeKey, GV_UiNodeKey::GV_UiNodeKeyHasher> keys;
        keys.insert(keyOf(QStringLiteral("Arm"), QStringLiteral("Hand")));
        keys.insert(keyOf(QStringLiteral("Arm"), QStringLiteral("Hand")));
        keys.insert(keyOf(QStringLiteral("Hand"), QStringLiteral("Arm")));
        QCOMPARE(keys.size(), std::size_t(2));
    }
};

QTEST_GUILESS_MAIN(tst_GV_UiNodeKey)
#include "tst_GV_UiNodeKey.moc"
