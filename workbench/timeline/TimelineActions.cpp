// SPDX-License-Identifier: MIT
#include "workbench/timeline/TimelineActions.h"

#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUSceneChangeManager.h"
#include "referencehost/session/HostSession.h"
#include "workbench/timeline/ExposureCommands.h"
#include "workbench/timeline/SceneFrame.h"
#include "workbench/timeline/TimelineModels.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <functional>

TimelineActions::TimelineActions(const Subject& subject, QWidget* view)
    : QObject(view)
    , _subject(subject)
    , _view(view)
{
    addEdits();
    addNudges();
    addWalks();
    connect(&subject.cursor, &TimelineCursor::changed, this, &TimelineActions::enable);
    connect(subject.session.context().changeManager(), &TUSceneChangeManager::currentFrameChanged,
            this, &TimelineActions::enable);
    enable();
}

QAction* TimelineActions::addKey(const QString& text, const QKeySequence& key)
{
    auto* action = new QAction(text, this);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    _view->addAction(action);
    return action;
}

void TimelineActions::addEdit(const QString& text, const QKeySequence& key, Allowed allowed,
                              void (ExposureCommands::*edit)())
{
    QAction* action = addKey(text, key);
    connect(action, &QAction::triggered, this,
            [this, edit] { std::invoke(edit, _subject.commands); });
    _edits.emplace_back(action, allowed);
}

void TimelineActions::addEdits()
{
    using Commands = ExposureCommands;
    addEdit(tr("&Clear Drawing"), QKeySequence::Delete, &Commands::canEdit, &Commands::clear);
    addEdit(tr("&Split at Current Frame"), Qt::CTRL | Qt::Key_B, &Commands::canSplit,
            &Commands::split);
    addEdit(tr("&Extend to End"), Qt::CTRL | Qt::Key_E, &Commands::canExtend,
            &Commands::extendToEnd);
    addEdit(tr("&Hold on This Frame Only"), Qt::CTRL | Qt::Key_H, &Commands::canHold,
            &Commands::hold);
    addEdit(tr("&Duplicate After"), Qt::CTRL | Qt::Key_D, &Commands::canDuplicate,
            &Commands::duplicateAfter);
}

void TimelineActions::addNudges()
{
    using Nudge = void (ExposureCommands::*)(int);
    const auto add = [this](const QString& text, QKeyCombination key, Nudge nudge, int frames) {
        connect(addKey(text, key), &QAction::triggered, this,
                [this, nudge, frames] { std::invoke(nudge, _subject.commands, frames); });
    };
    using Commands = ExposureCommands;
    add(tr("Move Earlier"), Qt::ALT | Qt::Key_Left, &Commands::moveBy, -1);
    add(tr("Move Later"), Qt::ALT | Qt::Key_Right, &Commands::moveBy, 1);
    add(tr("End Earlier"), Qt::SHIFT | Qt::Key_Left, &Commands::moveLastBy, -1);
    add(tr("End Later"), Qt::SHIFT | Qt::Key_Right, &Commands::moveLastBy, 1);
    add(tr("Begin Earlier"), Qt::CTRL | Qt::Key_Left, &Commands::moveFirstBy, -1);
    add(tr("Begin Later"), Qt::CTRL | Qt::Key_Right, &Commands::moveFirstBy, 1);
}

void TimelineActions::addWalks()
{
    using Step = void (TimelineCursor::*)(int);
    const auto add = [this](const QString& text, Qt::Key key, Step step, int count) {
        connect(addKey(text, key), &QAction::triggered, this,
                [this, step, count] { std::invoke(step, _subject.cursor, count); });
    };
    add(tr("Row Above"), Qt::Key_Up, &TimelineCursor::stepRow, -1);
    add(tr("Row Below"), Qt::Key_Down, &TimelineCursor::stepRow, 1);
    add(tr("Previous Drawing"), Qt::Key_BracketLeft, &TimelineCursor::stepExposure, -1);
    add(tr("Next Drawing"), Qt::Key_BracketRight, &TimelineCursor::stepExposure, 1);

    using Boundary = int (*)(const ExposureEdits::Exposures&, int);
    const auto addJump = [this](const QString& text, Qt::Key key, Boundary boundary) {
        connect(addKey(text, key), &QAction::triggered, this, [this, boundary] {
            HostSession& session = _subject.session;
            if (const TimelineRows::Row* row = _subject.rows.row(_subject.cursor.row()))
                SceneFrame::goTo(session, boundary(row->exposures, SceneFrame::current(session)));
        });
    };
    addJump(tr("Previous Change of Drawing"), Qt::Key_PageUp, &ExposureEdits::boundaryBefore);
    addJump(tr("Next Change of Drawing"), Qt::Key_PageDown, &ExposureEdits::boundaryAfter);
}

void TimelineActions::enable()
{
    for (const auto& [action, allowed] : _edits)
        action->setEnabled(std::invoke(allowed, _subject.commands));
}

void TimelineActions::fillMenu(QMenu& menu, int frame)
{
    const TimelineRows::Row* row = _subject.rows.row(_subject.cursor.row());
    if (!row)
        return;
    if (_subject.commands.isLocked(_subject.cursor.row())) {
        menu.addAction(tr("\"%1\" is locked").arg(row->name))->setEnabled(false);
        menu.addSeparator();
    }
    if (_subject.cursor.selected()) {
        for (const auto& [action, allowed] : _edits)
            menu.addAction(action);
    } else {
        fillOffers(menu, frame);
    }
}

void TimelineActions::fillOffers(QMenu& menu, int frame)
{
    const int row = _subject.cursor.row();
    for (const TimelineModels::Offer& offer : _subject.models.offersFor(*_subject.rows.row(row))) {
        QString shown = offer.name;
        // An ampersand of the name is not a key of the menu.
        shown.replace(QLatin1Char('&'), QLatin1String("&&"));
        QAction* action = menu.addAction(tr("Show \"%1\" Here").arg(shown));
        action->setEnabled(!_subject.commands.isLocked(row));
        const UT_SharedWeakPtr<MO_ElementModule> element(_subject.rows.element(row));
        connect(action, &QAction::triggered, this, [this, element, frame, offer] {
            _subject.commands.show(_subject.rows.rowOf(element.get()), frame, offer.model,
                                   offer.name);
        });
    }
}
