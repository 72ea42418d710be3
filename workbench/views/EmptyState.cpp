// SPDX-License-Identifier: MIT

#include "workbench/views/EmptyState.h"

#include <QEvent>
#include <QMouseEvent>
#include <algorithm>
#include <utility>

namespace {

constexpr int widest = 320;
constexpr int padding = 12;

} // namespace

EmptyState::EmptyState(QWidget* viewport, Text text)
    : QLabel(viewport)
    , _currentText(std::move(text))
{
    setObjectName(QStringLiteral("EmptyState"));
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setMargin(padding);
    setTextFormat(Qt::RichText);
    viewport->installEventFilter(this);
    connect(this, &QLabel::linkHovered, this,
            [this](const QString& link) { _isOverLink = !link.isEmpty(); });
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

/// A view that hears of a press waits for the release, which a label would keep to itself.
void EmptyState::mousePressEvent(QMouseEvent* event)
{
    QLabel::mousePressEvent(event);
    _isPressed = _isOverLink;
    event->setAccepted(_isPressed);
}

void EmptyState::mouseReleaseEvent(QMouseEvent* event)
{
    const bool isOwn = std::exchange(_isPressed, false);
    QLabel::mouseReleaseEvent(event);
    event->setAccepted(isOwn);
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
