// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QDomDocument>
#include <QHash>
#include <QKeySequence>
#include <QString>
#include <optional>
#include <vector>

/// An action as its definition declares it.
struct ActionDefinition
{
    QString id;
    QString responder;
    QByteArray slotName;
    std::optional<int> argument;
    QString text;
    /// Empty for an action without a picture.
    QString icon;
    QList<QKeySequence> shortcuts;
    bool checkable = false;
};

/// What definition texts declare: actions, keys, menus and tool bars.
///
///     <definitions>
///       <action id="ZOOM_IN" responder="GV_GraphView" slot="onActionZoomIn" text="Zoom In"
///               icon=":/icons/zoom-in.svg" shortcuts="Ctrl++ ="/>
///       <shortcut id="FREE_PAN_AND_ZOOM_KEY" key="Space"/>
///       <menu id="VIEW" text="View"> <item action="ZOOM_IN"/> <separator/> <menu .../> </menu>
///       <toolbar id="VIEW_BAR" text="View"> <item action="ZOOM_IN"/> </toolbar>
///     </definitions>
///
/// An action may also have an argument, an integer, and be checkable="true". One that every kind of
/// view has, such as selecting all, is for the responder "*": whichever last had the focus.
class ActionDefinitions
{
    Q_DECLARE_TR_FUNCTIONS(ActionDefinitions)

public:
    /// Adds what the text declares. On failure nothing is added, and the error says what is wrong
    /// and in which line.
    bool add(const QByteArray& xml, QString& error);

    /// In the order of declaration.
    const std::vector<ActionDefinition>& actions() const { return _actions; }
    /// As Qt::Key; 0 when there is none.
    int shortcutKey(const QString& id) const { return _keys.value(id); }
    /// Null elements when there is none.
    QDomElement menu(const QString& id) const { return _menus.value(id); }
    QDomElement toolbar(const QString& id) const { return _toolbars.value(id); }

private:
    bool read(const QDomElement& element, QString& error);
    bool readAction(const QDomElement& element, QString& error);
    bool readShortcut(const QDomElement& element, QString& error);
    bool readItems(const QDomElement& element, QString& error) const;
    bool knowsAction(const QString& id) const;

    std::vector<ActionDefinition> _actions;
    QHash<QString, int> _keys;
    QHash<QString, QDomElement> _menus;
    QHash<QString, QDomElement> _toolbars;
};
