// SPDX-License-Identifier: MIT

#include "workbench/window/MessageBar.h"

#include <QAccessible>
#include <QAction>
#include <QEvent>
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
    _text->installEventFilter(this);
    addWidget(_text);
    QAction* close = addAction(style()->standardIcon(QStyle::SP_TitleBarCloseButton),
                               tr("Close the messages"), this, &MessageBar::clear);
    close->setShortcut(Qt::Key_Escape);
    close->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    // Buttons of tool bars are passed over by Tab, since menus have their actions as well.
    widgetForAction(close)->setFocusPolicy(Qt::TabFocus);
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

bool MessageBar::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == _text && event->type() == QEvent::Resize)
        fitHeight();
    return QToolBar::eventFilter(watched, event);
}

/// A tool bar asks a text for its height before it knows its width, and leaves too much room.
void MessageBar::fitHeight()
{
    if (!_messages.isEmpty())
        _text->setFixedHeight(_text->heightForWidth(_text->width()));
}

void MessageBar::refresh()
{
    QStringList lines = _messages;
    const auto left = static_cast<int>(lines.size()) - mostLines;
    if (left > 0) {
        lines = lines.mid(left);
        lines.prepend(tr("Earlier messages: %1").arg(left));
    }
    _text->setText(lines.join(u'\n'));
    fitHeight();
    setVisible(!_messages.isEmpty());
}
