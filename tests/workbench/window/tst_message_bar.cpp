// SPDX-License-Identifier: MIT
#include "workbench/window/MessageBar.h"

#include "Dialogs.h"
#include "ModelFiles.h"
#include "tests/workbench/WindowTest.h"

#include <QAccessible>
#include <QLabel>
#include <QTemporaryDir>
#include <QToolButton>

/// What went wrong is said in the window, and stands there until it is closed.
class tst_message_bar : public WindowTest
{
    Q_OBJECT

private:
    MessageBar& bar() { return _window->messages(); }
    QStringList lines()
    {
        for (const QLabel* label : bar().findChildren<QLabel*>()) {
            if (!label->text().isEmpty())
                return label->text().split(u'\n');
        }
        return {};
    }
    QToolButton* closeButton()
    {
        for (QToolButton* button : bar().findChildren<QToolButton*>()) {
            if (button->defaultAction())
                return button;
        }
        return nullptr;
    }

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init() { openEmptyWindow(); }
    void cleanup() { closeWindow(); }

    void is_not_there_while_there_is_nothing_to_say()
    {
        QVERIFY(!bar().isVisible());
        bar().add({});
        QVERIFY(!bar().isVisible());
        bar().add(QStringLiteral("one"));
        QVERIFY(bar().isVisible());
        QCOMPARE(lines(), QStringList{"one"});
    }

    void says_nothing_twice()
    {
        bar().add(QStringLiteral("one"));
        bar().add(QStringLiteral("two"));
        bar().add(QStringLiteral("one"));
        QCOMPARE(bar().messages(), (QStringList{"one", "two"}));
        QCOMPARE(lines(), (QStringList{"one", "two"}));
    }

    void what_was_closed_can_be_said_again()
    {
        bar().add(QStringLiteral("one"));
        bar().clear();
        QVERIFY(!bar().isVisible());
        QVERIFY(bar().messages().isEmpty());
        bar().add(QStringLiteral("one"));
        QVERIFY(bar().isVisible());
    }

    void many_messages_leave_room_for_the_views()
    {
        for (int i = 1; i <= 5; ++i)
            bar().add(QStringLiteral("message %1").arg(i));
        QCOMPARE(lines().size(), 5);
        QCOMPARE(lines().first(), QStringLiteral("message 1"));
        const int height = graph().height();
        for (int i = 6; i <= 40; ++i)
            bar().add(QStringLiteral("message %1").arg(i));
        QCOMPARE(bar().messages().size(), 40);
        QCOMPARE(lines().size(), 6);
        QVERIFY2(lines().first().contains(QStringLiteral("35")), qPrintable(lines().first()));
        QVERIFY(!lines().first().contains(u'('));
        QCOMPARE(lines().last(), QStringLiteral("message 40"));
        QCoreApplication::processEvents();
        QVERIFY(graph().height() > height / 2);
    }

    void text_that_looks_like_markup_is_shown_as_it_is()
    {
        bar().add(QStringLiteral("<b>bold</b>.gltf: no"));
        const auto labels = bar().findChildren<QLabel*>();
        const auto found = std::find_if(labels.begin(), labels.end(), [](const QLabel* label) {
            return !label->text().isEmpty();
        });
        QVERIFY(found != labels.end());
        QCOMPARE((*found)->textFormat(), Qt::PlainText);
    }

    void a_long_message_is_readable_whole()
    {
        QString longText;
        for (int i = 0; i < 60; ++i)
            longText += QStringLiteral("word%1 ").arg(i);
        bar().add(longText);
        QCoreApplication::processEvents();
        for (const QLabel* label : bar().findChildren<QLabel*>()) {
            if (!label->text().isEmpty())
                QVERIFY2(label->height() >= label->heightForWidth(label->width()),
                         qPrintable(QStringLiteral("%1 of %2")
                                        .arg(label->height())
                                        .arg(label->heightForWidth(label->width()))));
        }
        QVERIFY(_window->width() <= 1100);
        // A margin of a line is left, but no empty room.
        const int line = bar().fontMetrics().lineSpacing();
        const auto labels = bar().findChildren<QLabel*>();
        const int needed = labels.last()->heightForWidth(labels.last()->width());
        QVERIFY(needed >= 2 * line);
        QTRY_VERIFY(bar().height() <= needed + 2 * line);
    }

    void a_click_closes_it()
    {
        bar().add(QStringLiteral("one"));
        QVERIFY(closeButton());
        QVERIFY(!closeButton()->toolTip().isEmpty());
        QTest::mouseClick(closeButton(), Qt::LeftButton);
        QVERIFY(!bar().isVisible());
    }

    void keys_close_it()
    {
        bar().add(QStringLiteral("one"));
        graph().setFocus();
        for (int i = 0; i < 40 && !closeButton()->hasFocus(); ++i)
            key(Qt::Key_Tab);
        QVERIFY(closeButton()->hasFocus());
        key(Qt::Key_Space);
        QVERIFY(!bar().isVisible());
        bar().add(QStringLiteral("two"));
        closeButton()->setFocus();
        key(Qt::Key_Escape);
        QVERIFY(!bar().isVisible());
    }

    void a_model_that_cannot_be_read_costs_one_message_and_no_box()
    {
        Dialogs dialogs;
        const QTemporaryDir folder;
        const QString broken = folder.filePath(QStringLiteral("broken.gltf"));
        QVERIFY(ModelFiles::writeBroken(broken));
        open({broken});
        QCOMPARE(bar().messages().size(), 1);
        QVERIFY2(bar().messages().first().contains(QStringLiteral("broken.gltf")),
                 qPrintable(bar().messages().first()));
        QVERIFY(bar().isVisible());
        QVERIFY(listed().isEmpty());
        QVERIFY(!_window->isWindowModified());
        open({broken, folder.filePath(QStringLiteral("gone.gltf"))});
        QCOMPARE(bar().messages().size(), 2);
        QCOMPARE(dialogs.unexpected(), QStringList());
    }

    void resetting_the_layout_leaves_messages_where_they_are()
    {
        entry("Window", "Reset Layout")->trigger();
        QVERIFY(!bar().isVisible());
        bar().add(QStringLiteral("one"));
        entry("Window", "Reset Layout")->trigger();
        QVERIFY(bar().isVisible());
    }
};

QTEST_MAIN(tst_message_bar)
#include "tst_message_bar.moc"
