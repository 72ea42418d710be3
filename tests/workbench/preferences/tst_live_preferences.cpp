// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXViewQt.h"
#include "host/scene/MO_ElementModule.h"
#include "subnodetree/SGV_StyleDelegate.h"
#include "tests/graphview/GraphStage.h"
#include "tests/workbench/preferences/PreferencesDialogTest.h"
#include "workbench/preferences/PreferenceEdits.h"
#include "workbench/preferences/ThemeSwitch.h"

#include <OpenSG/OSGBaseFunctions.h>

/// The dialog beside a graph view with a model in it.
class tst_live_preferences : public PreferencesDialogTest
{
    Q_OBJECT

private:
    std::unique_ptr<GraphStage> _stage;

    GV_GraphXViewQt& view() { return _stage->view(); }
    QColor boxColor()
    {
        return _stage->graph().getColor(GV_UiNode::eBox, _stage->node(QStringLiteral("arm")),
                                        false);
    }
    int pixelsOf(QRgb color)
    {
        const QImage picture = view().grab().toImage();
        int count = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                count += picture.pixel(x, y) == color;
        }
        return count;
    }

private slots:
    void initTestCase()
    {
        useOwnStore();
        QVERIFY(osg::osgInit(0, nullptr));
    }
    void init()
    {
        startEmpty();
        _stage = std::make_unique<GraphStage>();
        MO_Node* robot = &_stage->addElement(QStringLiteral("robot"));
        _stage->select({robot});
        view().resize(600, 400);
        view().show();
        QVERIFY(QTest::qWaitForWindowExposed(&view()));
    }
    void cleanup()
    {
        _dialog.reset();
        _stage.reset();
    }

    void colours_show_in_the_view_while_they_are_chosen()
    {
        QVERIFY(open());
        connect(_dialog.get(), &PreferencesDialog::applied, &view(), &GV_GraphXViewQt::refreshView);
        QCOMPARE(boxColor(), QColor(69, 90, 163));
        click(control(QStringLiteral("ST_3DNODEVIEW_NODE_COLOR")));
        QTRY_VERIFY(colorDialog());
        colorDialog()->setCurrentColor(QColor(0xc01020));
        QCOMPARE(boxColor(), QColor(0xc01020));
        QTRY_VERIFY(pixelsOf(0xffc01020) > 1000);
        _dialog->reject();
        QCOMPARE(boxColor(), QColor(69, 90, 163));
        QCOMPARE(pixelsOf(0xffc01020), 0);
    }

    void lines_and_background_show_in_the_view()
    {
        QVERIFY(open());
        PreferenceEdits edits;
        edits.set(key("ST_3DNODEVIEW_NETWORK_COLOR"), 0xff01ff02U);
        edits.set(key("ST_3DNODEVIEW_BACKGROUND_COLOR"), 0xff010203U);
        view().refreshView();
        QVERIFY(pixelsOf(0xff01ff02) > 20);
        QVERIFY(pixelsOf(0xff010203) > 100000);
        QCOMPARE(view().backgroundBrush().color(), QColor(1, 2, 3));
    }

    void the_font_shows_in_the_view()
    {
        QVERIFY(open(PreferenceKey::GraphView));
        QCOMPARE(GV_GraphUiInfo::font().family(), QStringLiteral("Courier"));
        auto* box = control<QComboBox>(QStringLiteral("ST_3DNODEVIEW_FONT"));
        box->setFocus();
        type(Qt::Key_Down);
        QVERIFY(GV_GraphUiInfo::font().family() != QLatin1String("Courier"));
        QCOMPARE(GV_GraphUiInfo::font().family(), box->currentText());
        type(Qt::Key_Escape);
        QCOMPARE(GV_GraphUiInfo::font().family(), QStringLiteral("Courier"));
    }

    void the_mode_that_a_view_keeps_meanwhile_survives_cancelling()
    {
        QVERIFY(open(PreferenceKey::GraphView));
        control<QSpinBox>(QStringLiteral("WHEEL_ZOOM_THRESHOLD"))->setValue(90);
        view().onActionToggleDislayMode();
        QVERIFY(control<QCheckBox>(QStringLiteral("GV_EXTENDED_DISPLAY"))->isChecked());
        type(Qt::Key_Escape);
        QCOMPARE(storedKeys(), QStringList{QStringLiteral("GV_EXTENDED_DISPLAY")});
    }

    void the_theme_shows_at_once_and_goes_when_it_is_cancelled()
    {
        const ThemeSwitch theme;
        const SGV_StyleDelegate& rows = SGV_StyleDelegate::instance();
        const QColor lightText = rows.subnodeDefaultTextColor();
        QVERIFY(lightText.isValid());
        QVERIFY(open(PreferenceKey::Appearance));
        control(QStringLiteral("WORKBENCH_THEME"))->setFocus();
        type(Qt::Key_End);
        QCOMPARE(theme.kind(), Theme::Dark);
        QCOMPARE(Theme::kindOf(_dialog->palette()), Theme::Dark);
        QVERIFY(rows.subnodeDefaultTextColor().lightness() > 128);
        type(Qt::Key_Escape);
        QCOMPARE(theme.kind(), Theme::Light);
        QCOMPARE(Theme::kindOf(view().palette()), Theme::Light);
        QCOMPARE(rows.subnodeDefaultTextColor(), lightText);
        // The colours of the graph are preferences of their own.
        QCOMPARE(boxColor(), QColor(69, 90, 163));
    }
};

QTEST_MAIN(tst_live_preferences)
#include "tst_live_preferences.moc"
