// SPDX-License-Identifier: MIT
#include "workbench/timeline/ExposureEdits.h"

#include "SampleModel.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>
#include <algorithm>
#include <array>
#include <limits>

using namespace ExposureEdits;

/// The edits, as functions of what an element shows.
class tst_exposure_edits : public QObject
{
    Q_OBJECT

private:
    std::array<Model, 3> _models;

    /// What is shown from one frame to another: a letter for each frame, a bar where one ends.
    QString text(const Exposures& all, int first = 1, int last = 12) const
    {
        QString letters;
        for (int frame = first; frame <= last; ++frame) {
            const int index = indexAt(all, frame);
            if (index < 0) {
                letters += u'-';
                continue;
            }
            for (std::size_t i = 0; i < _models.size(); ++i) {
                if (_models[i] == all[index].model)
                    letters += QChar(static_cast<char16_t>(u'a' + i));
            }
            if (all[index].lastFrame == frame)
                letters += u'|';
        }
        return letters;
    }
    /// a on 3 to 5, b on 6 to 6, a on 9 and all that follow.
    Exposures sample() const
    {
        return {{3, 5, _models[0]}, {6, 6, _models[1]}, {9, openEnd, _models[0]}};
    }
    static void expose(MO_ElementModule& element, const Exposures& all)
    {
        for (const Exposure& exposure : all)
            element.exposeModel(exposure.firstFrame, exposure.lastFrame, exposure.model);
    }

private slots:
    void initTestCase()
    {
        QVERIFY(osg::osgInit(0, nullptr));
        for (Model& model : _models)
            model = modelOf({"a"});
    }
    void cleanupTestCase() { _models = {}; }
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void an_exposure_is_found_by_its_frames()
    {
        const Exposures all = sample();
        QCOMPARE(text(all), QStringLiteral("--aaa|b|--aaaa"));
        QCOMPARE(indexAt(all, 2), -1);
        QCOMPARE(indexAt(all, 3), 0);
        QCOMPARE(indexAt(all, 5), 0);
        QCOMPARE(indexAt(all, 8), -1);
        QCOMPARE(indexAt(all, openEnd), 2);
        QCOMPARE(indexAt({}, 1), -1);
        QCOMPARE(firstReaching(all, 1), 0);
        QCOMPARE(firstReaching(all, 6), 1);
        QCOMPARE(firstReaching(all, 7), 2);
        QCOMPARE(firstReaching({{1, 2, _models[0]}}, 3), 1);
    }

    void exposing_equals_what_the_element_does()
    {
        QRandomGenerator random(11);
        for (int round = 0; round < 200; ++round) {
            MO_ElementModule element{QString()};
            Exposures all;
            for (int step = 0; step < 12; ++step) {
                const int first = random.bounded(-3, 30);
                const int last = random.bounded(8) == 0 ? openEnd : first + random.bounded(-1, 9);
                const int which = random.bounded(4);
                const Model model = which < 3 ? _models[which] : nullptr;
                element.exposeModel(first, last, model);
                all = exposed(all, first, last, model);
                QCOMPARE(all, element.exposures());
            }
        }
    }

    void every_edit_equals_clearing_and_exposing_the_element()
    {
        QRandomGenerator random(5);
        int edits = 0;
        for (int round = 0; round < 2000; ++round) {
            MO_ElementModule element{QString()};
            for (int i = 0; i < 5; ++i) {
                const int first = random.bounded(1, 30);
                const int last = random.bounded(6) == 0 ? openEnd : first + random.bounded(6);
                element.exposeModel(first, last, _models[random.bounded(3)]);
            }
            const Exposures before = element.exposures();
            const int index = random.bounded(static_cast<int>(before.size()));
            const Exposure edited = before[index];
            const int frame = random.bounded(1, 40);
            int first = edited.firstFrame;
            int last = edited.lastFrame;
            bool stays = false;
            Exposures after;
            switch (random.bounded(4)) {
            case 0:
                after = withFirst(before, index, frame);
                first = std::min(frame, last);
                break;
            case 1:
                after = withLast(before, index, frame);
                last = std::max(frame, first);
                break;
            case 2:
                after = moved(before, index, frame - first);
                last = isOpen(edited) ? openEnd : last + frame - first;
                first = frame;
                break;
            default:
                if (isOpen(edited))
                    continue;
                stays = true;
                after = duplicatedAfter(before, index);
                first = edited.lastFrame + 1;
                last = edited.lastFrame + (edited.lastFrame - edited.firstFrame + 1);
            }
            if (!stays)
                element.exposeModel(edited.firstFrame, edited.lastFrame, nullptr);
            element.exposeModel(first, last, edited.model);
            QCOMPARE(after, element.exposures());
            ++edits;
        }
        QVERIFY(edits > 1000);
    }

    void ends_are_trimmed_over_neighbours_and_never_past_each_other()
    {
        const Exposures all = sample();
        QCOMPARE(text(withLast(all, 0, 4)), QStringLiteral("--aa|-b|--aaaa"));
        QCOMPARE(text(withLast(all, 0, 9)), QStringLiteral("--aaaaaaa|aaa"));
        QCOMPARE(text(withLast(all, 0, -7)), QStringLiteral("--a|--b|--aaaa"));
        QCOMPARE(text(withFirst(all, 1, 4)), QStringLiteral("--a|bbb|--aaaa"));
        QCOMPARE(text(withFirst(all, 0, -7)), QStringLiteral("aaaaa|b|--aaaa"));
        QCOMPARE(text(withFirst(all, 0, 40)), QStringLiteral("----a|b|--aaaa"));
        QCOMPARE(text(withFirst(all, 2, 2)), QStringLiteral("-aaaaaaaaaaa"));
        QCOMPARE(withLast(all, 1, openEnd).back(), (Exposure{6, openEnd, _models[1]}));
    }

    void moving_stays_within_the_frames()
    {
        const Exposures all = sample();
        QCOMPARE(text(moved(all, 0, 1)), QStringLiteral("---aaa|--aaaa"));
        QCOMPARE(text(moved(all, 1, -100)), QStringLiteral("b|-aaa|---aaaa"));
        QCOMPARE(text(moved(all, 2, -4)), QStringLiteral("--aa|aaaaaaaa"));
        const int farthest = std::numeric_limits<int>::max();
        const Exposures closed{{3, 5, _models[0]}};
        QCOMPARE(moved(closed, 0, farthest), (Exposures{{openEnd - 3, openEnd - 1, _models[0]}}));
        const Exposures open{{3, openEnd, _models[0]}};
        QCOMPARE(moved(open, 0, farthest), (Exposures{{openEnd - 1, openEnd, _models[0]}}));
        // One from before frame 1 is not thrown forward by a wish to go back.
        const Exposures early{{-4, 3, _models[0]}};
        QCOMPARE(moved(early, 0, -1), early);
        QCOMPARE(moved(early, 0, 2), (Exposures{{-2, 5, _models[0]}}));
        QCOMPARE(withFirst(early, 0, 0), early);
        QCOMPARE(withFirst(early, 0, 2), (Exposures{{2, 3, _models[0]}}));
    }

    void splitting_leaves_two_that_show_the_same()
    {
        const Exposures all = sample();
        QCOMPARE(text(split(all, 0, 4)), QStringLiteral("--a|aa|b|--aaaa"));
        QCOMPARE(text(split(all, 2, 11)), QStringLiteral("--aaa|b|--aa|aa"));
        QCOMPARE(split(all, 0, 3), all);
        QCOMPARE(split(all, 0, 6), all);
        QCOMPARE(split(all, 1, 6), all);
    }

    void a_duplicate_follows_and_cuts()
    {
        const Exposures all = sample();
        QCOMPARE(text(duplicatedAfter(all, 0)), QStringLiteral("--aaa|aaa|aaaa"));
        QCOMPARE(text(duplicatedAfter(all, 1)), QStringLiteral("--aaa|b|b|-aaaa"));
        QCOMPARE(duplicatedAfter(all, 2), all);
        const Exposures late{{5, openEnd - 2, _models[0]}};
        QCOMPARE(duplicatedAfter(late, 0).back(), (Exposure{openEnd - 1, openEnd, _models[0]}));
    }

    void an_index_that_is_not_there_changes_nothing()
    {
        const Exposures all = sample();
        for (const int index : {-1, 3}) {
            QCOMPARE(cleared(all, index), all);
            QCOMPARE(withFirst(all, index, 1), all);
            QCOMPARE(withLast(all, index, 1), all);
            QCOMPARE(moved(all, index, 1), all);
            QCOMPARE(split(all, index, 4), all);
            QCOMPARE(duplicatedAfter(all, index), all);
        }
        QCOMPARE(text(cleared(all, 1)), QStringLiteral("--aaa|---aaaa"));
        QCOMPARE(exposed(all, 5, 4, _models[2]), all);
    }

    void boundaries_are_where_something_else_is_shown()
    {
        const Exposures all = sample();
        QList<int> forward;
        for (int frame = 1; boundaryAfter(all, frame) != frame;)
            forward << (frame = boundaryAfter(all, frame));
        QCOMPARE(forward, (QList<int>{3, 6, 7, 9}));
        QList<int> back;
        for (int frame = 100; boundaryBefore(all, frame) != frame;)
            back << (frame = boundaryBefore(all, frame));
        QCOMPARE(back, (QList<int>{9, 7, 6, 3}));
        QCOMPARE(boundaryBefore({{-4, 3, _models[0]}}, 9), 4);
        QCOMPARE(boundaryBefore({{-4, 3, _models[0]}}, 4), 4);
        QCOMPARE(boundaryAfter({}, 7), 7);
    }

    void the_last_frame_is_where_the_last_ends_or_begins()
    {
        QCOMPARE(lastFrame({}), 1);
        QCOMPARE(lastFrame({{1, openEnd, _models[0]}}), 1);
        QCOMPARE(lastFrame({{-9, -2, _models[0]}}), 1);
        QCOMPARE(lastFrame(sample()), 9);
        QCOMPARE(lastFrame({{2, 30, _models[0]}}), 30);
        QCOMPARE(lastEmptyFrame(sample(), 1), 2);
        QCOMPARE(lastEmptyFrame(sample(), 7), 8);
        QCOMPARE(lastEmptyFrame({{1, 2, _models[0]}}, 3), openEnd);
    }
};

QTEST_GUILESS_MAIN(tst_exposure_edits)
#include "tst_exposure_edits.moc"
