// SPDX-License-Identifier: MIT
#include "host/services/BUIAPP_Application.h"
#include "referencehost/session/HostSession.h"

#include <QApplication>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QTest>
#include <QWidget>

class tst_BUIAPP_Application : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<HostSession> _session;
    std::unique_ptr<QWidget> _window;

    static bool held(int key) { return BUIAPP_Application::isKeyPressed(key); }

private slots:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(".?"));
        _session = std::make_unique<HostSession>();
        _window = std::make_unique<QWidget>();
        _window->show();
        _window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(_window.get()));
    }
    void cleanup()
    {
        _window.reset();
        _session.reset();
    }

    void a_key_is_pressed_until_it_is_let_go()
    {
        QVERIFY(!held(Qt::Key_Space));
        QTest::keyPress(_window.get(), Qt::Key_Space);
        QVERIFY(held(Qt::Key_Space));
        QVERIFY(!held(Qt::Key_A));
        QTest::keyRelease(_window.get(), Qt::Key_Space);
        QVERIFY(!held(Qt::Key_Space));
    }

    void keys_are_held_independently()
    {
        QTest::keyPress(_window.get(), Qt::Key_A);
        QTest::keyPress(_window.get(), Qt::Key_Shift);
        QVERIFY(held(Qt::Key_A) && held(Qt::Key_Shift));
        QTest::keyRelease(_window.get(), Qt::Key_A);
        QVERIFY(!held(Qt::Key_A) && held(Qt::Key_Shift));
        QTest::keyRelease(_window.get(), Qt::Key_Shift);
        QVERIFY(!held(Qt::Key_Shift));
    }

    void a_key_that_repeats_stays_pressed()
    {
        QTest::keyPress(_window.get(), Qt::Key_A);
        for (const QEvent::Type type : {QEvent::KeyRelease, QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent repeated(type, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"), true);
            QApplication::sendEvent(_window.get(), &repeated);
            QVERIFY(held(Qt::Key_A));
        }
        QTest::keyRelease(_window.get(), Qt::Key_A);
        QVERIFY(!held(Qt::Key_A));
    }

    void any_widget_of_the_application_may_get_the_key()
    {
        QWidget child(_window.get()), other;
        QTest::keyPress(&child, Qt::Key_A);
        QVERIFY(held(Qt::Key_A));
        QTest::keyRelease(&other, Qt::Key_A);
        QVERIFY(!held(Qt::Key_A));
    }

    void keys_are_known_before_widgets_handle_them()
    {
        class Asking : public QWidget
        {
        public:
            using QWidget::QWidget;
            QList<bool> answers;

        protected:
            void keyPressEvent(QKeyEvent* event) override { answers << held(event->key()); }
            void keyReleaseEvent(QKeyEvent* event) override { answers << held(event->key()); }
        };
        Asking asking(_window.get());
        QTest::keyClick(&asking, Qt::Key_B);
        QCOMPARE(asking.answers, (QList<bool>{true, false}));
    }

    void other_events_are_no_keys()
    {
        QTest::mousePress(_window.get(), Qt::LeftButton);
        QVERIFY(!held(Qt::LeftButton) && !held(0));
        QTest::mouseRelease(_window.get(), Qt::LeftButton);
    }

    void no_key_is_pressed_without_a_session()
    {
        QTest::keyPress(_window.get(), Qt::Key_A);
        QVERIFY(held(Qt::Key_A));
        _session.reset();
        QVERIFY(!held(Qt::Key_A));
        QTest::keyPress(_window.get(), Qt::Key_B);
        _session = std::make_unique<HostSession>();
        QVERIFY(!held(Qt::Key_A) && !held(Qt::Key_B));
        QTest::keyPress(_window.get(), Qt::Key_C);
        QVERIFY(held(Qt::Key_C));
    }

    void keys_stay_pressed_while_the_application_has_the_keyboard()
    {
        QTest::keyPress(_window.get(), Qt::Key_A);
        emit qApp->applicationStateChanged(Qt::ApplicationActive);
        QVERIFY(held(Qt::Key_A));
        QTest::keyRelease(_window.get(), Qt::Key_A);
        QVERIFY(!held(Qt::Key_A));
    }

    void no_key_is_pressed_once_the_keyboard_is_lost()
    {
        QTest::keyPress(_window.get(), Qt::Key_A);
        QTest::keyPress(_window.get(), Qt::Key_Shift);
        // No other application is there off screen to take the keyboard.
        emit qApp->applicationStateChanged(Qt::ApplicationInactive);
        QVERIFY(!held(Qt::Key_A) && !held(Qt::Key_Shift));
        emit qApp->applicationStateChanged(Qt::ApplicationActive);
        QVERIFY(!held(Qt::Key_A) && !held(Qt::Key_Shift));
        QTest::keyPress(_window.get(), Qt::Key_A);
        QVERIFY(held(Qt::Key_A));
    }
};

QTEST_MAIN(tst_BUIAPP_Application)
#include "tst_BUIAPP_Application.moc"
