// SPDX-License-Identifier: MIT

#include "graphview/GV_WorldViewQt.h"
#include "host/preferences/PR_Preference.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"
#include "tests/graphview/OverviewTest.h"

#include <QRandomGenerator>
#include <set>

namespace {

const QString extendedKey = QStringLiteral("GV_EXTENDED_DISPLAY");
const QString fontKey = QStringLiteral("ST_3DNODEVIEW_FONT");

QStringList colorKeys()
{
    QStringList keys;
    for (const char* what :
         {"BACKGROUND", "NETWORK", "TEXT", "SELECTED_TEXT", "NODE", "SELECTED_NODE", "HIDDEN_NODE",
          "SELECTED_HIDDEN_NODE", "NONEDITABLE_NODE"})
        keys << QStringLiteral("ST_3DNODEVIEW_%1_COLOR").arg(QLatin1String(what));
    return keys;
}

} // namespace

/// The picture that the overview keeps of the graph.
class tst_GV_OverviewPicture : public OverviewTest
{
    Q_OBJECT

private:
    std::vector<MO_ElementModule*> _elements;

    MO_ElementModule& anyElement(QRandomGenerator& random)
    {
        return *_elements[random.bounded(quint32(_elements.size()))];
    }
    void addRandomElement(QRandomGenerator& random, int nodes)
    {
        MO_ElementModule& element =
            _stage->addElement(QStringLiteral("element %1").arg(random.bounded(100)),
                               ModelBuilder::randomModel(random.generate(), nodes), 1, 20);
        element.exposeModel(21, 40, ModelBuilder::randomModel(random.generate(), nodes / 2 + 1));
        if (random.bounded(4) == 0)
            element.setEditable(false);
        _stage->notify();
        _elements.push_back(&element);
    }
    void pressAnywhere(QRandomGenerator& random)
    {
        const QRectF graph = navigator().mainItem()->boundingRect();
        Math::Vector2d point{random.bounded(graph.width() + 1), random.bounded(graph.height() + 1)};
        controller()->onMouseDown(point);
    }
    void subSelectSome(QRandomGenerator& random)
    {
        MO_ElementModule& element = anyElement(random);
        _stage->select({&element});
        const SL_Selection::BatchSelectionModeScope scope(_stage->context().selection());
        for (int i = random.bounded(8); i > 0; --i)
            element.selInterface()->subSelect(random.bounded(60), true);
    }
    static void setAnyPreference(QRandomGenerator& random)
    {
        const QStringList keys = colorKeys();
        const QString& key = keys[random.bounded(keys.size())];
        const quint32 alpha = random.bounded(2) ? 0xff000000 : random.bounded(256U) << 24;
        if (random.bounded(4) == 0)
            PR_Preference::instance()->reset(key);
        else
            PR_Preference::instance()->setRgbaValue(key, alpha | random.bounded(0x1000000U));
    }
    /// Says what it did.
    QString takeStep(QRandomGenerator& random, int nodes)
    {
        const int what = random.bounded(20);
        switch (what) {
        case 0:
            _stage->select({&anyElement(random)});
            break;
        case 1:
            if (random.bounded(4) == 0)
                _stage->select({});
            else
                _stage->select({&anyElement(random), &anyElement(random)});
            break;
        case 2:
        case 3:
            subSelectSome(random);
            break;
        case 4:
            view().onActionHideNodes();
            break;
        case 5:
            view().onActionShowNodes();
            break;
        case 6:
            view().onActionHideAllOtherNodes();
            break;
        case 7:
            if (random.bounded(3) == 0)
                view().onActionCollapseAllNodes();
            else
                view().onActionResetView();
            break;
        case 8:
            view().onActionExpandAllNodes();
            break;
        case 9:
            pressAnywhere(random);
            break;
        case 10:
            view().onActionToggleDislayMode();
            break;
        case 11:
            anyElement(random).setInstanceName(QString::number(random.generate64()));
            _stage->notify();
            break;
        case 12:
            _stage->goToFrame(random.bounded(1, 50));
            _stage->notify();
            break;
        case 13:
        case 14:
            setAnyPreference(random);
            break;
        case 15:
            if (_elements.size() < 6) {
                addRandomElement(random, nodes);
            } else {
                _stage->remove(*_elements.front());
                _elements.erase(_elements.begin());
                _stage->select({_elements.front()});
            }
            break;
        case 16:
            view().handleNavigatorPan(
                {double(random.bounded(-300, 300)), double(random.bounded(-300, 300))});
            break;
        case 17:
            random.bounded(2) ? view().onActionZoomIn() : view().onActionZoomOut();
            break;
        case 18:
            view().worldView()->resize(random.bounded(20, 300), random.bounded(20, 300));
            break;
        default: {
            MO_ElementModule& element = anyElement(random);
            element.setEditable(!element.isEditable());
            _stage->notify();
        }
        }
        return QString::number(what);
    }
    void resetPreferences()
    {
        const QStringList keys = colorKeys() + QStringList{extendedKey, fontKey};
        for (const QString& key : keys)
            PR_Preference::instance()->reset(key);
    }

private slots:
    void cleanup()
    {
        resetPreferences();
        _elements.clear();
        StageTest::cleanup();
    }

    void it_looks_as_if_drawn_each_time_data()
    {
        QTest::addColumn<int>("nodes");
        QTest::addColumn<int>("steps");
        QTest::newRow("one node") << 1 << 200;
        QTest::newRow("few nodes") << 8 << 300;
        QTest::newRow("some nodes") << 60 << 300;
        QTest::newRow("hundreds") << 400 << 150;
        QTest::newRow("thousands") << 3000 << 60;
    }

    void it_looks_as_if_drawn_each_time()
    {
        QFETCH(const int, nodes);
        QFETCH(const int, steps);
        QRandomGenerator random(quint32(nodes) + 17);
        addRandomElement(random, nodes);
        addRandomElement(random, nodes);
        QVERIFY(show());
        _stage->select({_elements.front()});
        QStringList done;
        std::set<qint64> pictures{pictureShown()};
        for (int i = 0; i < steps; ++i) {
            done << takeStep(random, nodes);
            if (kept() != drawn()) {
                kept().save(QStringLiteral("overview_kept.png"));
                drawn().save(QStringLiteral("overview_drawn.png"));
                QFAIL(qPrintable(QStringLiteral("after ") + done.join(u' ')));
            }
            pictures.insert(pictureShown());
        }
        kept().save(QStringLiteral("overview_%1.png").arg(nodes));
        // Some steps leave the picture as it was.
        QVERIFY(!pictures.contains(0));
        QVERIFY(pictures.size() > std::size_t(steps) / 4 && pictures.size() < std::size_t(steps));
    }

    void fonts_show_in_it()
    {
        addSelected(ModelBuilder::model(shapedKey("hand")));
        QVERIFY(show(QSize(300, 70)));
        view().worldView()->resize(290, 200);
        for (const char* family : {"DejaVu Serif", "DejaVu Sans Mono", "No Such Font"}) {
            PR_Preference::instance()->setFontValue(fontKey, QString::fromLatin1(family));
            QVERIFY(kept() == drawn());
        }
    }

    void what_changes_on_the_screen_is_repainted()
    {
        QRandomGenerator random(23);
        addRandomElement(random, 20);
        addRandomElement(random, 20);
        QVERIFY(show());
        _stage->select({_elements.front()});
        RepaintCounter counter(navigator());
        QImage shown = kept();
        for (int i = 0; i < 150; ++i) {
            QString what;
            const int repaints = counter.countDuring([&] { what = takeStep(random, 20); });
            // Colours of boxes show with the next repaint and ask for none.
            const bool isPreference = what == QLatin1String("13") || what == QLatin1String("14");
            const QImage now = kept();
            QVERIFY2(isPreference || now == shown || repaints > 0, qPrintable(what));
            shown = now;
        }
    }
};

QTEST_MAIN(tst_GV_OverviewPicture)
#include "tst_GV_OverviewPicture.moc"
