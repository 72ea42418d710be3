// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QAction;
class QLineEdit;
class QMenuBar;
class QSortFilterProxyModel;
class QStandardItemModel;
class QTreeView;

/// Finds any entry of the menus by words of its name, shows its keys, and performs it. What cannot
/// be done now is shown in grey.
class ActionPalette : public QDialog
{
    Q_OBJECT

public:
    /// The menu bar is not owned and must outlive the palette.
    ActionPalette(const QMenuBar& menuBar, QWidget* parent);

    /// Lists these actions, too, which are in no menu, under the title. Not owned; they must
    /// outlive the palette.
    void addActions(const QString& title, const QList<QAction*>& actions);
    /// Lists the actions as they are now and shows the palette over its parent.
    void open() override;

    /// Parts of the palette, which it owns.
    QLineEdit* field() const { return _field; }
    QTreeView* list() const { return _list; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addMenu(const QList<QAction*>& actions, const QString& path);
    void filter(const QString& text);
    void selectFirst();
    void performCurrent();

    const QMenuBar& _menuBar;
    QList<std::pair<QString, QList<QAction*>>> _others;
    QLineEdit* _field;
    QTreeView* _list;
    QStandardItemModel* _actions;
    QSortFilterProxyModel* _found;
};
