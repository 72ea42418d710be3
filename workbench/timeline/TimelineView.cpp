// SPDX-License-Identifier: MIT
#include "workbench/timeline/TimelineView.h"

#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUSceneChangeManager.h"
#include "referencehost/session/HostSession.h"
#include "workbench/timeline/SceneFrame.h"
#include "workbench/timeline/TimelinePainter.h"

#include <QFocusEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

namespace {

constexpr int shownRows = 6;
constexpr int smallestWidth = 240;
/// Where a frame that was out of view comes to stand, as a share of the width from the side that it
/// came in from.
constexpr double landing = 0.125;

} // namespace

TimelineView::TimelineView(HostSession& session, QWidget* parent)
    : QAbstractScrollArea(parent)
    , _session(session)
    , _rows(session, nullptr)
    , _cursor(session, _rows, nullptr)
    , _commands(session, _rows, _cursor)
    , _actions(new TimelineActions({session, _rows, _cursor, _commands, _models}, this))
{
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setAccessibleName(tr("Timeline"));
    viewport()->setMouseTracking(true);
    connect(&_rows, &TimelineRows::changed, this, &TimelineView::followRows);
    connect(&_cursor, &TimelineCursor::changed, this, &TimelineView::followCursor);
    const TUSceneChangeManager* changes = session.context().changeManager();
    connect(changes, &TUSceneChangeManager::currentFrameChanged, this, &TimelineView::followFrame);
    connect(changes, &TUSceneChangeManager::currentSceneChanged, this, &TimelineView::followFrame);
    connect(changes, &TUSceneChangeManager::selectionChanged, viewport(),
            qOverload<>(&QWidget::update));
    relayout();
    describe();
}

TimelineView::~TimelineView() = default;

QSize TimelineView::sizeHint() const
{
    return {2 * smallestWidth, _layout.ruler().height() + shownRows * _layout.rowHeight() +
                                   horizontalScrollBar()->sizeHint().height()};
}

QSize TimelineView::minimumSizeHint() const
{
    return {smallestWidth, _layout.ruler().height() + 2 * _layout.rowHeight() +
                               horizontalScrollBar()->sizeHint().height()};
}

void TimelineView::refresh()
{
    viewport()->update();
}

void TimelineView::zoom(double factor, double x)
{
    _layout.axis().zoom(factor, std::max(0.0, x - _layout.frames().left()));
    updateBars();
    viewport()->update();
}

void TimelineView::showFrame(int frame)
{
    const FrameAxis& axis = _layout.axis();
    const int width = _layout.frames().width();
    const double visible = width / axis.pixelsPerFrame();
    // Half a pixel of a frame out of view is not out of view.
    const double slack = 0.5 / axis.pixelsPerFrame();
    const bool before = frame < axis.origin() - slack;
    if (!before && frame + 1.0 <= axis.origin() + visible + slack)
        return;
    // A held pointer must not lose what it holds, so then the frames move only as far as needed.
    const double share = _gesture == Gesture::None ? landing : 0;
    scrollTo(before ? frame - (share > 0 ? 1 - share : 0) * visible
                    : frame + 1.0 - (share > 0 ? share : 1) * visible);
}

void TimelineView::showRow(int row)
{
    if (row < 0 || row >= _rows.count())
        return;
    const QRect area = _layout.rowRect(row);
    const QRect view = _layout.frames();
    QScrollBar* bar = verticalScrollBar();
    if (area.top() < view.top())
        bar->setValue(bar->value() + area.top() - view.top());
    else if (area.bottom() > view.bottom())
        bar->setValue(bar->value() + area.bottom() - view.bottom());
}

void TimelineView::scrollTo(double origin)
{
    _layout.axis().setOrigin(origin);
    updateBars();
    viewport()->update();
}

void TimelineView::relayout()
{
    _layout.fit(viewport()->size(), fontMetrics());
    updateBars();
    viewport()->update();
}

void TimelineView::updateBars()
{
    const FrameAxis& axis = _layout.axis();
    const int visible = axis.framesIn(_layout.frames().width());
    const qint64 content = std::max(_rows.lastFrame(), SceneFrame::current(_session));
    // Half a view more than there is, so that something can be dragged to later frames.
    const qint64 last = std::max<qint64>(content - visible / 2, static_cast<qint64>(axis.origin()));
    QScrollBar* across = horizontalScrollBar();
    const int value = static_cast<int>(axis.origin()) - 1;
    across->setRange(0, static_cast<int>(last - 1));
    across->setPageStep(visible);
    across->setSingleStep(std::max(1, visible / 20));
    across->setValue(value);

    QScrollBar* down = verticalScrollBar();
    const int room = _layout.frames().height();
    down->setRange(0, std::max(0, _rows.count() * _layout.rowHeight() - room));
    down->setPageStep(room);
    down->setSingleStep(_layout.rowHeight());
    _layout.setTop(down->value());
}

void TimelineView::scrollContentsBy(int dx, int dy)
{
    Q_UNUSED(dx);
    Q_UNUSED(dy);
    // The bar knows whole frames only; a fraction stays while the bar agrees with the rest.
    const int value = horizontalScrollBar()->value();
    if (value != static_cast<int>(_layout.axis().origin()) - 1)
        _layout.axis().setOrigin(value + 1.0);
    _layout.setTop(verticalScrollBar()->value());
    viewport()->update();
}

void TimelineView::followRows()
{
    const TimelineRows::Row* dragged = _drag ? _rows.row(_drag->row()) : nullptr;
    if (_drag && (!dragged || dragged->exposures != _drag->before()))
        cancelDrag();
    updateBars();
    viewport()->update();
}

void TimelineView::showEvent(QShowEvent* event)
{
    QAbstractScrollArea::showEvent(event);
    showFrame(SceneFrame::current(_session));
}

void TimelineView::followFrame()
{
    updateBars();
    // Before it is shown, the view does not know how much of the frames it will show.
    if (isVisible())
        showFrame(SceneFrame::current(_session));
    viewport()->update();
}

void TimelineView::followCursor()
{
    showRow(_cursor.row());
    if (const ExposureEdits::Exposure* selected = _cursor.selected()) {
        // Enough that some of it is in view.
        const double first = _layout.axis().origin();
        const double last = first + _layout.axis().framesIn(_layout.frames().width()) - 1;
        if (selected->lastFrame < first)
            showFrame(selected->lastFrame);
        else if (selected->firstFrame > last)
            showFrame(selected->firstFrame);
    }
    describe();
    viewport()->update();
}

void TimelineView::describe()
{
    const TimelineRows::Row* row = _rows.row(_cursor.row());
    const ExposureEdits::Exposure* selected = _cursor.selected();
    if (!row)
        setAccessibleDescription(_rows.count() > 0 ? tr("No row is selected") : tr("Empty"));
    else if (!selected)
        setAccessibleDescription(row->name);
    else if (ExposureEdits::isOpen(*selected))
        setAccessibleDescription(
            tr("%1, from frame %2 on").arg(row->name).arg(selected->firstFrame));
    else
        setAccessibleDescription(tr("%1, frames %2 to %3")
                                     .arg(row->name)
                                     .arg(selected->firstFrame)
                                     .arg(selected->lastFrame));
}

void TimelineView::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event);
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), palette().color(QPalette::Base));
    if (_rows.count() == 0) {
        painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
        painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap,
                         tr("Open a model to see when it is shown."));
        return;
    }
    const TimelinePainter::State state{_layout,
                                       _rows,
                                       _models,
                                       _cursor.row(),
                                       _cursor.exposure(),
                                       SceneFrame::current(_session),
                                       _drag ? &*_drag : nullptr,
                                       hasFocus(),
                                       palette()};
    TimelinePainter(painter, state).paint();
}

void TimelineView::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    relayout();
}

void TimelineView::changeEvent(QEvent* event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        relayout();
    else if (event->type() == QEvent::PaletteChange)
        viewport()->update();
}

void TimelineView::focusInEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void TimelineView::focusOutEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusOutEvent(event);
    // A menu takes the focus for a moment; anything else ends what the pointer began.
    if (event->reason() != Qt::PopupFocusReason)
        cancelDrag();
    viewport()->update();
}
