// SPDX-License-Identifier: MIT
#include "workbench/import/UniqueNames.h"

#include <QTest>
#include <algorithm>
#include <set>
#include <vector>

class tst_unique_names : public QObject
{
    Q_OBJECT

private:
    static std::vector<std::string> take(const std::vector<std::string>& names)
    {
        UniqueNames unique;
        for (const std::string& name : names)
            unique.announce(name);
        std::vector<std::string> taken;
        for (const std::string& name : names)
            taken.push_back(unique.take(name));
        return taken;
    }
    using Names = std::vector<std::string>;

private slots:
    void different_names_stay_as_they_are()
    {
        QVERIFY(take({"Arm", "Leg", "arm"}) == Names({"Arm", "Leg", "arm"}));
    }

    void equal_names_are_numbered_in_their_order()
    {
        QVERIFY(take({"Arm", "Arm", "Leg", "Arm"}) == Names({"Arm", "Arm_2", "Leg", "Arm_3"}));
    }

    void a_number_never_takes_a_name_of_the_file()
    {
        QVERIFY(take({"Arm", "Arm", "Arm_2", "Arm_3"}) ==
                Names({"Arm", "Arm_4", "Arm_2", "Arm_3"}));
    }

    void numbered_names_may_themselves_be_equal()
    {
        QVERIFY(take({"Arm_2", "Arm_2", "Arm", "Arm"}) ==
                Names({"Arm_2", "Arm_2_2", "Arm", "Arm_3"}));
    }

    void any_bytes_are_a_name()
    {
        QVERIFY(take({"\xff\xfe", "\xff\xfe", "", ""}) ==
                Names({"\xff\xfe", "\xff\xfe_2", "", "_2"}));
    }

    void many_equal_names_take_time_in_proportion()
    {
        // The best of several runs, since other programs may be busy.
        const auto seconds = [](int count) {
            double best = 1.0e9;
            for (int run = 0; run < 3; ++run) {
                QElapsedTimer timer;
                timer.start();
                const Names taken = take(Names(count, "Arm"));
                best = std::min(best, static_cast<double>(timer.nsecsElapsed()) * 1.0e-9);
                if (std::set<std::string>(taken.begin(), taken.end()).size() != taken.size())
                    return -1.0;
            }
            return best;
        };
        const double few = seconds(10000);
        const double many = seconds(100000);
        QVERIFY(few > 0 && many > 0);
        // Ten times as many may take a hundred times as long only if every name looks at all.
        QVERIFY2(many < 50 * few, qPrintable(QString("%1 s, %2 s").arg(few).arg(many)));
    }
};

QTEST_APPLESS_MAIN(tst_unique_names)
#include "tst_unique_names.moc"
