// SPDX-License-Identifier: MIT
#include "host/actions/AC_Manager.h"

#include "host/actions/AC_ActionInfo.h"
#include "host/actions/AC_ResponderTemplate.h"
#include "referencehost/actions/ActionDefinitions.h"
#include "referencehost/actions/ActionWatch.h"

#include <QAction>
#include <QCoreApplication>
#include <QIcon>
#include <QMenu>
#include <QToolBar>
#include <algorithm>
#include <iterator>

namespace {

QString translated(const QString& text)
{
    return QCoreApplication::translate("Actions", text.toUtf8().constData());
}

} // namespace

struct AC_Manager::Private
{
    struct Action
    {
        ActionDefinition definition;
        std::unique_ptr<QAction> action;
    };

    explicit Private(AC_Manager& manager)
        : watch(manager)
    {
    }

    AC_ActionInfo info(const ActionDefinition& definition, AC_ActionInfo::ePurpose purpose) const
    {
        return AC_ActionInfo(definition.slotName, purpose, definition.argument);
    }
    void fill(QMenu& menu, const QDomElement& definition) const;
    QAction* action(const QString& id) const;

    std::vector<AC_Responder*> responders;
    std::vector<AC_Responder*> byFocus;
    ActionDefinitions definitions;
    std::vector<Action> actions;
    ActionWatch watch;
};

QAction* AC_Manager::Private::action(const QString& id) const
{
    const auto it =
        std::ranges::find_if(actions, [&](const Action& each) { return each.definition.id == id; });
    return it == actions.end() ? nullptr : it->action.get();
}

void AC_Manager::Private::fill(QMenu& menu, const QDomElement& definition) const
{
    for (QDomElement item = definition.firstChildElement(); !item.isNull();
         item = item.nextSiblingElement()) {
        if (item.tagName() == QLatin1String("separator"))
            menu.addSeparator();
        else if (item.tagName() == QLatin1String("menu"))
            fill(*menu.addMenu(translated(item.attribute(QStringLiteral("text")))), item);
        else
            menu.addAction(action(item.attribute(QStringLiteral("action"))));
    }
}

AC_Manager::AC_Manager()
    : d(std::make_unique<Private>(*this))
{
}

AC_Manager::~AC_Manager()
{
    // A view may outlive the session. Each one that we let go leaves the list, hence the copy.
    const std::vector<AC_Responder*> leaving = d->responders;
    for (AC_Responder* responder : leaving) {
        if (auto* registered = dynamic_cast<AC_ResponderTemplate*>(responder))
            registered->initActionManager(nullptr);
    }
}

void AC_Manager::registerResponder(AC_Responder* responder)
{
    if (!responder || std::ranges::find(d->responders, responder) != d->responders.end())
        return;
    d->responders.push_back(responder);
    invalidateActions();
}

void AC_Manager::unregisterResponder(AC_Responder* responder)
{
    std::erase(d->responders, responder);
    std::erase(d->byFocus, responder);
    invalidateActions();
}

std::vector<AC_Responder*> AC_Manager::responders(const QString& identity) const
{
    std::vector<AC_Responder*> found;
    const auto take = [&](AC_Responder* responder) {
        if (responder->responderIdentity() == identity &&
            std::ranges::find(found, responder) == found.end())
            found.push_back(responder);
    };
    std::ranges::for_each(d->byFocus, take);
    std::ranges::for_each(d->responders, take);
    return found;
}

void AC_Manager::setFocusedResponder(AC_Responder* responder)
{
    if (std::ranges::find(d->responders, responder) == d->responders.end())
        return;
    std::erase(d->byFocus, responder);
    d->byFocus.insert(d->byFocus.begin(), responder);
    invalidateActions();
}

bool AC_Manager::loadDefinitions(const QByteArray& xml, QString* error)
{
    QString message;
    const std::size_t known = d->definitions.actions().size();
    if (!d->definitions.add(xml, message)) {
        if (error)
            *error = message;
        return false;
    }
    const std::vector<ActionDefinition>& definitions = d->definitions.actions();
    for (std::size_t i = known; i < definitions.size(); ++i) {
        const ActionDefinition& definition = definitions[i];
        auto action = std::make_unique<QAction>(translated(definition.text));
        action->setObjectName(definition.id);
        action->setShortcuts(definition.shortcuts);
        action->setCheckable(definition.checkable);
        if (!definition.icon.isEmpty())
            action->setIcon(QIcon(definition.icon));
        QObject::connect(action.get(), &QAction::triggered, &d->watch, [this, definition] {
            AC_ActionInfo validation = d->info(definition, AC_ActionInfo::eValidate);
            if (route(definition.responder, validation) && validation.isEnabled()) {
                AC_ActionInfo info = d->info(definition, AC_ActionInfo::ePerform);
                route(definition.responder, info);
            }
            // Qt has switched a checkable action already, whether or not anything came of it.
            validateActions();
        });
        d->actions.push_back({definition, std::move(action)});
    }
    invalidateActions();
    return true;
}

QAction* AC_Manager::action(const QString& id) const
{
    return d->action(id);
}

std::vector<QAction*> AC_Manager::actions() const
{
    std::vector<QAction*> all;
    for (const Private::Action& each : d->actions)
        all.push_back(each.action.get());
    return all;
}

int AC_Manager::shortcutKey(const QString& id) const
{
    return d->definitions.shortcutKey(id);
}

QDomElement AC_Manager::toolbar(const QString& id) const
{
    return d->definitions.toolbar(id);
}

QMenu* AC_Manager::createMenu(const QString& id, QWidget* parent)
{
    const QDomElement definition = d->definitions.menu(id);
    if (definition.isNull())
        return nullptr;
    auto* menu = new QMenu(translated(definition.attribute(QStringLiteral("text"))), parent);
    menu->setObjectName(id);
    d->fill(*menu, definition);
    QObject::connect(menu, &QMenu::aboutToShow, &d->watch, [this] { validateActions(); });
    return menu;
}

QToolBar* AC_Manager::createToolBar(const QString& id, QWidget* parent) const
{
    const QDomElement definition = d->definitions.toolbar(id);
    if (definition.isNull())
        return nullptr;
    auto* bar = new QToolBar(translated(definition.attribute(QStringLiteral("text"))), parent);
    bar->setObjectName(id);
    for (QDomElement item = definition.firstChildElement(); !item.isNull();
         item = item.nextSiblingElement()) {
        if (item.tagName() == QLatin1String("separator"))
            bar->addSeparator();
        else if (item.tagName() == QLatin1String("item"))
            bar->addAction(d->action(item.attribute(QStringLiteral("action"))));
    }
    return bar;
}

bool AC_Manager::route(const QString& identity, AC_ActionInfo& info) const
{
    if (identity == QLatin1String("*"))
        return routeToAny(info);
    const std::vector<AC_Responder*> candidates = responders(identity);
    return !candidates.empty() && candidates.front()->perform(&info) != AC_NotHandled;
}

bool AC_Manager::routeToAny(AC_ActionInfo& info) const
{
    std::vector<AC_Responder*> candidates = d->byFocus;
    std::ranges::copy_if(d->responders, std::back_inserter(candidates), [this](auto* responder) {
        return std::ranges::find(d->byFocus, responder) == d->byFocus.end();
    });
    return std::ranges::any_of(candidates, [&info](AC_Responder* responder) {
        return responder->perform(&info) != AC_NotHandled;
    });
}

void AC_Manager::validateActions()
{
    d->watch.setValid();
    for (const Private::Action& each : d->actions) {
        AC_ActionInfo info = d->info(each.definition, AC_ActionInfo::eValidate);
        const bool handled = route(each.definition.responder, info);
        each.action->setEnabled(handled && info.isEnabled());
        if (info.isChecked())
            each.action->setChecked(*info.isChecked());
        each.action->setText(info.text().isEmpty() ? translated(each.definition.text)
                                                   : info.text());
    }
}

void AC_Manager::invalidateActions()
{
    d->watch.invalidate();
}
