// SPDX-License-Identifier: MIT
#include "host/actions/AC_Manager.h"
#include "host/layout/TUWidgetLayoutView.h"
#include "host/widgets/UT_Screen.h"
#include "host/widgets/WID_GridLayout.h"
#include "host/widgets/WID_HBoxLayout.h"
#include "host/widgets/WID_IconManager.h"
#include "host/widgets/WID_VBoxLayout.h"

#include <QGuiApplication>
#include <QImage>
#include <QMenu>
#include <QPointer>
#include <QRegularExpression>
#include <QScreen>
#include <QTest>
#include <array>
#include <memory>

namespace {

class Panel : public TUWidgetLayoutView
{
public:
    Panel(AC_Manager* manager, QWidget* parent)
        : TUWidgetLayoutView(manager, QStringLiteral("Panel"), parent, QStringLiteral("panel"),
                             Qt::WindowFlags())
    {
    }

    TULayoutView* clone(QWidget* parent) const override
    {
        return new Panel(actionManager(), parent);
    }
    bool hasMenu() override { return true; }
};

const QByteArray definitions = R"(<definitions>
  <action id="RING" responder="panel" slot="onRing" text="Ring"/>
  <menu id="VIEW" text="View"> <item action="RING"/> </menu>
  <menu id="POPUP" text="Popup"> <item action="RING"/> <separator/> <item action="RING"/> </menu>
</definitions>)";

QIcon icon(const QString& name, const QColor& background = QColor())
{
    return WID_IconManager::instance().addBlendedIcon(name, background);
}

QImage imageOf(const QIcon& icon, int size, qreal scale = 1.0)
{
    return icon.pixmap(QSize(size, size), scale)
        .toImage()
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// Whether each pixel is as opaque in one image as in the other.
bool haveTheSameOutline(const QImage& a, const QImage& b)
{
    return a.convertToFormat(QImage::Format_Alpha8) == b.convertToFormat(QImage::Format_Alpha8);
}

/// How far the pixels are from the colour, each counted as much as it is opaque.
double distance(const QImage& image, const QColor& colour)
{
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            sum += pixel.alphaF() *
                   (qAbs(pixel.redF() - colour.redF()) + qAbs(pixel.greenF() - colour.greenF()) +
                    qAbs(pixel.blueF() - colour.blueF()));
        }
    }
    return sum;
}

} // namespace

class tst_widget_kit : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(".?")); }

    void a_column_leaves_no_gaps()
    {
        QWidget window;
        auto* layout = new WID_VBoxLayout(&window);
        QCOMPARE(window.layout(), layout);
        QWidget top, bottom;
        layout->addWidget(&top);
        layout->addWidget(&bottom);
        layout->setGeometry(QRect(0, 0, 50, 100));
        QCOMPARE(top.geometry().united(bottom.geometry()), QRect(0, 0, 50, 100));
        QCOMPARE(bottom.y(), top.y() + top.height());
        top.setParent(nullptr);
        bottom.setParent(nullptr);
    }

    void a_grid_leaves_no_gaps()
    {
        QWidget window;
        auto* layout = new WID_GridLayout(&window);
        QCOMPARE(window.layout(), layout);
        std::array<QWidget, 4> cells;
        for (int i = 0; i < 4; ++i)
            layout->addWidget(&cells[std::size_t(i)], i / 2, i % 2);
        layout->setGeometry(QRect(0, 0, 60, 40));
        QCOMPARE(cells[0].geometry(), QRect(0, 0, 30, 20));
        QCOMPARE(cells[3].geometry(), QRect(30, 20, 30, 20));
        for (QWidget& cell : cells)
            cell.setParent(nullptr);
    }

    void a_row_has_the_same_margin_on_all_sides()
    {
        QWidget window;
        auto* layout = new WID_HBoxLayout(&window);
        QCOMPARE(window.layout(), layout);
        layout->setMargin(7);
        QCOMPARE(layout->contentsMargins(), QMargins(7, 7, 7, 7));
        layout->setMargin(0);
        QVERIFY(layout->contentsMargins().isNull());
    }

    void layouts_may_lie_in_each_other()
    {
        QWidget window;
        WID_VBoxLayout column(&window);
        auto* row = new WID_HBoxLayout;
        auto* grid = new WID_GridLayout;
        auto* inner = new WID_VBoxLayout;
        QVERIFY(!row->parentWidget() && !grid->parentWidget() && !inner->parentWidget());
        column.addLayout(row);
        row->addLayout(grid);
        grid->addLayout(inner, 0, 0);
        QCOMPARE(inner->parentWidget(), &window);
        QVERIFY(inner->contentsMargins().isNull());
        QCOMPARE(inner->spacing(), 0);
    }

    void the_screen_scales_by_its_dots_per_inch()
    {
        const double scale = UT_Screen::getMainScreen().scaleFactor();
        QVERIFY(scale > 0.0);
        QCOMPARE(scale * 96.0, QGuiApplication::primaryScreen()->logicalDotsPerInch());
    }

    void the_icon_manager_is_one()
    {
        QCOMPARE(&WID_IconManager::instance(), &WID_IconManager::instance());
    }

    void gives_out_its_icons_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("scalable");
        QTest::newRow("geometry") << QStringLiteral("3dgraph/geometry.svg") << true;
        QTest::newRow("transformation") << QStringLiteral("3dgraph/transformation.svg") << true;
        QTest::newRow("find") << QStringLiteral("library/find.png") << false;
    }
    void gives_out_its_icons()
    {
        QFETCH(const QString, name);
        QFETCH(const bool, scalable);
        for (const QIcon& each : {icon(name), icon(name, Qt::red)}) {
            QVERIFY(!each.isNull());
            for (const int size : {16, 24, 32, 48}) {
                QCOMPARE(imageOf(each, size).size(), QSize(size, size));
                if (scalable)
                    QCOMPARE(imageOf(each, size, 2.0).size(), QSize(2 * size, 2 * size));
            }
        }
    }

    void blending_draws_the_colour_into_the_icon_data() { gives_out_its_icons_data(); }
    void blending_draws_the_colour_into_the_icon()
    {
        QFETCH(const QString, name);
        const QIcon plain = icon(name);
        for (const QColor& background : {QColor(Qt::red), QColor(Qt::black), QColor(Qt::white)}) {
            for (const int size : {16, 24, 32, 48}) {
                const QImage before = imageOf(plain, size);
                const QImage after = imageOf(icon(name, background), size);
                QVERIFY2(before != after, qPrintable(background.name()));
                QVERIFY(haveTheSameOutline(before, after));
                const double left = distance(after, background) / distance(before, background);
                QVERIFY2(left > 0.5 && left < 1.0, qPrintable(QString::number(left)));
            }
        }
        QVERIFY(imageOf(icon(name, Qt::red), 32) != imageOf(icon(name, Qt::blue), 32));
    }

    void an_invalid_colour_leaves_an_icon_as_it_is_data() { gives_out_its_icons_data(); }
    void an_invalid_colour_leaves_an_icon_as_it_is()
    {
        QFETCH(const QString, name);
        const QIcon original(QStringLiteral(":/icons/") + name);
        for (const int size : {16, 24, 32, 48})
            QCOMPARE(imageOf(icon(name), size), imageOf(original, size));
    }

    void an_unknown_name_gives_no_icon_data()
    {
        QTest::addColumn<QColor>("background");
        for (const char* name : {"unknown", "unknown.svg", "3dgraph/unknown.png", "3dgraph", ""}) {
            QTest::addRow("plain %s", name) << QColor();
            QTest::addRow("blended %s", name) << QColor(Qt::red);
        }
    }
    void an_unknown_name_gives_no_icon()
    {
        QFETCH(const QColor, background);
        const QString name = QString::fromLatin1(QTest::currentDataTag()).section(u' ', 1);
        QVERIFY(icon(name, background).isNull());
    }

    void a_view_is_its_own_widget_under_its_names()
    {
        QWidget parent;
        Panel panel(nullptr, &parent);
        QCOMPARE(panel.widget(), static_cast<QWidget*>(&panel));
        QCOMPARE(panel.viewName(), QStringLiteral("Panel"));
        QCOMPARE(panel.responderIdentity(), QStringLiteral("panel"));
        QCOMPARE(panel.parentWidget(), &parent);
        QVERIFY(panel.toolbar().isNull());
    }

    void a_view_registers_with_the_manager_beside_its_clones()
    {
        AC_Manager manager;
        QWidget parent;
        auto* panel = new Panel(&manager, &parent);
        QCOMPARE(panel->clone(&parent)->viewName(), QStringLiteral("Panel"));
        QCOMPARE(manager.responders(QStringLiteral("panel")).size(), 2u);
        delete panel;
        QCOMPARE(manager.responders(QStringLiteral("panel")).size(), 1u);
    }

    void a_view_has_no_menu_unless_one_is_set_and_defined()
    {
        AC_Manager manager;
        Panel panel(&manager, nullptr);
        QVERIFY(!panel.menu(TULayoutView::eViewMenu));
        panel.setMenu(&manager, "VIEW", TULayoutView::eViewMenu);
        QVERIFY(!panel.menu(TULayoutView::eViewMenu));
        panel.setMenu(nullptr, "VIEW", TULayoutView::eViewMenu);
        QVERIFY(!panel.menu(TULayoutView::eViewMenu));
        QVERIFY(!panel.menu(TULayoutView::ePopupMenu));
    }

    void a_view_makes_each_of_its_menus_once()
    {
        AC_Manager manager;
        Panel panel(&manager, nullptr);
        panel.setMenu(&manager, "VIEW", TULayoutView::eViewMenu);
        panel.setMenu(&manager, "POPUP", TULayoutView::ePopupMenu);
        QVERIFY(!panel.menu(TULayoutView::eViewMenu));
        // Definitions that come later count.
        QVERIFY(manager.loadDefinitions(definitions));
        const QMenu* view = panel.menu(TULayoutView::eViewMenu);
        const QMenu* popup = panel.menu(TULayoutView::ePopupMenu);
        QVERIFY(view && popup && view != popup);
        QCOMPARE(view->title(), QStringLiteral("View"));
        QCOMPARE(view->actions(), QList<QAction*>{manager.action(QStringLiteral("RING"))});
        QCOMPARE(popup->title(), QStringLiteral("Popup"));
        QCOMPARE(panel.menu(TULayoutView::eViewMenu), view);
        QCOMPARE(panel.menu(TULayoutView::ePopupMenu), popup);
    }

    void a_menu_set_again_replaces_the_other_and_dies_with_the_view()
    {
        AC_Manager manager;
        QVERIFY(manager.loadDefinitions(definitions));
        auto panel = std::make_unique<Panel>(&manager, nullptr);
        panel->setMenu(&manager, "VIEW", TULayoutView::eViewMenu);
        const QPointer<QMenu> first = panel->menu(TULayoutView::eViewMenu);
        QVERIFY(first);
        panel->setMenu(&manager, "POPUP", TULayoutView::eViewMenu);
        QVERIFY(!first);
        const QPointer<QMenu> second = panel->menu(TULayoutView::eViewMenu);
        QCOMPARE(second->title(), QStringLiteral("Popup"));
        panel.reset();
        QVERIFY(!second);
    }
};

QTEST_MAIN(tst_widget_kit)
#include "tst_widget_kit.moc"
