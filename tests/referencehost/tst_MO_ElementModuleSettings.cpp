// SPDX-License-Identifier: MIT
#include "ChangeLog.h"
#include "host/models/AT_ModelData.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/TUSceneChangeManager.h"

#include <QRegularExpression>
#include <QTest>

#include <cmath>

class tst_MO_ElementModuleSettings : public QObject
{
    Q_OBJECT

private:
    static AT_ModelData* setNew(MO_ElementModule& element, int frame)
    {
        auto data = std::make_unique<AT_ModelData>();
        AT_ModelData* set = data.get();
        element.setSeqMeta(frame, std::move(data));
        return set;
    }

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(".?")); }

    void has_none_at_first()
    {
        const MO_ElementModule element{QString()};
        QVERIFY(!element.seqMeta(1.0));
    }

    void hold_until_the_next_frame_that_sets_some()
    {
        MO_ElementModule element{QString()};
        AT_ModelData* at3 = setNew(element, 3);
        AT_ModelData* at7 = setNew(element, 7);
        QVERIFY(!element.seqMeta(2.999));
        QCOMPARE(element.seqMeta(3.0), at3);
        QCOMPARE(element.seqMeta(6.999), at3);
        QCOMPARE(element.seqMeta(7.0), at7);
        QCOMPARE(element.seqMeta(1e6), at7);
        QVERIFY(!element.seqMeta(std::nan("")));
    }

    void know_the_frame_that_set_them()
    {
        MO_ElementModule element{QString()}, other{QString()};
        setNew(element, 3);
        AT_ModelData* at7 = setNew(element, 7);
        int frame = 42;
        QVERIFY(!element.frameOfSeqMeta(nullptr, frame));
        QVERIFY(!element.frameOfSeqMeta(setNew(other, 1), frame));
        QCOMPARE(frame, 42);
        QVERIFY(element.frameOfSeqMeta(at7, frame));
        QCOMPARE(frame, 7);
    }

    void are_given_back_when_replaced_or_removed()
    {
        MO_ElementModule element{QString()};
        AT_ModelData* first = setNew(element, 3);
        std::unique_ptr<AT_ModelData> back =
            element.setSeqMeta(3, std::make_unique<AT_ModelData>());
        QCOMPARE(back.get(), first);
        AT_ModelData* second = element.seqMeta(3.0);
        QVERIFY(second && second != first);
        back = element.setSeqMeta(3, nullptr);
        QCOMPARE(back.get(), second);
        QVERIFY(!element.seqMeta(3.0));
        QVERIFY(!element.setSeqMeta(3, nullptr));
    }

    void give_back_only_what_was_set_at_that_very_frame()
    {
        MO_ElementModule element{QString()};
        AT_ModelData* at3 = setNew(element, 3);
        QVERIFY(!element.setSeqMeta(5, nullptr));
        QCOMPARE(element.seqMeta(5.0), at3);
    }

    void note_a_change_only_when_something_was_set()
    {
        TUSceneChangeManager changes;
        TUScene scene(QStringLiteral("Scene"), &changes);
        auto* element = static_cast<MO_ElementModule*>(
            scene.rootGroup()->insertNode(std::make_unique<MO_ElementModule>("Element")));
        changes.notify();
        ChangeLog log(changes);
        element->setSeqMeta(1, nullptr);
        changes.notify();
        QVERIFY(log.told().isEmpty());
        setNew(*element, 1);
        changes.notify();
        element->setSeqMeta(1, nullptr);
        changes.notify();
        QCOMPARE(log.take(), (QStringList{"nodes Element", "nodes Element"}));
    }

    void keep_a_record_for_each_key()
    {
        AT_ModelData data;
        const AT_ModelNodeKey arm("arm"), leg("leg");
        QVERIFY(!data.nodeData(arm));
        AT_ModelNodeData hidden;
        hidden.visible = false;
        data.setNodeData(arm, hidden);
        data.setNodeData(leg, AT_ModelNodeData());
        QVERIFY(*data.nodeData(arm) == hidden);
        QVERIFY(data.nodeData(leg)->visible);
        data.setNodeData(arm, AT_ModelNodeData());
        QVERIFY(data.nodeData(arm)->visible);
        data.removeNodeData(arm);
        QVERIFY(!data.nodeData(arm));
        QCOMPARE(data.records().size(), 1u);
    }
};

QTEST_GUILESS_MAIN(tst_MO_ElementModuleSettings)
#include "tst_MO_ElementModuleSettings.moc"
