// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXMainItem.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_GraphXViewQt.h"
#include "host/preferences/PR_Preference.h"
#include "host/scene/MO_ElementModule.h"
#include "tests/graphview/PaintedCalls.h"
#include "tests/graphview/RecordingPaintDevice.h"
#include "tests/graphview/ShownModels.h"
#include "tests/graphview/StageTest.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QPainter>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>

using namespace ModelBuilder;
using namespace PaintedCalls;

namespace {

const QString lineColorKey = QStringLiteral("ST_3DNODEVIEW_NETWORK_COLOR");
const QString fontKey = QStringLiteral("ST_3DNODEVIEW_FONT");

/// Knows one word, and only in the right context.
class OneWordTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        const bool known = qstrcmp(context, "GraphXView") == 0 && qstrcmp(source, "no_name") == 0;
        return known ? QStringLiteral("ohne Namen") : QString();
    }
};

} // namespace

/// The pens, names and colours that a graph is painted with.
class tst_GV_GraphXMainItemLook : public StageTest
{
    Q_OBJECT

private:
    /// What an item that draws everything paints with a pen of the given colour.
    QStringList painted(const QTransform& transform = {}, const QColor& penColor = Qt::black)
    {
        GV_GraphXMainItem item(controller(), true);
        return PaintedCalls::painted(item, transform, penColor);
    }

private slots:
    void cleanup()
    {
        for (const QString& key : {lineColorKey, fontKey})
            PR_Preference::instance()->reset(key);
        if (_stage)
            GV_GraphXMainItem(controller(), true).loadPreferences();
        _stage.reset();
    }

    void every_outline_line_and_name_is_a_hairline()
    {
        addSelected(robotModel());
        _stage->addElement(QStringLiteral("other"));
        GV_GraphXMainItem item(controller(), true);
        RecordingPaintDevice device;
        QPainter painter(&device);
        item.paint(&painter, nullptr, nullptr);
        QVERIFY(!device.calls().empty());
        for (const RecordedCall& call : device.calls()) {
            QVERIFY2(call.pen.isCosmetic(), qPrintable(call.description()));
            QVERIFY2(call.pen.widthF() <= 1, qPrintable(call.description()));
        }
    }

    void the_painters_own_pen_outlines_the_headers_after_a_name()
    {
        addSelected(model(shapedKey("body")));
        _stage->addElement(QStringLiteral("b"));
        _stage->addElement(QStringLiteral("c"));
        const QString red = QStringLiteral("#ffff0000");
        const QStringList calls = painted({}, Qt::red);
        QCOMPARE(calls.mid(4), header(0, "robot", selectedBox) + header(160, "b", normalBox, red) +
                                   header(320, "c", normalBox, red) +
                                   box(24, 34, "body", normalBox));
        QCOMPARE(calls.first(4), lines({ellipse(8.5, 25), line(10, 29, 15, 29),
                                        line(12.5, 33, 12.5, 46.5), line(12.5, 46.5, 24.5, 46.5)}));
    }

    void without_names_all_outlines_are_black()
    {
        _stage->addElement(QStringLiteral("a"));
        _stage->addElement(QStringLiteral("b"));
        const QStringList calls = painted(QTransform::fromScale(0.1, 0.1), Qt::red);
        QCOMPARE(calls, QStringList({header(0, "a", normalBox).first(),
                                     header(160, "b", normalBox).first()}));
    }

    void names_fade_in_with_the_level_of_detail_data()
    {
        QTest::addColumn<double>("level");
        QTest::addColumn<QString>("color");
        QTest::newRow("none at the first level") << 0.125 << QString();
        QTest::newRow("none below it") << 1.0 / 64 << QString();
        QTest::newRow("just above it") << 0.1251 << QStringLiteral("#ff7f7f7f");
        QTest::newRow("in between") << 0.3 << QStringLiteral("#ff525252");
        QTest::newRow("just below black") << 0.62 << QStringLiteral("#ff010101");
        QTest::newRow("black") << 0.625 << QStringLiteral("#ff000000");
        QTest::newRow("at full size") << 1.0 << QStringLiteral("#ff000000");
        QTest::newRow("enlarged") << 2.0 << QStringLiteral("#ff000000");
        QTest::newRow("enlarged most") << 16.0 << QStringLiteral("#ff000000");
    }

    void names_fade_in_with_the_level_of_detail()
    {
        QFETCH(double, level);
        QFETCH(QString, color);
        addSelected(model(shapedKey("body")));
        const QStringList texts = painted(QTransform(level, 0, 0, level, 2, 2))
                                      .filter(QRegularExpression(QStringLiteral("^text")));
        QCOMPARE(texts.size(), color.isEmpty() ? 0 : 2);
        for (const QString& text : texts)
            QVERIFY2(text.contains(QStringLiteral(" pen ") + color), qPrintable(text));
    }

    void nameless_nodes_are_labelled_in_the_users_language()
    {
        addSelected(model(shapedKey(noName)));
        _stage->addElement(QString(), robotModel());
        const auto boxes = [](const char* label) {
            return header(0, "robot", selectedBox) + header(160, label, normalBox) +
                   box(24, 34, label, normalBox);
        };
        QCOMPARE(painted().mid(4), boxes("no_name"));
        OneWordTranslator translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        QCOMPARE(painted().mid(4), boxes("ohne Namen"));
        QVERIFY(QCoreApplication::removeTranslator(&translator));
    }

    void a_shortened_name_is_written_shortened()
    {
        addSelected(model(shapedKey("a_name_that_is_much_too_long_for_its_box")));
        const GV_UiNode* node = *_stage->graph().rootUiNode()->childrenBegin();
        QVERIFY(!node->displayName().isEmpty());
        QCOMPARE(painted().mid(6), box(24, 34, node->displayName().toUtf8(), normalBox));
    }

    void the_colour_of_a_box_tells_its_state()
    {
        PR_Preference::instance()->setBoolValue(QStringLiteral("GV_EXTENDED_DISPLAY"), true);
        const auto reset = qScopeGuard(
            [] { PR_Preference::instance()->reset(QStringLiteral("GV_EXTENDED_DISPLAY")); });
        MO_ElementModule& element =
            addSelected(model(key("normal", {key("selected"), key("hidden"), key("both"),
                                             group("disabled"), group("robot")})));
        _stage->setVisible(element,
                           {QStringLiteral("hidden"), QStringLiteral("both"),
                            QStringLiteral("disabled"), QStringLiteral("robot")},
                           false);
        _stage->subSelect(element, {QStringLiteral("selected"), QStringLiteral("both")});
        const QStringList calls = painted();
        const qsizetype first = calls.indexOf(QRegularExpression(QStringLiteral("^rounded.*")));
        QCOMPARE(calls.mid(first),
                 header(0, "robot", hiddenSelectedBox) + box(24, 34, "normal", normalBox) +
                     box(48, 68, "selected", selectedBox) + box(48, 102, "hidden", hiddenBox) +
                     box(48, 136, "both", hiddenSelectedBox) +
                     box(48, 170, "disabled", disabledBox) + box(48, 204, "robot", disabledBox));
    }

    void the_lines_have_the_preferred_colour()
    {
        addSelected(model(shapedKey("body")));
        GV_GraphXMainItem item(controller(), true);
        QVERIFY(!item.loadPreferences());
        PR_Preference::instance()->setRgbaValue(lineColorKey, 0x80102030);
        // The view of the stage has taken the colour in, for all items.
        QVERIFY(!item.loadPreferences());
        QCOMPARE(painted().first(4),
                 lines({ellipse(8.5, 25), line(10, 29, 15, 29), line(12.5, 33, 12.5, 46.5),
                        line(12.5, 46.5, 24.5, 46.5)},
                       QStringLiteral("#80102030")));
    }

    void a_preference_counts_as_changed_once()
    {
        GV_GraphXMainItem item(nullptr, true);
        _stage.reset();
        QVERIFY(!item.loadPreferences());
        PR_Preference::instance()->setRgbaValue(lineColorKey, 0xffffffff);
        PR_Preference::instance()->setFontValue(fontKey, QStringLiteral("Courier"));
        QVERIFY(!item.loadPreferences());
        PR_Preference::instance()->setRgbaValue(lineColorKey, 0xff0000ff);
        QVERIFY(item.loadPreferences());
        QVERIFY(!item.loadPreferences());
        PR_Preference::instance()->setFontValue(fontKey, QStringLiteral("Helvetica"));
        QVERIFY(item.loadPreferences());
        QVERIFY(!item.loadPreferences());
        PR_Preference::instance()->reset(fontKey);
        PR_Preference::instance()->reset(lineColorKey);
        QVERIFY(item.loadPreferences());
        QVERIFY(!item.loadPreferences());
    }
};

QTEST_MAIN(tst_GV_GraphXMainItemLook)
#include "tst_GV_GraphXMainItemLook.moc"
