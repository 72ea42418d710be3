// SPDX-License-Identifier: MIT

#include "workbench/preferences/WindowLayout.h"

#include <QDockWidget>
#include <QGuiApplication>
#include <QMainWindow>
#include <QRegularExpression>
#include <QScreen>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>
#include <memory>

namespace {

constexpr int version = 3;

/// A window with two docks and a tool bar.
struct Window : public QMainWindow
{
    QDockWidget* left = addDock("left", Qt::LeftDockWidgetArea);
    QDockWidget* right = addDock("right", Qt::RightDockWidgetArea);
    QToolBar* bar = new QToolBar(this);

    Window()
    {
        setCentralWidget(new QWidget);
        bar->setObjectName(QStringLiteral("bar"));
        addToolBar(bar);
        resize(600, 400);
        resizeDocks({left, right}, {150, 120}, Qt::Horizontal);
    }
    QDockWidget* addDock(const char* name, Qt::DockWidgetArea area)
    {
        auto* dock = new QDockWidget(QString::fromLatin1(name), this);
        dock->setObjectName(QString::fromLatin1(name));
        dock->setWidget(new QWidget);
        addDockWidget(area, dock);
        return dock;
    }
    bool appear()
    {
        show();
        return QTest::qWaitForWindowExposed(this);
    }
    /// Where everything is, in words.
    QString arrangement()
    {
        QCoreApplication::processEvents();
        QString text = QStringLiteral("%1x%2").arg(width()).arg(height());
        for (QDockWidget* dock : {left, right}) {
            text += QStringLiteral(" %1:").arg(dockWidgetArea(dock));
            text += dock->isHidden() ? QStringLiteral("hidden") : QString::number(dock->width());
            if (dock->isFloating())
                text += QLatin1String(" floating");
        }
        return text + QStringLiteral(" bar:%1").arg(toolBarArea(bar));
    }
    void rearrange()
    {
        resize(700, 500);
        addDockWidget(Qt::RightDockWidgetArea, left);
        right->hide();
        resizeDocks({left}, {222}, Qt::Horizontal);
        addToolBar(Qt::BottomToolBarArea, bar);
    }
};

} // namespace

class tst_window_layout : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir _folder;
    QString _file;
    std::unique_ptr<QSettings> _store;

    /// Reads the file anew, as the next run does.
    void startNextRun()
    {
        _store.reset();
        _store = std::make_unique<QSettings>(_file, QSettings::IniFormat);
    }
    QString keepRearranged(int ofVersion = version)
    {
        Window window;
        WindowLayout layout(window, _store.get(), ofVersion);
        if (!window.appear())
            return {};
        window.rearrange();
        QString arrangement = window.arrangement();
        layout.save();
        return arrangement;
    }

private slots:
    void init()
    {
        QTest::failOnWarning(
            QRegularExpression(QStringLiteral("^(?!This plugin does not support ).")));
        _file = _folder.filePath(QString::fromLatin1(QTest::currentTestFunction()));
        startNextRun();
    }
    void cleanup() { _store.reset(); }

    void comes_back_in_the_next_run()
    {
        const QString rearranged = keepRearranged();
        startNextRun();
        Window window;
        WindowLayout layout(window, _store.get(), version);
        const QString first = window.arrangement();
        QVERIFY(layout.restore());
        QVERIFY(window.appear());
        QCOMPARE(window.arrangement(), rearranged);
        QVERIFY(rearranged != first);
    }

    void nothing_stored_changes_nothing()
    {
        Window window;
        WindowLayout layout(window, _store.get(), version);
        QVERIFY(!layout.restore());
        QCOMPARE(window.size(), QSize(600, 400));
    }

    void without_a_store_nothing_is_kept()
    {
        Window window;
        WindowLayout layout(window, nullptr, version);
        window.rearrange();
        layout.save();
        QVERIFY(!layout.restore());
        QCOMPARE(window.size(), QSize(700, 500));
        layout.reset();
        QCOMPARE(window.size(), QSize(600, 400));
    }

    void another_version_is_ignored()
    {
        keepRearranged(version + 1);
        Window window;
        WindowLayout layout(window, _store.get(), version);
        QVERIFY(!layout.restore());
        QCOMPARE(window.size(), QSize(600, 400));
    }

    void a_damaged_layout_is_ignored_data()
    {
        QTest::addColumn<QString>("key");
        for (const char* key : {"geometry", "state", "checksum", "version"})
            QTest::newRow(key) << QStringLiteral("WindowLayout/") + QLatin1String(key);
    }
    void a_damaged_layout_is_ignored()
    {
        QFETCH(QString, key);
        keepRearranged();
        const QVariant whole = _store->value(key);
        QVERIFY(whole.isValid());
        const QByteArray bytes = whole.toByteArray();
        QByteArray flipped = bytes;
        flipped[bytes.size() / 2] = char(flipped.at(bytes.size() / 2) ^ 1);
        const QVariantList damages{QVariant(), QByteArray(), bytes.chopped(1), flipped,
                                   QStringList{"a", "b"}};
        for (const QVariant& damage : damages) {
            _store->setValue(key, damage);
            startNextRun();
            Window window;
            const QString first = window.arrangement();
            WindowLayout layout(window, _store.get(), version);
            QVERIFY(!layout.restore());
            QCOMPARE(window.arrangement(), first);
        }
        _store->setValue(key, whole);
        Window window;
        QVERIFY(WindowLayout(window, _store.get(), version).restore());
    }

    void a_window_out_of_sight_is_brought_back_data()
    {
        QTest::addColumn<QRect>("where");
        QTest::newRow("right") << QRect(5000, 100, 600, 400);
        QTest::newRow("left, by half") << QRect(-300, 100, 600, 400);
        QTest::newRow("above") << QRect(100, -3000, 600, 400);
        QTest::newRow("below, by a bit") << QRect(100, 500, 600, 400);
        QTest::newRow("too large") << QRect(0, 0, 4000, 3000);
    }
    void a_window_out_of_sight_is_brought_back()
    {
        QFETCH(QRect, where);
        {
            Window window;
            WindowLayout layout(window, _store.get(), version);
            QVERIFY(window.appear());
            window.setGeometry(where);
            QCOMPARE(window.geometry(), where);
            layout.save();
        }
        Window window;
        WindowLayout layout(window, _store.get(), version);
        QVERIFY(layout.restore());
        QVERIFY(window.appear());
        // How wide the frame is turns out only when the window is shown.
        const QRect screen =
            QGuiApplication::primaryScreen()->availableGeometry().adjusted(-2, -2, 2, 2);
        QVERIFY2(screen.contains(window.geometry()), qPrintable(window.arrangement()));
        if (where.width() == 600)
            QCOMPARE(window.size(), where.size());
    }

    void reset_returns_to_the_first_layout()
    {
        Window window;
        WindowLayout layout(window, _store.get(), version);
        QVERIFY(window.appear());
        const QString first = window.arrangement();
        window.move(50, 60);
        const QPoint place = window.pos();
        window.rearrange();
        window.left->setFloating(true);
        QVERIFY(window.arrangement() != first);
        layout.reset();
        QCOMPARE(window.arrangement(), first);
        QCOMPARE(window.pos(), place);
    }

    void reset_returns_to_the_first_layout_after_another_was_restored()
    {
        QString first;
        {
            Window window;
            QVERIFY(window.appear());
            first = window.arrangement();
        }
        keepRearranged();
        Window window;
        WindowLayout layout(window, _store.get(), version);
        QVERIFY(layout.restore());
        QVERIFY(window.appear());
        layout.reset();
        QCOMPARE(window.arrangement(), first);
    }

    void reset_leaves_the_full_screen()
    {
        Window window;
        WindowLayout layout(window, _store.get(), version);
        QVERIFY(window.appear());
        for (const Qt::WindowState state : {Qt::WindowFullScreen, Qt::WindowMaximized}) {
            window.setWindowState(state);
            QTRY_VERIFY(window.width() > 600);
            layout.reset();
            QTRY_COMPARE(window.size(), QSize(600, 400));
            QCOMPARE(window.windowState(), Qt::WindowNoState);
        }
    }

    void a_maximised_window_comes_back_maximised()
    {
        {
            Window window;
            WindowLayout layout(window, _store.get(), version);
            window.showMaximized();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            layout.save();
        }
        Window window;
        WindowLayout layout(window, _store.get(), version);
        QVERIFY(layout.restore());
        QVERIFY(window.appear());
        QVERIFY(window.isMaximized());
    }

    void a_dock_that_came_later_stays_in_the_window()
    {
        Window window;
        WindowLayout layout(window, _store.get(), version);
        QVERIFY(window.appear());
        QDockWidget* later = window.addDock("later", Qt::LeftDockWidgetArea);
        later->show();
        layout.reset();
        QCOMPARE(window.dockWidgetArea(later), Qt::LeftDockWidgetArea);
        QVERIFY(later->isVisible());
        QVERIFY(!later->isFloating());
    }
};

QTEST_MAIN(tst_window_layout)
#include "tst_window_layout.moc"
