// SPDX-License-Identifier: MIT
#include "referencehost/actions/ActionDefinitions.h"

#include <algorithm>

namespace {

QString attribute(const QDomElement& element, const char* name)
{
    return element.attribute(QString::fromLatin1(name));
}

bool fail(const QDomElement& element, const QString& what, QString& error)
{
    error = ActionDefinitions::tr("Line %1: %2").arg(element.lineNumber()).arg(what);
    return false;
}

} // namespace

bool ActionDefinitions::add(const QByteArray& xml, QString& error)
{
    QDomDocument document;
    int line = 0;
    QString message;
    if (!document.setContent(xml, &message, &line)) {
        error = tr("Line %1: %2").arg(line).arg(message);
        return false;
    }
    ActionDefinitions extended = *this;
    const QDomElement root = document.documentElement();
    for (QDomElement element = root.firstChildElement(); !element.isNull();
         element = element.nextSiblingElement()) {
        if (!extended.read(element, error))
            return false;
    }
    *this = extended;
    return true;
}

bool ActionDefinitions::read(const QDomElement& element, QString& error)
{
    const QString kind = element.tagName();
    const QString id = attribute(element, "id");
    if (id.isEmpty())
        return fail(element, tr("<%1> has no id.").arg(kind), error);
    if (kind == QLatin1String("action"))
        return readAction(element, error);
    if (kind == QLatin1String("shortcut"))
        return readShortcut(element, error);
    if (kind != QLatin1String("menu") && kind != QLatin1String("toolbar"))
        return fail(element, tr("<%1> is not known.").arg(kind), error);
    QHash<QString, QDomElement>& elements = kind == QLatin1String("menu") ? _menus : _toolbars;
    if (elements.contains(id))
        return fail(element, tr("\"%1\" is defined twice.").arg(id), error);
    elements.insert(id, element);
    return readItems(element, error);
}

bool ActionDefinitions::readAction(const QDomElement& element, QString& error)
{
    ActionDefinition action;
    action.id = attribute(element, "id");
    action.responder = attribute(element, "responder");
    action.slotName = attribute(element, "slot").toLatin1();
    action.text = attribute(element, "text");
    action.icon = attribute(element, "icon");
    action.checkable = attribute(element, "checkable") == QLatin1String("true");
    if (action.responder.isEmpty() || action.slotName.isEmpty() || action.text.isEmpty())
        return fail(element, tr("An action needs a responder, a slot and a text."), error);
    if (knowsAction(action.id))
        return fail(element, tr("\"%1\" is defined twice.").arg(action.id), error);
    if (element.hasAttribute(QStringLiteral("argument"))) {
        bool isNumber = false;
        action.argument = attribute(element, "argument").toInt(&isNumber);
        if (!isNumber)
            return fail(element, tr("The argument is not a number."), error);
    }
    const QStringList keys = attribute(element, "shortcuts").split(u' ', Qt::SkipEmptyParts);
    for (const QString& key : keys) {
        const QKeySequence sequence(key, QKeySequence::PortableText);
        if (sequence.isEmpty() || sequence[0].key() == Qt::Key_unknown)
            return fail(element, tr("\"%1\" is not a key.").arg(key), error);
        action.shortcuts.append(sequence);
    }
    _actions.push_back(action);
    return true;
}

bool ActionDefinitions::readShortcut(const QDomElement& element, QString& error)
{
    const QKeySequence sequence(attribute(element, "key"), QKeySequence::PortableText);
    if (sequence.count() != 1 || sequence[0].key() == Qt::Key_unknown ||
        sequence[0].keyboardModifiers() != Qt::NoModifier) {
        return fail(element, tr("\"%1\" is not a single key.").arg(attribute(element, "key")),
                    error);
    }
    const QString id = attribute(element, "id");
    if (_keys.contains(id))
        return fail(element, tr("\"%1\" is defined twice.").arg(id), error);
    _keys.insert(id, sequence[0].key());
    return true;
}

bool ActionDefinitions::readItems(const QDomElement& element, QString& error) const
{
    for (QDomElement item = element.firstChildElement(); !item.isNull();
         item = item.nextSiblingElement()) {
        const QString kind = item.tagName();
        if (kind == QLatin1String("separator"))
            continue;
        if (kind == QLatin1String("menu") && element.tagName() == kind) {
            if (!readItems(item, error))
                return false;
        } else if (kind != QLatin1String("item")) {
            return fail(item, tr("<%1> is not known.").arg(kind), error);
        } else if (!knowsAction(attribute(item, "action"))) {
            return fail(item, tr("No action \"%1\" is defined.").arg(attribute(item, "action")),
                        error);
        }
    }
    return true;
}

bool ActionDefinitions::knowsAction(const QString& id) const
{
    return std::ranges::find(_actions, id, &ActionDefinition::id) != _actions.end();
}
