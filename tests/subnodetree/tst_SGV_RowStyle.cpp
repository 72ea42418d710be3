// SPDX-License-Identifier: MIT

#include "host/models/TD_CelVq3d.h"
#include "host/widgets/WID_IconManager.h"
#include "subnodetree/SGV_GraphItem.h"
#include "subnodetree/SGV_GraphModel.h"
#include "subnodetree/SGV_StyleDelegate.h"
#include "tests/graphview/ModelBuilder.h"

#include <QApplication>
#include <QIcon>
#include <QMetaProperty>
#include <QRegularExpression>
#include <QTest>

using namespace ModelBuilder;

namespace {

constexpr quint32 disabled = SGV_GraphItem::Disabled;
constexpr quint32 hidden = SGV_GraphItem::ShapeHidden;
constexpr quint32 both = disabled | hidden;

/// What a colour holds, whether a screen can show it or not.
QList<int> components(const QColor& color)
{
    constexpr float most = 255;
    return {qRound(color.redF() * most), qRound(color.greenF() * most),
            qRound(color.blueF() * most), color.alpha()};
}

QList<QColor> allColors(const SGV_StyleDelegate& style)
{
    return {style.subnodeDefaultBackgroundColor(), style.subnodeDefaultTextColor(),
            style.subnodeBaseTextColor(), style.subnodeDisabledTextColor(),
            style.subnodeHiddenShapeTextColor()};
}

void setAllColors(const QList<QColor>& colors)
{
    SGV_StyleDelegate& style = SGV_StyleDelegate::instance();
    style.setSubnodeDefaultBackgroundColor(colors.at(0));
    style.setSubnodeDefaultTextColor(colors.at(1));
    style.setSubnodeBaseTextColor(colors.at(2));
    style.setSubnodeDisabledTextColor(colors.at(3));
    style.setSubnodeHiddenShapeTextColor(colors.at(4));
}

enum class Kind
{
    Key,
    KeyBelowADisabledOne,
    Plain
};

/// The text colour of a row in the given state.
QColor textColor(quint32 state, Kind kind = Kind::Key)
{
    const Part row = kind == Kind::Plain ? group("row") : key("row");
    const auto shown = model(key("top", {row}));
    SGV_GraphModel model;
    model.setDebugMode(true);
    model.setRootNode(shown->rootNodePtr());
    SGV_GraphModel::VisibilityData states{{AT_ModelNodeKey(QStringLiteral("row")), state}};
    if (kind == Kind::KeyBelowADisabledOne)
        states[AT_ModelNodeKey(QStringLiteral("top"))] = disabled;
    model.setVisibilityData(states);
    const QModelIndex index = model.findIndex(AT_ModelNodeKey(QStringLiteral("row")));
    return index.data(Qt::ForegroundRole).value<QColor>();
}

struct Icons
{
    QIcon shape;
    QIcon other;
};

Icons rowIcons()
{
    const auto shown = model(group("g", {key("a", {geometry("s")}), key("b")}));
    SGV_GraphModel model;
    model.setRootNode(shown->rootNodePtr());
    return {model.index(0, 0).data(Qt::DecorationRole).value<QIcon>(),
            model.index(1, 0).data(Qt::DecorationRole).value<QIcon>()};
}

QImage picture(const QIcon& icon)
{
    return icon.pixmap(QSize(24, 24)).toImage();
}

} // namespace

class tst_SGV_RowStyle : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The first use of the delegate and of the icons, which nothing can repeat.
        qApp->setStyleSheet(QStringLiteral("SGV_StyleDelegate {"
                                           "qproperty-subnodeDefaultBackgroundColor: #ff0000;"
                                           "qproperty-subnodeDefaultTextColor: #112233;"
                                           "qproperty-subnodeBaseTextColor: #445566;"
                                           "qproperty-subnodeDisabledTextColor: #010203;"
                                           "qproperty-subnodeHiddenShapeTextColor: #102030; }"));
        _firstIcons = rowIcons();
        _sheetTextColor = textColor(0);
        _sheetColors = allColors(SGV_StyleDelegate::instance());
    }

    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
        setAllColors({QColor(Qt::red), QColor(10, 20, 30), QColor(100, 110, 120),
                      QColor(50, 60, 70), QColor(20, 0, 100)});
    }

    void style_sheet_set_before_the_first_use_gives_the_colors()
    {
        QCOMPARE(_sheetColors, (QList<QColor>{QColor(0xff, 0, 0), QColor(0x11, 0x22, 0x33),
                                              QColor(0x44, 0x55, 0x66), QColor(1, 2, 3),
                                              QColor(0x10, 0x20, 0x30)}));
        QCOMPARE(_sheetTextColor, QColor(0x11, 0x22, 0x33));
    }

    void there_is_one_delegate_that_is_never_shown()
    {
        SGV_StyleDelegate& style = SGV_StyleDelegate::instance();
        QCOMPARE(&SGV_StyleDelegate::instance(), &style);
        QCOMPARE(style.parent(), nullptr);
        textColor(both);
        QVERIFY(!style.isVisible());
        QVERIFY(style.testAttribute(Qt::WA_WState_Polished));
    }

    void colors_are_properties_in_a_fixed_order()
    {
        const QMetaObject& meta = SGV_StyleDelegate::staticMetaObject;
        const QStringList names{QStringLiteral("subnodeDefaultBackgroundColor"),
                                QStringLiteral("subnodeDefaultTextColor"),
                                QStringLiteral("subnodeBaseTextColor"),
                                QStringLiteral("subnodeDisabledTextColor"),
                                QStringLiteral("subnodeHiddenShapeTextColor")};
        QCOMPARE(meta.propertyCount() - meta.propertyOffset(), int(names.size()));
        SGV_StyleDelegate& style = SGV_StyleDelegate::instance();
        for (int i = 0; i < names.size(); ++i) {
            const QMetaProperty property = meta.property(meta.propertyOffset() + i);
            QCOMPARE(QString::fromLatin1(property.name()), names.at(i));
            QCOMPARE(property.typeId(), int(QMetaType::QColor));
            QCOMPARE(property.read(&style).value<QColor>(), allColors(style).at(i));
            QVERIFY(property.write(&style, QColor(i, 2, 3)));
            QCOMPARE(allColors(style).at(i), QColor(i, 2, 3));
        }
    }

    void new_delegate_has_invalid_colors()
    {
        const SGV_StyleDelegate fresh;
        for (const QColor& color : allColors(fresh))
            QVERIFY(!color.isValid());
    }

    void rows_without_style_sheet_have_invalid_colors()
    {
        setAllColors(QList<QColor>(5));
        QVERIFY(!textColor(0).isValid());
        QVERIFY(!textColor(0, Kind::KeyBelowADisabledOne).isValid());
        QVERIFY(!textColor(0, Kind::Plain).isValid());
        QVERIFY(!textColor(4).isValid());
    }

    void invalid_offsets_count_as_black()
    {
        SGV_StyleDelegate::instance().setSubnodeDisabledTextColor(QColor());
        QCOMPARE(components(textColor(disabled)), (QList<int>{100, 110, 120, 255}));
    }

    void text_colors_data()
    {
        QTest::addColumn<quint32>("state");
        QTest::addColumn<QList<int>>("sum");
        QTest::newRow("nothing off") << 0U << QList<int>{10, 20, 30};
        QTest::newRow("disabled") << disabled << QList<int>{150, 170, 190};
        QTest::newRow("shape hidden") << hidden << QList<int>{120, 110, 220};
        QTest::newRow("both, over the most") << both << QList<int>{170, 170, 290};
        QTest::newRow("unknown state") << 4U << QList<int>{100, 110, 120};
    }
    void text_colors()
    {
        QFETCH(quint32, state);
        QFETCH(QList<int>, sum);
        QCOMPARE(components(textColor(state)), sum + QList<int>{255});
        QCOMPARE(components(textColor(state, Kind::KeyBelowADisabledOne)), sum + QList<int>{127});
        QCOMPARE(components(textColor(state, Kind::Plain)), sum + QList<int>{127});
    }

    void sums_up_to_the_most_are_ordinary_colors()
    {
        SGV_StyleDelegate& style = SGV_StyleDelegate::instance();
        style.setSubnodeBaseTextColor(QColor(100, 100, 100));
        style.setSubnodeDisabledTextColor(QColor(155, 155, 154));
        QCOMPARE(textColor(disabled), QColor(255, 255, 254, 255));
        QCOMPARE(textColor(disabled).spec(), QColor::Rgb);
    }

    void sums_over_the_most_are_kept_and_valid()
    {
        setAllColors(QList<QColor>(5, QColor(Qt::white)));
        QColor color = textColor(disabled);
        QVERIFY(color.isValid());
        QVERIFY(color.redF() > 1.99F);
        QCOMPARE(components(color), (QList<int>{510, 510, 510, 255}));
        color = textColor(both);
        QVERIFY(color.isValid());
        QCOMPARE(components(color), (QList<int>{765, 765, 765, 255}));
        // What a screen makes of it.
        QCOMPARE(color.rgba(), QColor(Qt::white).rgba());
        color = textColor(both, Kind::KeyBelowADisabledOne);
        QCOMPARE(components(color), (QList<int>{765, 765, 765, 127}));
    }

    void one_component_over_the_most_leaves_the_others_as_they_are()
    {
        SGV_StyleDelegate& style = SGV_StyleDelegate::instance();
        style.setSubnodeBaseTextColor(QColor(255, 7, 0));
        style.setSubnodeDisabledTextColor(QColor(1, 1, 0));
        const QColor color = textColor(disabled);
        QVERIFY(color.isValid());
        QVERIFY(color.redF() > 1.0F);
        QCOMPARE(components(color), (QList<int>{256, 8, 0, 255}));
    }

    void alpha_of_the_style_sheet_is_kept_without_offsets_and_lost_with_them()
    {
        SGV_StyleDelegate& style = SGV_StyleDelegate::instance();
        style.setSubnodeDefaultTextColor(QColor(1, 2, 3, 101));
        style.setSubnodeBaseTextColor(QColor(1, 2, 3, 99));
        QCOMPARE(textColor(0).alpha(), 101);
        QCOMPARE(textColor(0, Kind::KeyBelowADisabledOne).alpha(), 50);
        QCOMPARE(textColor(0, Kind::Plain).alpha(), 50);
        QCOMPARE(textColor(4).alpha(), 99);
        QCOMPARE(textColor(4, Kind::Plain).alpha(), 49);
        QCOMPARE(textColor(disabled).alpha(), 255);
        QCOMPARE(textColor(hidden, Kind::Plain).alpha(), 127);
    }

    void alpha_is_halved_once_for_two_reasons()
    {
        const auto shown = model(key("top", {key("mid", {group("row")})}));
        SGV_GraphModel model;
        model.setDebugMode(true);
        model.setRootNode(shown->rootNodePtr());
        model.setVisibilityData({{AT_ModelNodeKey(QStringLiteral("top")), disabled},
                                 {AT_ModelNodeKey(QStringLiteral("mid")), disabled}});
        const QModelIndex row = model.findIndex(AT_ModelNodeKey(QStringLiteral("row")));
        QCOMPARE(components(row.data(Qt::ForegroundRole).value<QColor>()),
                 (QList<int>{10, 20, 30, 127}));
    }

    void colors_of_other_notations_are_added_by_their_components()
    {
        SGV_StyleDelegate::instance().setSubnodeDisabledTextColor(QColor(50, 60, 70).toHsv());
        QCOMPARE(components(textColor(disabled)), (QList<int>{150, 170, 190, 255}));
    }

    void subnodes_with_a_shape_have_an_icon_of_their_own()
    {
        QVERIFY(!_firstIcons.shape.isNull());
        QVERIFY(!_firstIcons.other.isNull());
        QVERIFY(picture(_firstIcons.shape) != picture(_firstIcons.other));
    }

    void icons_are_blended_with_the_background_of_the_first_use()
    {
        const auto blended = [](const char* resource) {
            return picture(WID_IconManager::instance().addBlendedIcon(QString::fromLatin1(resource),
                                                                      QColor(Qt::red)));
        };
        QCOMPARE(picture(_firstIcons.shape), blended("3dgraph/geometry.svg"));
        QCOMPARE(picture(_firstIcons.other), blended("3dgraph/transformation.svg"));
    }

    void icons_are_made_once()
    {
        SGV_StyleDelegate::instance().setSubnodeDefaultBackgroundColor(QColor(Qt::green));
        const Icons later = rowIcons();
        QCOMPARE(later.shape.cacheKey(), _firstIcons.shape.cacheKey());
        QCOMPARE(later.other.cacheKey(), _firstIcons.other.cacheKey());
    }

    void later_style_sheet_reaches_the_colors()
    {
        const QString sheet =
            QStringLiteral("SGV_StyleDelegate { qproperty-subnodeDefaultTextColor: %1; }");
        qApp->setStyleSheet(sheet.arg(QStringLiteral("#405060")));
        QCOMPARE(textColor(0), QColor(0x40, 0x50, 0x60));
        qApp->setStyleSheet(sheet.arg(QStringLiteral("#708090")));
        QCOMPARE(textColor(0), QColor(0x70, 0x80, 0x90));
    }

    void first_style_sheet_may_come_after_the_first_use()
    {
        qApp->setStyleSheet(QString());
        SGV_StyleDelegate fresh;
        fresh.ensurePolished();
        QVERIFY(!fresh.subnodeBaseTextColor().isValid());
        qApp->setStyleSheet(
            QStringLiteral("SGV_StyleDelegate { qproperty-subnodeBaseTextColor: #405060; }"));
        fresh.ensurePolished();
        QCOMPARE(fresh.subnodeBaseTextColor(), QColor(0x40, 0x50, 0x60));
    }

    void colors_stay_when_the_style_sheet_goes()
    {
        qApp->setStyleSheet(
            QStringLiteral("SGV_StyleDelegate { qproperty-subnodeDefaultTextColor: #405060; }"));
        qApp->setStyleSheet(QString());
        QCOMPARE(textColor(0), QColor(0x40, 0x50, 0x60));
    }

private:
    QList<QColor> _sheetColors;
    QColor _sheetTextColor;
    Icons _firstIcons;
};

QTEST_MAIN(tst_SGV_RowStyle)
#include "tst_SGV_RowStyle.moc"
