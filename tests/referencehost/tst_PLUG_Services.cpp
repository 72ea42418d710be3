// SPDX-License-Identifier: MIT
#include "host/scene/TUScene.h"
#include "host/services/PLUG_EditionStackInterface.h"
#include "host/services/PLUG_KeyStateInterface.h"
#include "host/services/PLUG_Services.h"
#include "referencehost/session/HostSession.h"

#include <QRegularExpression>
#include <QTest>
#include <QWidget>

class tst_PLUG_Services : public QObject
{
    Q_OBJECT

private:
    static void verifyAllNull()
    {
        QVERIFY(!PLUG_Services::getActionManager());
        QVERIFY(!PLUG_Services::getEditionStackInterface());
        QVERIFY(!PLUG_Services::getKeyStateInterface());
        QVERIFY(!PLUG_Services::getSelection());
        QVERIFY(!PLUG_Services::getSessionContext());
    }

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(".?")); }

    void are_null_without_a_session()
    {
        verifyAllNull();
        {
            const HostSession session;
        }
        verifyAllNull();
    }

    void are_those_of_the_open_session()
    {
        for (int i = 0; i < 2; ++i) {
            HostSession session;
            SC_SessionContext& context = session.context();
            QCOMPARE(PLUG_Services::getSessionContext(), &context);
            QCOMPARE(PLUG_Services::getActionManager(), context.actionManager());
            QCOMPARE(PLUG_Services::getSelection(), context.selection());
            QCOMPARE(PLUG_Services::getEditionStackInterface(), &session.editionStack());
            QCOMPARE(PLUG_Services::getKeyStateInterface(), &session.keyState());
        }
    }

    void edition_stack_knows_the_current_scene()
    {
        HostSession session;
        const PLUG_EditionStackInterface* stack = PLUG_Services::getEditionStackInterface();
        QVERIFY(!stack->currentScene());
        const TUScene& scene = session.openScene(QStringLiteral("Scene"));
        QCOMPARE(stack->currentScene(), &scene);
        session.closeScene();
        QVERIFY(!stack->currentScene());
    }

    void key_state_is_that_of_the_selecting_modifiers_data()
    {
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<bool>("held");
        QTest::newRow("none") << Qt::KeyboardModifiers() << false;
        QTest::newRow("Shift") << Qt::KeyboardModifiers(Qt::ShiftModifier) << true;
        QTest::newRow("Control") << Qt::KeyboardModifiers(Qt::ControlModifier) << true;
        QTest::newRow("Alt") << Qt::KeyboardModifiers(Qt::AltModifier) << false;
        QTest::newRow("Alt and Shift") << (Qt::AltModifier | Qt::ShiftModifier) << true;
    }
    void key_state_is_that_of_the_selecting_modifiers()
    {
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(bool, held);
        const HostSession session;
        QWidget window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTest::keyPress(window.windowHandle(), Qt::Key_A, modifiers);
        const PLUG_KeyState pressed = PLUG_Services::getKeyStateInterface()->keyState();
        QTest::keyRelease(window.windowHandle(), Qt::Key_A, Qt::NoModifier);
        const PLUG_KeyState released = PLUG_Services::getKeyStateInterface()->keyState();
        QCOMPARE(pressed.append, held);
        QCOMPARE(pressed.extend, held);
        QVERIFY(!released.append);
        QVERIFY(!released.extend);
    }
};

QTEST_MAIN(tst_PLUG_Services)
#include "tst_PLUG_Services.moc"
