// SPDX-License-Identifier: MIT

#include "workbench/views/FocusRing.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QEvent>
#include <QPainter>

namespace {

constexpr int thickness = 2;

} // namespace

/// The ring itself; everything but its pixels belongs to the view below.
class FocusRing::Ring : public QWidget
{
public:
    explicit Ring(QWidget* view)
        : QWidget(view)
    {
        setObjectName(QStringLiteral("FocusRing"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFocusPolicy(Qt::NoFocus);
        view->installEventFilter(this);
        setGeometry(view->rect());
        raise();
        show();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        const QRect all = rect();
        const QRegion ring =
            QRegion(all) - all.adjusted(thickness, thickness, -thickness, -thickness);
        painter.setClipRegion(ring);
        painter.fillRect(all, palette().color(QPalette::Active, QPalette::Highlight));
    }
    bool eventFilter(QObject* view, QEvent* event) override
    {
        if (event->type() == QEvent::Resize)
            setGeometry(static_cast<QWidget*>(view)->rect());
        return QWidget::eventFilter(view, event);
    }
};

FocusRing::FocusRing(QWidget* window)
    : QObject(window)
    , _window(window)
{
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* focused) { follow(focused); });
}

QWidget* FocusRing::view() const
{
    return _ring ? _ring->parentWidget() : nullptr;
}

void FocusRing::follow(QWidget* focused)
{
    auto* view = qobject_cast<QAbstractScrollArea*>(focused);
    if (view == this->view() && view)
        return;
    delete _ring;
    if (view && view->window() == _window)
        _ring = new Ring(view);
}
