// SPDX-License-Identifier: MIT

#include "workbench/window/MessageBar.h"

#include <QAccessible>
#include <QAction>
#include <QLabel>
#include <QStyle>

namespace {

/// More lines than that would push the views out of the window.
constexpr int mostLines = 5;
constexpr int spacing = 6;

} // namespace

MessageBar::MessageBar(QWidget* parent)
    : QToolBar(tr("Messages"), parent)
    , _text(new QLabel)
{
    setObjectName(QStringLiteral("MESSAGE_BAR"));
    setMovable(false);
    setFloatable(false);
    // Whether there is something to say is not for the user to switch.
    toggleViewAction()->setVisible(false);
    auto* icon = new QLabel;
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size, size));
    icon->setContentsMargins(spacing, 0, spacing, 0);
    addWidget(icon);
    _text->setTextFormat(Qt::PlainText);
    _text->setWordWrap(true);
    _text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    _text->setAccessibleName(tr("Messages"));
    _text->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    addWidget(_text);
    addAction(style()->standardIcon(QStyle::SP_TitleBarCloseButton), tr("Close the messages"), this,
              &MessageBar::clear);
    refresh();
}

void MessageBar::add(const QString& message)
{
    if (message.isEmpty() || _messages.contains(message))
        return;
    _messages.append(message);
    refresh();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void MessageBar::clear()
{
    _messages.clear();
    refresh();
}

void MessageBar::refresh()
{
    QStringList lines = _messages;
    const auto left = static_cast<int>(lines.size()) - mostLines;
    if (left > 0) {
        lines = lines.mid(left);
        lines.prepend(tr("%n earlier message(s)", nullptr, left));
    }
    _text->setText(lines.join(u'\n'));
    setVisible(!_messages.isEmpty());
}
