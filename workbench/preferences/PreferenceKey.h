// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <vector>

/// One preference that the views or the workbench read: where it is kept, what it is when it was
/// never set, and how it is shown to the user. A value.
struct PreferenceKey
{
    Q_DECLARE_TR_FUNCTIONS(PreferenceKey)

public:
    enum Kind
    {
        Colour,
        Font,
        Choice,
        Switch,
        Integer
    };
    enum Page
    {
        GraphViewColours,
        GraphView,
        Appearance
    };

    /// All of them, page by page, in the order in which they are shown.
    static std::vector<PreferenceKey> all();
    static std::vector<PreferenceKey> ofPage(Page page);
    /// Which of the themes the user wants, a ThemeSwitch::Choice.
    static QString themeKey();

    QString key;
    Kind kind;
    Page page;
    /// A packed colour as unsigned int, a family as QString, an index or a number as int, or a
    /// bool.
    QVariant defaultValue;
    /// With a mnemonic that no other label of the page has.
    QString label;
    /// What the user has to know about it in advance; often empty.
    QString note = {};
    /// The texts of a choice, by index.
    QStringList choices = {};
    /// The range of an integer.
    int minimum = 0;
    int maximum = 0;
};
