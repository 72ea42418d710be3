// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/timeline/ExposureCommands.h"
#include "workbench/timeline/ExposureDrag.h"
#include "workbench/timeline/TimelineActions.h"
#include "workbench/timeline/TimelineModels.h"

#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <optional>

/// Shows which element shows which model on which frame: a ruler of frames, and below it a row of
/// bars for each element of the scene. The current frame is gone to on the ruler; bars are
/// selected, trimmed and moved by mouse and keys. Everything that it shows it reads from the host
/// again when that tells of a change; only what is scrolled, zoomed and dragged is its own.
class TimelineView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    /// The session is not owned and must outlive the view.
    TimelineView(HostSession& session, QWidget* parent);
    ~TimelineView() override;

    const TimelineRows& rows() const { return _rows; }
    const TimelineCursor& cursor() const { return _cursor; }
    const TimelineLayout& geometry() const { return _layout; }
    /// The names and models to be shown; call refresh() when they change.
    TimelineModels& models() { return _models; }
    /// Whether a drag is under way, and the row shows what it would be.
    bool isDragging() const { return _drag.has_value(); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    void refresh();
    /// Zooms the frames in for a factor above 1, about the x in pixels of the viewport.
    void zoom(double factor, double x);
    /// Scrolls as far as it takes to have the frame in view.
    void showFrame(int frame);
    void showRow(int row);

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void showEvent(QShowEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void followRows();
    void followFrame();
    void followCursor();
    void describe();
    void relayout();
    void updateBars();
    void scrollTo(double origin);

    QAction* actionFor(const QKeyEvent& event) const;
    QString textAt(const QPoint& pos) const;
    void sayLocked(int row);

    void pressRow(const QPoint& pos, bool toggle);
    void beginDrag();
    void continueDrag(const QPoint& pos);
    void endDrag();
    void cancelDrag();
    void travel(const QPoint& pos);
    void updateCursorShape(const QPoint& pos);
    TimelineLayout::Part partAt(const QPoint& pos) const;

    HostSession& _session;
    TimelineModels _models;
    TimelineRows _rows;
    TimelineCursor _cursor;
    ExposureCommands _commands;
    TimelineLayout _layout;
    TimelineActions* _actions;

    /// What the held button does: goes to frames on the ruler, or drags a bar once it moved enough.
    enum class Gesture
    {
        None,
        Scrub,
        Press,
        Drag
    };
    Gesture _gesture = Gesture::None;
    QPoint _pressed;
    QPoint _pointer;
    std::optional<ExposureDrag> _drag;
    /// While the pointer is held outside the frames, they travel along.
    QBasicTimer _travel;
};
