// SPDX-License-Identifier: MIT

#include "workbench/window/ActionPalette.h"

#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QRegularExpression>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

constexpr int actionRole = Qt::UserRole;
constexpr int blankExtent = 16;
constexpr QSize initialSize(700, 380);

QString plain(const QString& text)
{
    // A single ampersand marks the key of an entry.
    static const QRegularExpression mark(QStringLiteral("&(.)"));
    return QString(text).replace(mark, QStringLiteral("\\1"));
}

QString keysOf(const QAction& action)
{
    return QKeySequence::listToString(action.shortcuts(), QKeySequence::NativeText);
}

/// Keeps the names of actions without an icon in line with the others.
QIcon blankIcon()
{
    QPixmap blank(blankExtent, blankExtent);
    blank.fill(Qt::transparent);
    return QIcon(blank);
}

/// Each word anywhere, in any order and whatever its case.
QRegularExpression allWords(const QString& text)
{
    QString pattern;
    for (const QString& word : text.split(u' ', Qt::SkipEmptyParts))
        pattern += QStringLiteral("(?=.*%1)").arg(QRegularExpression::escape(word));
    return QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption);
}

} // namespace

ActionPalette::ActionPalette(const QMenuBar& menuBar, QWidget* parent)
    : QDialog(parent)
    , _menuBar(menuBar)
    , _field(new QLineEdit)
    , _list(new QTreeView)
    , _actions(new QStandardItemModel(this))
    , _found(new QSortFilterProxyModel(this))
{
    setWindowTitle(tr("Find Action"));
    setModal(true);
    resize(initialSize);
    _field->setPlaceholderText(tr("Type words of what you want to do"));
    _field->setAccessibleName(tr("Words to find"));
    _field->setClearButtonEnabled(true);
    _field->installEventFilter(this);

    _found->setSourceModel(_actions);
    _list->setModel(_found);
    _list->setAccessibleName(tr("Actions"));
    _list->setRootIsDecorated(false);
    _list->setUniformRowHeights(true);
    _list->setAllColumnsShowFocus(true);
    _list->setEditTriggers(QAbstractItemView::NoEditTriggers);

    auto* column = new QVBoxLayout(this);
    column->addWidget(_field);
    column->addWidget(_list);
    connect(_field, &QLineEdit::textChanged, this, &ActionPalette::filter);
    connect(_field, &QLineEdit::returnPressed, this, &ActionPalette::performCurrent);
    connect(_list, &QTreeView::activated, this, &ActionPalette::performCurrent);
}

void ActionPalette::addActions(const QString& title, const QList<QAction*>& actions)
{
    _others.append({title, actions});
}

void ActionPalette::open()
{
    _actions->clear();
    _actions->setHorizontalHeaderLabels({tr("Action"), tr("Keys")});
    addMenu(_menuBar.actions(), {});
    for (const auto& [title, actions] : _others)
        addMenu(actions, title + QStringLiteral(" \u203a "));
    _list->header()->setStretchLastSection(false);
    _list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    _list->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    _field->clear();
    filter({});
    QDialog::open();
    _field->setFocus();
}

void ActionPalette::addMenu(const QList<QAction*>& actions, const QString& path)
{
    for (QAction* action : actions) {
        if (action->isSeparator() || !action->isVisible())
            continue;
        const QString text = path + plain(action->text()).remove(QStringLiteral("..."));
        if (action->menu()) {
            // Menus bring their entries up to date when they open.
            emit action->menu()->aboutToShow();
            addMenu(action->menu()->actions(), text + QStringLiteral(" \u203a "));
            continue;
        }
        auto* name =
            new QStandardItem(action->icon().isNull() ? blankIcon() : action->icon(), text);
        auto* keys = new QStandardItem(keysOf(*action));
        if (action->isCheckable())
            name->setCheckState(action->isChecked() ? Qt::Checked : Qt::Unchecked);
        name->setData(QVariant::fromValue(QPointer<QAction>(action)), actionRole);
        for (QStandardItem* item : {name, keys})
            item->setEnabled(action->isEnabled());
        _actions->appendRow({name, keys});
    }
}

void ActionPalette::filter(const QString& text)
{
    _found->setFilterRegularExpression(allWords(text));
    selectFirst();
}

void ActionPalette::selectFirst()
{
    for (int row = 0; row < _found->rowCount(); ++row) {
        const QModelIndex index = _found->index(row, 0);
        if (index.flags().testFlag(Qt::ItemIsEnabled)) {
            _list->setCurrentIndex(index);
            return;
        }
    }
    _list->setCurrentIndex(QModelIndex());
}

void ActionPalette::performCurrent()
{
    const QModelIndex current = _list->currentIndex().siblingAtColumn(0);
    const auto action = current.data(actionRole).value<QPointer<QAction>>();
    if (!action || !action->isEnabled())
        return;
    accept();
    // The action may open a window of its own, which must not lie below the palette.
    QMetaObject::invokeMethod(action, &QAction::trigger, Qt::QueuedConnection);
}

bool ActionPalette::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            QApplication::sendEvent(_list, event);
            return true;
        default:
            break;
        }
    }
    return QDialog::eventFilter(watched, event);
}
