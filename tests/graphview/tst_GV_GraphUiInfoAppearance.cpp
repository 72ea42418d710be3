// SPDX-License-Identifier: MIT

#include "host/preferences/PR_Preference.h"
#include "tests/graphview/ModelBuilder.h"
#include "tests/graphview/ShownModels.h"

#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <array>

using namespace ModelBuilder;

namespace {

constexpr const char* fontKey = "ST_3DNODEVIEW_FONT";

/// A colour of the graph: where it is kept, what it is at first, and whose it is.
struct Colour
{
    const char* key;
    QColor start;
    GV_UiNode::eObjType type;
    bool editable;
    bool selected;
    bool hidden;
};

const std::array colours{
    Colour{"ST_3DNODEVIEW_TEXT_COLOR", {0, 0, 0}, GV_UiNode::eText, true, false, false},
    Colour{"ST_3DNODEVIEW_SELECTED_TEXT_COLOR", {0, 0, 0}, GV_UiNode::eText, true, true, false},
    Colour{"ST_3DNODEVIEW_NODE_COLOR", {69, 90, 163}, GV_UiNode::eBox, true, false, false},
    Colour{"ST_3DNODEVIEW_SELECTED_NODE_COLOR", {90, 155, 240}, GV_UiNode::eBox, true, true, false},
    Colour{"ST_3DNODEVIEW_HIDDEN_NODE_COLOR", {100, 134, 135}, GV_UiNode::eBox, true, false, true},
    Colour{"ST_3DNODEVIEW_SELECTED_HIDDEN_NODE_COLOR",
           {141, 189, 180},
           GV_UiNode::eBox,
           true,
           true,
           true},
    Colour{"ST_3DNODEVIEW_NONEDITABLE_NODE_COLOR",
           {168, 168, 168},
           GV_UiNode::eBox,
           false,
           false,
           false}};

} // namespace

class tst_GV_GraphUiInfoAppearance : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir _settings;
    std::unique_ptr<ShownModels> _models;

    GV_GraphUiInfo& graph() { return _models->graph; }

    static void set(const char* key, QRgb rgba)
    {
        PR_Preference::instance()->setRgbaValue(QString::fromLatin1(key), rgba);
    }
    static void setFont(const QString& family)
    {
        PR_Preference::instance()->setFontValue(QString::fromLatin1(fontKey), family);
    }

    /// The colour of a header in this state.
    QColor colour(GV_UiNode::eObjType type, bool editable, bool selected, bool hidden)
    {
        GV_UiHeaderNode* header = _models->header(0);
        header->setEditable(true);
        graph().clearSelection(false);
        if (selected)
            graph().setFirstNodeSelected(header);
        header->setEditable(editable);
        return graph().getColor(type, header, hidden);
    }
    QColor colour(const Colour& of) { return colour(of.type, of.editable, of.selected, of.hidden); }

private slots:
    void initTestCase()
    {
        QVERIFY(_settings.isValid());
        QCoreApplication::setOrganizationName(QStringLiteral("SubnodeViews"));
        QCoreApplication::setApplicationName(QStringLiteral("tst_GV_GraphUiInfoAppearance"));
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, _settings.path());
    }

    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
        _models = std::make_unique<ShownModels>();
        _models->showOnly(QStringLiteral("Robot"), model(key("arm", {geometry("s")})));
    }

    void cleanup()
    {
        for (const Colour& each : colours)
            PR_Preference::instance()->reset(QString::fromLatin1(each.key));
        PR_Preference::instance()->reset(QString::fromLatin1(fontKey));
        graph().loadPreferences();
        _models.reset();
    }

    // These two come first, since the values at start-up are gone with the first load.
    void fontFitsTheScreenThatNamesAreMeasuredFor()
    {
        const QFont fresh(QStringLiteral("Courier"), 10);
        QCOMPARE(QFontMetrics(GV_GraphUiInfo::font()).horizontalAdvance(QStringLiteral("name")),
                 QFontMetrics(fresh).horizontalAdvance(QStringLiteral("name")));
    }

    void valuesAtStartUpEqualTheDefaults()
    {
        for (const Colour& each : colours)
            QCOMPARE(colour(each), each.start);
        QCOMPARE(GV_GraphUiInfo::font().family(), QStringLiteral("Courier"));
        QVERIFY(!graph().loadPreferences());
        for (const Colour& each : colours)
            QCOMPARE(colour(each), each.start);
        QCOMPARE(GV_GraphUiInfo::font().family(), QStringLiteral("Courier"));
    }

    void colourIsTakenFromItsPreference_data()
    {
        QTest::addColumn<std::size_t>("index");
        for (std::size_t i = 0; i < colours.size(); ++i)
            QTest::newRow(colours.at(i).key) << i;
    }
    void colourIsTakenFromItsPreference()
    {
        QFETCH(std::size_t, index);
        set(colours.at(index).key, 0x40102030);
        QCOMPARE(colour(colours.at(index)), colours.at(index).start);
        QVERIFY(graph().loadPreferences());
        QVERIFY(!graph().loadPreferences());
        for (std::size_t i = 0; i < colours.size(); ++i) {
            const QColor expected =
                i == index ? QColor(0x10, 0x20, 0x30, 0x40) : colours.at(i).start;
            QCOMPARE(colour(colours.at(i)), expected);
        }
        PR_Preference::instance()->reset(QString::fromLatin1(colours.at(index).key));
        QVERIFY(graph().loadPreferences());
        QCOMPARE(colour(colours.at(index)), colours.at(index).start);
    }

    void transparentColourIsTakenAsItIs()
    {
        set("ST_3DNODEVIEW_NODE_COLOR", 0x00455aa3);
        QVERIFY(graph().loadPreferences());
        QCOMPARE(colour(GV_UiNode::eBox, true, false, false), QColor(69, 90, 163, 0));
    }

    void colourSetToItsCurrentValueIsNoChange()
    {
        set("ST_3DNODEVIEW_NODE_COLOR", 0xff455aa3);
        QVERIFY(!graph().loadPreferences());
    }

    void severalColoursChangeAtOnce()
    {
        for (const Colour& each : colours)
            set(each.key, 0xff010203);
        QVERIFY(graph().loadPreferences());
        for (const Colour& each : colours)
            QCOMPARE(colour(each), QColor(1, 2, 3));
        QCOMPARE(colour(static_cast<GV_UiNode::eObjType>(2), true, false, false),
                 QColor(50, 50, 50));
    }

    void coloursAreSharedByAllGraphs()
    {
        ShownModels other;
        other.showOnly(QStringLiteral("Car"), emptyModel());
        set("ST_3DNODEVIEW_NODE_COLOR", 0xff010203);
        QVERIFY(graph().loadPreferences());
        QVERIFY(!other.graph.loadPreferences());
        QCOMPARE(other.graph.getColor(GV_UiNode::eBox, other.header(0), false), QColor(1, 2, 3));
        QCOMPARE(&other.graph.getColor(GV_UiNode::eBox, other.header(0), false),
                 &graph().getColor(GV_UiNode::eBox, _models->header(0), false));
    }

    void colourOfEveryState_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("editable");
        QTest::addColumn<bool>("selected");
        QTest::addColumn<bool>("hidden");
        QTest::addColumn<QColor>("expected");
        const QColor text(1, 0, 0), selectedText(2, 0, 0), box(3, 0, 0), selectedBox(4, 0, 0),
            hiddenBox(5, 0, 0), hiddenSelectedBox(6, 0, 0), disabledBox(7, 0, 0), other(50, 50, 50);
        for (int state = 0; state < 8; ++state) {
            const bool editable = state & 4, selected = state & 2, hidden = state & 1;
            const auto row = [&](const char* title, int type, const QColor& expected) {
                QTest::addRow("%s%s%s%s", editable ? "" : "locked ", selected ? "selected " : "",
                              hidden ? "hidden " : "", title)
                    << type << editable << selected << hidden << expected;
            };
            row("text", 0, editable && selected ? selectedText : text);
            row("box", 1,
                !editable  ? disabledBox
                : selected ? (hidden ? hiddenSelectedBox : selectedBox)
                           : (hidden ? hiddenBox : box));
            row("something else", 2, other);
        }
    }
    void colourOfEveryState()
    {
        QFETCH(int, type);
        QFETCH(bool, editable);
        QFETCH(bool, selected);
        QFETCH(bool, hidden);
        QRgb red = 0;
        for (const Colour& each : colours)
            set(each.key, qRgb(int(++red), 0, 0));
        QVERIFY(graph().loadPreferences());
        QTEST(colour(static_cast<GV_UiNode::eObjType>(type), editable, selected, hidden),
              "expected");
    }

    void nodesThatShareASelectedKeyAreColouredAlike()
    {
        _models->showOnly(QStringLiteral("Twins"),
                          model(key("a", {key("b", {geometry("s")}), key("b", {geometry("s")})})));
        graph().setFirstNodeWithNameSelected(QStringLiteral("b"));
        const std::vector<GV_UiNode*> nodes = preOrder(graph().rootUiNode());
        QCOMPARE(graph().getColor(GV_UiNode::eBox, nodes.at(2), false), QColor(90, 155, 240));
        QCOMPARE(graph().getColor(GV_UiNode::eBox, nodes.at(3), false), QColor(90, 155, 240));
        QCOMPARE(graph().getColor(GV_UiNode::eBox, nodes.at(1), false), QColor(69, 90, 163));
    }

    void fontIsTenPointsOfTheDefaultWeightAndUpright()
    {
        for (const char* family : {"Courier", "DejaVu Sans"}) {
            setFont(QString::fromLatin1(family));
            graph().loadPreferences();
            const QFont& font = GV_GraphUiInfo::font();
            QCOMPARE(font, QFont(QString::fromLatin1(family), 10));
            QCOMPARE(font.pointSize(), 10);
            QCOMPARE(font.weight(), QFont::Normal);
            QVERIFY(!font.italic());
        }
    }

    void fontIsTakenFromItsPreference()
    {
        setFont(QStringLiteral("DejaVu Sans"));
        QCOMPARE(GV_GraphUiInfo::font().family(), QStringLiteral("Courier"));
        QVERIFY(graph().loadPreferences());
        QCOMPARE(GV_GraphUiInfo::font().family(), QStringLiteral("DejaVu Sans"));
        QVERIFY(!graph().loadPreferences());
        PR_Preference::instance()->reset(QString::fromLatin1(fontKey));
        QVERIFY(graph().loadPreferences());
        QCOMPARE(GV_GraphUiInfo::font().family(), QStringLiteral("Courier"));
    }

    void fontSetToItsCurrentFamilyIsNoChange()
    {
        const QFont before = GV_GraphUiInfo::font();
        setFont(QStringLiteral("Courier"));
        QVERIFY(!graph().loadPreferences());
        QCOMPARE(GV_GraphUiInfo::font(), before);
        QVERIFY(GV_GraphUiInfo::font().isCopyOf(before));
    }

    void fontIsLoadedEvenWhenAColourChanged()
    {
        set("ST_3DNODEVIEW_TEXT_COLOR", 0xff010203);
        setFont(QStringLiteral("DejaVu Serif"));
        QVERIFY(graph().loadPreferences());
        QCOMPARE(GV_GraphUiInfo::font().family(), QStringLiteral("DejaVu Serif"));
        QVERIFY(!graph().loadPreferences());
    }
};

QTEST_MAIN(tst_GV_GraphUiInfoAppearance)
#include "tst_GV_GraphUiInfoAppearance.moc"
