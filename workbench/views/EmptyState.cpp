// SPDX-License-Identifier: MIT

#include "workbench/views/EmptyState.h"

#include <QEvent>
#include <algorithm>
#include <utility>

namespace {

constexpr int widest = 320;
constexpr int padding = 12;

} // namespace

EmptyState::EmptyState(QWidget* over, Text text)
    : QLabel(over)
    , _currentText(std::move(text))
{
    setObjectName(QStringLiteral("EmptyState"));
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setMargin(padding);
    setTextFormat(Qt::RichText);
    over->installEventFilter(this);
    refresh();
}

void EmptyState::refresh()
{
    const QString now = _currentText();
    if (now != text()) {
        setText(now);
        setAccessibleName(now);
    }
    setVisible(!now.isEmpty());
    place();
}

bool EmptyState::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Show)
        place();
    return QLabel::eventFilter(watched, event);
}

void EmptyState::place()
{
    const QSize available = parentWidget()->size();
    const int width = std::min(widest, available.width());
    const QSize needed(width, heightForWidth(width));
    setGeometry(QRect(QPoint((available.width() - needed.width()) / 2,
                             std::max(0, (available.height() - needed.height()) / 2)),
                      needed));
}
