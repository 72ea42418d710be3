// SPDX-License-Identifier: MIT
#pragma once

#include <QToolBar>

class HostSession;
class Playback;
class QSpinBox;
class TimelineRows;

/// The buttons that go through the frames of the scene and play it, with the rate and the current
/// frame. Their actions can be put into menus too; their keys hold where the actions are added.
class TransportBar : public QToolBar
{
    Q_OBJECT

public:
    /// None is owned; all must outlive the bar.
    TransportBar(HostSession& session, const TimelineRows& rows, Playback& playback,
                 QWidget* parent);

    QAction* playAction() const { return _play; }
    QAction* loopAction() const { return _loop; }
    /// All of the actions, in the order of the buttons.
    QList<QAction*> transportActions() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    QAction* addButton(int icon, const QString& text, const QKeySequence& key);
    void createActions();
    void showPlaying(bool playing);
    void enable();
    void drawIcons();

    HostSession& _session;
    const TimelineRows& _rows;
    Playback& _playback;
    QAction* _first = nullptr;
    QAction* _previous = nullptr;
    QAction* _play = nullptr;
    QAction* _next = nullptr;
    QAction* _last = nullptr;
    QAction* _loop = nullptr;
};
