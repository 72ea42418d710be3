// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/preferences/Theme.h"

#include <QObject>
#include <QString>
#include <optional>

/// Keeps the look of the application in step with the theme that the user wants, which is a
/// preference, and, where that is to look like the system, with the desktop's palette. While
/// there is one, style, palette and style sheet of the application belong to it; when it goes, the
/// desktop's own look is back.
class ThemeSwitch : public QObject
{
    Q_OBJECT

public:
    /// The numbers are those of the preference.
    enum Choice
    {
        System = 0,
        Light = 1,
        Dark = 2
    };

    /// Takes the application's style for the desktop's own, and applies the theme. One that is
    /// given holds whatever the preference says.
    explicit ThemeSwitch(std::optional<Choice> given = std::nullopt, QObject* parent = nullptr);
    ~ThemeSwitch() override;

    /// light, dark or system; nothing when the text names no theme.
    static std::optional<Choice> fromName(const QString& name);

    /// What is wanted.
    Choice choice() const;
    /// What the application looks like.
    Theme::Kind kind() const { return _kind; }
    /// Whether the preference is of no consequence.
    bool isOverridden() const { return _given.has_value(); }

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// The application looks light now, or dark, and did not before.
    void kindChanged();

private:
    void follow();
    void apply(Choice choice);
    void showDesktopLook();
    void showOwnLook(Theme::Kind kind);
    void showStyleSheet(Theme::Kind kind);

    std::optional<Choice> _given;
    QString _desktopStyle;
    std::optional<Choice> _applied;
    Theme::Kind _kind = Theme::Light;
    bool _hasOwnLook = false;
    /// While it changes the look itself, notices of that mean nothing.
    bool _applying = false;
};
