// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <utility>
#include <vector>

class ExposureCommands;
class HostSession;
class QAction;
class QKeySequence;
class QMenu;
class QWidget;
class TimelineCursor;
class TimelineModels;
class TimelineRows;

/// What can be done on the time line by key or menu. The actions belong to the view, which triggers
/// those whose key is pressed while it has the focus.
class TimelineActions : public QObject
{
    Q_OBJECT

public:
    /// What the actions work on. Nothing of it is owned; all of it must outlive the actions.
    struct Subject
    {
        HostSession& session;
        const TimelineRows& rows;
        TimelineCursor& cursor;
        ExposureCommands& commands;
        const TimelineModels& models;
    };

    /// Adds the actions to the view, and keeps them enabled as what is selected allows.
    TimelineActions(const Subject& subject, QWidget* view);

    /// The context menu for the frame of the current row: the edits of the exposure that is
    /// selected or, where nothing is, the models that can be shown there.
    void fillMenu(QMenu& menu, int frame);

private:
    using Allowed = bool (ExposureCommands::*)() const;
    void addEdit(const QString& text, const QKeySequence& key, Allowed allowed,
                 void (ExposureCommands::*edit)());
    QAction* addKey(const QString& text, const QKeySequence& key);
    void addEdits();
    void addNudges();
    void addWalks();
    void fillOffers(QMenu& menu, int frame);
    void enable();

    Subject _subject;
    QWidget* _view;
    /// The edits that the context menu shows, with what they need to be possible.
    std::vector<std::pair<QAction*, Allowed>> _edits;
};
