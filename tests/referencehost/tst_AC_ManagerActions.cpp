// SPDX-License-Identifier: MIT
#include "host/actions/AC_Manager.h"
#include "host/actions/AC_ResponderTemplateWidget.h"

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>
#include <QTest>
#include <QToolBar>

namespace {

const QString viewIdentity = QStringLiteral("view");

/// A view with a lamp, whose switch can be locked, and a volume.
class View : public AC_ResponderTemplateWidget<QWidget>
{
    Q_OBJECT

public:
    explicit View(AC_Manager* manager, QWidget* parent = nullptr)
        : AC_ResponderTemplateWidget<QWidget>(manager, viewIdentity, parent, Qt::WindowFlags())
    {
        setFocusPolicy(Qt::StrongFocus);
    }

    AC_Responder* parentResponder() override { return nextResponder; }

    bool on = false;
    bool locked = false;
    int volume = 0;
    int rings = 0;
    int validations = 0;
    AC_Responder* nextResponder = nullptr;

public slots:
    void onSwitch() { on = !on; }
    void onSwitchValidate(AC_ActionInfo* info)
    {
        ++validations;
        info->setEnabled(!locked);
        info->setChecked(on);
        if (on)
            info->setText(QStringLiteral("Switch Off"));
    }
    void onVolume(int wanted) { volume = wanted; }
    void onVolumeValidate(int offered, AC_ActionInfo* info) { info->setChecked(offered == volume); }
    void onRing() { ++rings; }
};

const QByteArray definitions = R"(<definitions>
  <action id="SWITCH" responder="view" slot="onSwitch" text="Switch On" shortcuts="Ctrl+S"
          checkable="true"/>
  <action id="QUIET" responder="view" slot="onVolume" argument="1" text="Quiet" checkable="true"/>
  <action id="LOUD" responder="view" slot="onVolume" argument="9" text="Loud" checkable="true"/>
  <action id="RING" responder="view" slot="onRing" text="Ring" shortcuts="R"/>
  <action id="NOWHERE" responder="nobody" slot="onRing" text="Nowhere"/>
  <action id="UNKNOWN" responder="view" slot="onUnknown" text="Unknown"/>
  <menu id="LAMP" text="Lamp">
    <item action="SWITCH"/> <separator/>
    <menu text="Volume"> <item action="QUIET"/> <item action="LOUD"/> </menu>
  </menu>
  <toolbar id="BAR" text="Bar"> <item action="RING"/> <separator/> <item action="SWITCH"/> </toolbar>
</definitions>)";

} // namespace

/// How actions find their way from menus, tool bars and keys to the views.
class tst_AC_ManagerActions : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<AC_Manager> _manager;

    QAction* action(const char* id) { return _manager->action(QString::fromLatin1(id)); }
    void trigger(const char* id)
    {
        _manager->validateActions();
        action(id)->trigger();
    }
    static QStringList texts(const QWidget& bar)
    {
        QStringList texts;
        for (const QAction* each : bar.actions())
            texts.append(each->isSeparator() ? QStringLiteral("-") : each->text());
        return texts;
    }
    /// Shows the window with the actions in it, so that their keys count there.
    bool show(QWidget& window)
    {
        for (QAction* each : _manager->actions())
            window.addAction(each);
        window.show();
        window.activateWindow();
        return QTest::qWaitForWindowActive(&window);
    }

private slots:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
        _manager = std::make_unique<AC_Manager>();
        QString error;
        QVERIFY2(_manager->loadDefinitions(definitions, &error), qPrintable(error));
    }
    void cleanup() { _manager.reset(); }

    void an_action_calls_its_slot_on_the_view()
    {
        View view(_manager.get());
        trigger("RING");
        QCOMPARE(view.rings, 1);
        trigger("LOUD");
        QCOMPARE(view.volume, 9);
        trigger("QUIET");
        QCOMPARE(view.volume, 1);
    }

    void routing_says_whether_somebody_took_the_action()
    {
        AC_ActionInfo ring("onRing", AC_ActionInfo::ePerform);
        QVERIFY(!_manager->route(viewIdentity, ring));
        View view(_manager.get());
        QVERIFY(_manager->route(viewIdentity, ring));
        QCOMPARE(view.rings, 1);
        QCOMPARE(ring.responder(), static_cast<AC_Responder*>(&view));
        QVERIFY(!_manager->route(QStringLiteral("nobody"), ring));
        AC_ActionInfo unknown("onUnknown", AC_ActionInfo::ePerform);
        QVERIFY(!_manager->route(viewIdentity, unknown));
        QCOMPARE(view.rings, 1);
    }

    void what_a_view_does_not_know_goes_to_the_next_one()
    {
        View parent(nullptr);
        View child(_manager.get());
        child.nextResponder = &parent;
        AC_ActionInfo ring("onRing", AC_ActionInfo::ePerform);
        QVERIFY(_manager->route(viewIdentity, ring));
        QCOMPARE(child.rings, 1);
        QCOMPARE(parent.rings, 0);
        AC_ActionInfo unknown("onUnknown", AC_ActionInfo::ePerform);
        QVERIFY(!_manager->route(viewIdentity, unknown));
        QCOMPARE(unknown.responder(), static_cast<AC_Responder*>(&parent));
    }

    void actions_without_a_taker_are_disabled()
    {
        View view(_manager.get());
        _manager->validateActions();
        QVERIFY(!action("NOWHERE")->isEnabled());
        QVERIFY(!action("UNKNOWN")->isEnabled());
        QVERIFY(action("RING")->isEnabled());
        QVERIFY(action("SWITCH")->isEnabled());
        view.initActionManager(nullptr);
        QTRY_VERIFY(!action("RING")->isEnabled());
    }

    void an_action_shows_what_its_validator_says()
    {
        View view(_manager.get());
        _manager->validateActions();
        QCOMPARE(action("SWITCH")->text(), QStringLiteral("Switch On"));
        QVERIFY(!action("SWITCH")->isChecked());
        view.on = true;
        view.locked = true;
        view.volume = 9;
        _manager->validateActions();
        QCOMPARE(action("SWITCH")->text(), QStringLiteral("Switch Off"));
        QVERIFY(action("SWITCH")->isChecked());
        QVERIFY(!action("SWITCH")->isEnabled());
        QVERIFY(action("LOUD")->isChecked());
        QVERIFY(!action("QUIET")->isChecked());
        view.on = false;
        view.locked = false;
        _manager->validateActions();
        QCOMPARE(action("SWITCH")->text(), QStringLiteral("Switch On"));
        QVERIFY(!action("SWITCH")->isChecked());
        QVERIFY(action("SWITCH")->isEnabled());
    }

    void an_action_disabled_meanwhile_does_not_run()
    {
        View view(_manager.get());
        _manager->validateActions();
        QVERIFY(action("SWITCH")->isEnabled());
        view.locked = true;
        action("SWITCH")->trigger();
        QVERIFY(!view.on);
        // The check mark goes back, and the action now shows that it is locked.
        QVERIFY(!action("SWITCH")->isChecked());
        QVERIFY(!action("SWITCH")->isEnabled());
    }

    void actions_are_validated_after_one_has_run()
    {
        View view(_manager.get());
        trigger("SWITCH");
        QVERIFY(view.on);
        QVERIFY(action("SWITCH")->isChecked());
        QCOMPARE(action("SWITCH")->text(), QStringLiteral("Switch Off"));
        trigger("LOUD");
        QVERIFY(action("LOUD")->isChecked());
        // Choosing what is chosen already does not take the mark away.
        trigger("LOUD");
        QVERIFY(action("LOUD")->isChecked());
        trigger("QUIET");
        QVERIFY(!action("LOUD")->isChecked());
    }

    void many_changes_are_validated_once_when_idle()
    {
        View view(_manager.get());
        _manager->validateActions();
        view.validations = 0;
        view.locked = true;
        for (int i = 0; i < 5; ++i)
            _manager->invalidateActions();
        QCOMPARE(view.validations, 0);
        QVERIFY(action("SWITCH")->isEnabled());
        QTRY_VERIFY(!action("SWITCH")->isEnabled());
        QCOMPARE(view.validations, 1);
    }

    void a_menu_holds_the_managers_actions_in_order()
    {
        View view(_manager.get());
        QWidget parent;
        QMenu* menu = _manager->createMenu(QStringLiteral("LAMP"), &parent);
        QVERIFY(menu);
        QCOMPARE(menu->parentWidget(), &parent);
        QCOMPARE(menu->title(), QStringLiteral("Lamp"));
        QCOMPARE(texts(*menu), QStringList({QStringLiteral("Switch On"), QStringLiteral("-"),
                                            QStringLiteral("Volume")}));
        QCOMPARE(menu->actions().first(), action("SWITCH"));
        const QMenu* volume = menu->actions().last()->menu();
        QVERIFY(volume);
        QCOMPARE(volume->actions(), QList<QAction*>({action("QUIET"), action("LOUD")}));
        QVERIFY(!_manager->createMenu(QStringLiteral("BAR"), &parent));
        QVERIFY(!_manager->createMenu(QStringLiteral("unknown"), &parent));
    }

    void a_menu_asks_the_validators_before_it_opens()
    {
        View view(_manager.get());
        _manager->validateActions();
        const std::unique_ptr<QMenu> menu(_manager->createMenu(QStringLiteral("LAMP"), nullptr));
        view.on = true;
        emit menu->aboutToShow();
        QCOMPARE(texts(*menu).first(), QStringLiteral("Switch Off"));
        QVERIFY(menu->actions().first()->isChecked());
    }

    void a_tool_bar_holds_the_managers_actions_in_order()
    {
        QWidget parent;
        const QToolBar* bar = _manager->createToolBar(QStringLiteral("BAR"), &parent);
        QVERIFY(bar);
        QCOMPARE(bar->parentWidget(), &parent);
        QCOMPARE(bar->windowTitle(), QStringLiteral("Bar"));
        QCOMPARE(texts(*bar), QStringList({QStringLiteral("Ring"), QStringLiteral("-"),
                                           QStringLiteral("Switch On")}));
        QCOMPARE(bar->actions().first(), action("RING"));
        QVERIFY(!_manager->createToolBar(QStringLiteral("LAMP"), &parent));
    }

    void the_view_that_last_had_the_focus_takes_the_action()
    {
        QWidget window;
        View first(_manager.get(), &window), second(_manager.get(), &window);
        QLineEdit inside(&second), elsewhere(&window);
        QVERIFY(show(window));
        first.setFocus();
        trigger("RING");
        QCOMPARE(std::pair(first.rings, second.rings), std::pair(1, 0));
        second.setFocus();
        trigger("RING");
        QCOMPARE(std::pair(first.rings, second.rings), std::pair(1, 1));
        // What has the focus then need not be a view.
        elsewhere.setFocus();
        trigger("RING");
        QCOMPARE(std::pair(first.rings, second.rings), std::pair(1, 2));
        first.setFocus();
        inside.setFocus();
        trigger("RING");
        QCOMPARE(std::pair(first.rings, second.rings), std::pair(1, 3));
        second.initActionManager(nullptr);
        trigger("RING");
        QCOMPARE(std::pair(first.rings, second.rings), std::pair(2, 3));
    }

    void actions_show_the_state_of_the_view_with_the_focus()
    {
        View first(_manager.get()), second(_manager.get());
        second.on = true;
        _manager->validateActions();
        QVERIFY(!action("SWITCH")->isChecked());
        _manager->setFocusedResponder(&second);
        QTRY_VERIFY(action("SWITCH")->isChecked());
        View stranger(nullptr);
        _manager->setFocusedResponder(&stranger);
        QCOMPARE(_manager->responders(viewIdentity), (std::vector<AC_Responder*>{&second, &first}));
    }

    void a_key_works_right_after_a_change()
    {
        View view(_manager.get());
        view.locked = true;
        QVERIFY(show(view));
        _manager->validateActions();
        QTest::keyClick(&view, Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!view.on);
        // Nothing is handled between the change and the key.
        view.locked = false;
        _manager->invalidateActions();
        QVERIFY(!action("SWITCH")->isEnabled());
        QTest::keyClick(&view, Qt::Key_S, Qt::ControlModifier);
        QVERIFY(view.on);
        view.locked = true;
        QTest::keyClick(&view, Qt::Key_S, Qt::ControlModifier);
        QVERIFY(view.on);
        QTest::keyClick(&view, Qt::Key_R);
        QCOMPARE(view.rings, 1);
    }

    void a_released_key_or_button_counts_as_a_change()
    {
        View view(_manager.get());
        QVERIFY(show(view));
        _manager->validateActions();
        view.on = true;
        QTest::mouseClick(&view, Qt::LeftButton);
        QTRY_VERIFY(action("SWITCH")->isChecked());
        view.on = false;
        QTest::keyClick(&view, Qt::Key_X);
        QTRY_VERIFY(!action("SWITCH")->isChecked());
    }
};

QTEST_MAIN(tst_AC_ManagerActions)
#include "tst_AC_ManagerActions.moc"
