// SPDX-License-Identifier: MIT
#include "host/actions/AC_Manager.h"
#include "host/actions/AC_ResponderTemplate.h"
#include "host/actions/AC_ResponderTemplateWidget.h"

#include <QLabel>
#include <QRegularExpression>
#include <QTest>

using Responders = std::vector<AC_Responder*>;

class tst_AC_Manager : public QObject
{
    Q_OBJECT

private:
    const QString _tree = QStringLiteral("tree");

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(".?")); }

    void finds_responders_by_identity_in_the_order_of_registration()
    {
        AC_Manager manager;
        AC_ResponderTemplate first(_tree), other(QStringLiteral("graph")), second(_tree);
        for (AC_ResponderTemplate* responder : {&second, &other, &first})
            responder->initActionManager(&manager);
        QCOMPARE(manager.responders(_tree), (Responders{&second, &first}));
        QVERIFY(manager.responders(QStringLiteral("unknown")).empty());
    }

    void ignores_null_and_what_it_knows_already()
    {
        AC_Manager manager;
        AC_ResponderTemplate responder(_tree);
        manager.registerResponder(nullptr);
        manager.unregisterResponder(nullptr);
        manager.unregisterResponder(&responder);
        manager.registerResponder(&responder);
        manager.registerResponder(&responder);
        QCOMPARE(manager.responders(_tree), Responders{&responder});
        manager.unregisterResponder(&responder);
        QVERIFY(manager.responders(_tree).empty());
    }

    void a_responder_moves_from_manager_to_manager()
    {
        AC_Manager first, second;
        AC_ResponderTemplate responder(_tree);
        QVERIFY(!responder.actionManager());
        responder.initActionManager(&first);
        responder.initActionManager(&second);
        QVERIFY(first.responders(_tree).empty());
        QCOMPARE(second.responders(_tree), Responders{&responder});
        QCOMPARE(responder.actionManager(), &second);
        responder.initActionManager(nullptr);
        QVERIFY(second.responders(_tree).empty());
        QVERIFY(!responder.actionManager());
    }

    void a_responder_leaves_when_it_dies()
    {
        AC_Manager manager;
        auto responder = std::make_unique<AC_ResponderTemplate>(_tree);
        responder->initActionManager(&manager);
        responder.reset();
        QVERIFY(manager.responders(_tree).empty());
    }

    void a_manager_that_dies_first_lets_its_responders_go()
    {
        auto manager = std::make_unique<AC_Manager>();
        AC_ResponderTemplate first(_tree), second(_tree);
        first.initActionManager(manager.get());
        second.initActionManager(manager.get());
        manager.reset();
        QVERIFY(!first.actionManager());
        QVERIFY(!second.actionManager());
    }

    void a_responder_has_no_parent_of_its_own()
    {
        AC_ResponderTemplate responder(_tree);
        QCOMPARE(responder.responderIdentity(), _tree);
        QVERIFY(!responder.parentResponder());
    }

    void any_widget_becomes_a_responder()
    {
        AC_Manager manager;
        QWidget parent;
        {
            AC_ResponderTemplateWidget<QLabel> label(&manager, _tree, &parent, Qt::Tool);
            QCOMPARE(manager.responders(_tree), Responders{&label});
            QCOMPARE(label.objectName(), _tree);
            QCOMPARE(label.parentWidget(), &parent);
            QVERIFY(label.windowFlags().testFlag(Qt::Tool));
        }
        QVERIFY(manager.responders(_tree).empty());
        const AC_ResponderTemplateWidget<QLabel> unregistered(nullptr, _tree, nullptr, {});
        QVERIFY(!unregistered.actionManager());
    }
};

QTEST_MAIN(tst_AC_Manager)
#include "tst_AC_Manager.moc"
