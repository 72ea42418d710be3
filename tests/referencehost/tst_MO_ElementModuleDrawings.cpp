// SPDX-License-Identifier: MIT
#include "ChangeLog.h"
#include "SampleModel.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/TUSceneChangeManager.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

#include <cmath>
#include <limits>

class tst_MO_ElementModuleDrawings : public QObject
{
    Q_OBJECT

private:
    Model _modelA, _modelB, _modelC;

    /// What the element shows on the frames from 1 to 10, a letter for each.
    QString shown(const MO_ElementModule& element) const
    {
        QString letters;
        for (int frame = 1; frame <= 10; ++frame) {
            const Model model = element.modelAt(frame);
            letters += model == _modelA   ? u'a'
                       : model == _modelB ? u'b'
                       : model == _modelC ? u'c'
                                          : u'-';
        }
        return letters;
    }

private slots:
    void initTestCase()
    {
        QVERIFY(osg::osgInit(0, nullptr));
        _modelA = modelOf({"a"});
        _modelB = modelOf({"b"});
        _modelC = modelOf({"c"});
    }
    void cleanupTestCase() { _modelA = _modelB = _modelC = nullptr; }
    void init() { QTest::failOnWarning(QRegularExpression(".?")); }

    void shows_nothing_at_first()
    {
        const MO_ElementModule element{QString()};
        QCOMPARE(shown(element), QStringLiteral("----------"));
    }

    void shows_later_exposures_in_place_of_earlier_ones_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("last");
        QTest::addColumn<QString>("result");
        QTest::newRow("inside, which splits") << 4 << 5 << "-aaccaaa--";
        QTest::newRow("the same range") << 2 << 8 << "-ccccccc--";
        QTest::newRow("over all of it") << 1 << 10 << "cccccccccc";
        QTest::newRow("over the start") << 1 << 3 << "cccaaaaa--";
        QTest::newRow("over the end") << 7 << 9 << "-aaaaaccc-";
        QTest::newRow("from the start") << 2 << 3 << "-ccaaaaa--";
        QTest::newRow("to the end") << 7 << 8 << "-aaaaacc--";
        QTest::newRow("the first frame") << 2 << 2 << "-caaaaaa--";
        QTest::newRow("the last frame") << 8 << 8 << "-aaaaaac--";
        QTest::newRow("just before") << 1 << 1 << "caaaaaaa--";
        QTest::newRow("just after") << 9 << 10 << "-aaaaaaacc";
        QTest::newRow("an empty range") << 5 << 4 << "-aaaaaaa--";
    }
    void shows_later_exposures_in_place_of_earlier_ones()
    {
        QFETCH(int, first);
        QFETCH(int, last);
        QFETCH(QString, result);
        MO_ElementModule element{QString()};
        element.exposeModel(2, 8, _modelA);
        element.exposeModel(first, last, _modelC);
        QCOMPARE(shown(element), result);
        element.exposeModel(first, last, nullptr);
        QCOMPARE(shown(element), result.replace(u'c', u'-'));
    }

    void covers_several_exposures_at_once()
    {
        MO_ElementModule element{QString()};
        element.exposeModel(1, 3, _modelA);
        element.exposeModel(4, 5, _modelB);
        element.exposeModel(7, 10, _modelA);
        element.exposeModel(3, 8, _modelC);
        QCOMPARE(shown(element), QStringLiteral("aaccccccaa"));
        element.exposeModel(2, 9, nullptr);
        QCOMPARE(shown(element), QStringLiteral("a--------a"));
    }

    void agrees_with_one_model_for_each_frame_after_any_exposures()
    {
        QRandomGenerator random(7);
        for (int run = 0; run < 200; ++run) {
            MO_ElementModule element{QString()};
            QString expected(10, u'-');
            for (int step = 0; step < 12; ++step) {
                const int first = random.bounded(1, 11);
                const int last = random.bounded(0, 11);
                const int choice = random.bounded(4);
                const Model models[] = {_modelA, _modelB, _modelC, nullptr};
                element.exposeModel(first, last, models[choice]);
                for (int frame = first; frame <= last; ++frame)
                    expected[frame - 1] = QStringLiteral("abc-")[choice];
                QCOMPARE(shown(element), expected);
            }
        }
    }

    void reaches_to_the_ends_of_time()
    {
        constexpr int begin = std::numeric_limits<int>::min();
        constexpr int end = std::numeric_limits<int>::max();
        MO_ElementModule element{QString()};
        element.exposeModel(begin, end, _modelA);
        element.exposeModel(3, end, _modelB);
        element.exposeModel(begin, 1, _modelC);
        QCOMPARE(shown(element), QStringLiteral("cabbbbbbbb"));
        QCOMPARE(element.modelAt(begin), _modelC);
        QCOMPARE(element.modelAt(end), _modelB);
    }

    void takes_a_time_between_frames_as_the_frame_it_lies_in()
    {
        MO_ElementModule element{QString()};
        element.exposeModel(2, 2, _modelA);
        QCOMPARE(element.modelAt(1.999), Model());
        QCOMPARE(element.modelAt(2.999), _modelA);
        QCOMPARE(element.modelAt(3.0), Model());
        element.exposeModel(-1, -1, _modelB);
        QCOMPARE(element.modelAt(-0.5), _modelB);
    }

    void shows_nothing_at_times_that_are_no_frames()
    {
        MO_ElementModule element{QString()};
        element.exposeModel(1, std::numeric_limits<int>::max(), _modelA);
        QVERIFY(!element.modelAt(std::nan("")));
        QVERIFY(!element.modelAt(1e300));
        QVERIFY(!element.modelAt(-std::numeric_limits<double>::infinity()));
    }

    void shares_models_and_lets_go_of_them()
    {
        Model model = modelOf({"x"});
        const std::weak_ptr<TD_CelVq3d> weak = model;
        auto element = std::make_unique<MO_ElementModule>(QString());
        element->exposeModel(1, 10, model);
        element->exposeModel(4, 6, _modelA);
        model.reset();
        QVERIFY(!weak.expired());
        element->exposeModel(1, 3, nullptr);
        QVERIFY(!weak.expired());
        element->exposeModel(7, 10, nullptr);
        QVERIFY(weak.expired());
    }

    void notes_a_change_only_when_something_changed()
    {
        TUSceneChangeManager changes;
        TUScene scene(QStringLiteral("Scene"), &changes);
        auto* element = static_cast<MO_ElementModule*>(
            scene.rootGroup()->insertNode(std::make_unique<MO_ElementModule>("Element")));
        changes.notify();
        ChangeLog log(changes);
        element->exposeModel(1, 5, nullptr);
        element->exposeModel(5, 1, _modelA);
        changes.notify();
        QVERIFY(log.told().isEmpty());
        element->exposeModel(1, 5, _modelA);
        changes.notify();
        QCOMPARE(log.take(), QStringList{"nodes Element"});
        element->exposeModel(5, 9, nullptr);
        changes.notify();
        QCOMPARE(log.take(), QStringList{"nodes Element"});
    }
};

QTEST_GUILESS_MAIN(tst_MO_ElementModuleDrawings)
#include "tst_MO_ElementModuleDrawings.moc"
