// SPDX-License-Identifier: MIT
#include "workbench/timeline/TimelineView.h"

#include "workbench/timeline/SceneFrame.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMenu>
#include <QToolTip>
#include <algorithm>

// The part of the view that takes keys, and shows menus and tool tips.

namespace {

constexpr double zoomStep = 1.25;

bool isZoomIn(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Plus || event.key() == Qt::Key_Equal;
}

bool isZoomOut(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Minus;
}

bool isPlain(const QKeyEvent& event)
{
    return !(event.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier));
}

} // namespace

QAction* TimelineView::actionFor(const QKeyEvent& event) const
{
    const QKeyCombination pressed(event.modifiers() & ~Qt::KeypadModifier,
                                  static_cast<Qt::Key>(event.key()));
    const QKeySequence key(pressed);
    for (QAction* action : actions()) {
        if (action->shortcuts().contains(key))
            return action;
    }
    return nullptr;
}

bool TimelineView::event(QEvent* event)
{
    // Some of these are keys of other views too; here they mean what they mean here.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        const bool zooms = isPlain(key) && (isZoomIn(key) || isZoomOut(key));
        const bool cancels = _gesture != Gesture::None && key.key() == Qt::Key_Escape;
        if (zooms || cancels || actionFor(key)) {
            event->accept();
            return true;
        }
    }
    return QAbstractScrollArea::event(event);
}

void TimelineView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && _gesture != Gesture::None) {
        cancelDrag();
        return;
    }
    if (isPlain(*event) && (isZoomIn(*event) || isZoomOut(*event))) {
        const double middle = _layout.frames().left() + _layout.frames().width() / 2.0;
        zoom(isZoomIn(*event) ? zoomStep : 1 / zoomStep, middle);
        return;
    }
    // What the pointer holds must not be changed under it.
    if (QAction* action = actionFor(*event); action && !_drag) {
        if (_cursor.selected() && !action->isEnabled())
            sayLocked(_cursor.row());
        action->trigger();
        return;
    }
    event->ignore();
}

void TimelineView::sayLocked(int row)
{
    if (!_commands.isLocked(row))
        return;
    const QPoint pos = _layout.rowRect(row).translated(_layout.frames().left(), 0).bottomLeft();
    QToolTip::showText(viewport()->mapToGlobal(pos),
                       tr("\"%1\" is locked and cannot be edited.").arg(_rows.row(row)->name),
                       viewport());
}

void TimelineView::contextMenuEvent(QContextMenuEvent* event)
{
    QPoint pos = event->pos();
    int frame = _layout.frameAt(pos.x());
    if (event->reason() == QContextMenuEvent::Keyboard) {
        if (!_cursor.selected())
            _cursor.selectAt(SceneFrame::current(_session));
        const ExposureEdits::Exposure* selected = _cursor.selected();
        frame = selected ? std::max(1, selected->firstFrame) : SceneFrame::current(_session);
        const QRect view = _layout.frames();
        const double x = std::clamp<double>(_layout.xOf(frame), view.left(), view.right());
        pos = {static_cast<int>(x), _layout.rowRect(_cursor.row()).center().y()};
    } else if (!_layout.frames().contains(pos)) {
        return;
    } else if (_layout.rowAt(pos.y()) != _cursor.row() || !_cursor.selected()) {
        pressRow(pos, false);
    }
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    _actions->fillMenu(*menu, frame);
    if (menu->isEmpty())
        delete menu;
    else
        menu->popup(viewport()->mapToGlobal(pos));
}

QString TimelineView::textAt(const QPoint& pos) const
{
    const int index = _layout.rowAt(pos.y());
    const TimelineRows::Row* row = _rows.row(index);
    if (!row)
        return {};
    QStringList lines;
    if (_layout.frames().contains(pos)) {
        const int at = ExposureEdits::indexAt(row->exposures, _layout.frameAt(pos.x()));
        if (at < 0)
            return {};
        const ExposureEdits::Exposure& exposure = row->exposures[at];
        const QString title = _models.titleOf(exposure.model, *row);
        lines << (ExposureEdits::isOpen(exposure)
                      ? tr("%1: from frame %2 on").arg(title).arg(exposure.firstFrame)
                      : tr("%1: frames %2 to %3")
                            .arg(title)
                            .arg(exposure.firstFrame)
                            .arg(exposure.lastFrame));
    } else {
        lines << row->name;
    }
    if (_commands.isLocked(index))
        lines << tr("\"%1\" is locked and cannot be edited.").arg(row->name);
    return lines.join(u'\n');
}

bool TimelineView::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto& help = static_cast<const QHelpEvent&>(*event);
        const QString text = textAt(help.pos());
        if (text.isEmpty())
            QToolTip::hideText();
        else
            QToolTip::showText(help.globalPos(), text.toHtmlEscaped().replace(u'\n', "<br>"),
                               viewport());
        return true;
    }
    return QAbstractScrollArea::viewportEvent(event);
}
