// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QToolBar>

class QLabel;

/// Says at the top of the window what went wrong, without getting in the way: it stays until it is
/// closed. Several messages stand below each other, the last one at the bottom.
class MessageBar : public QToolBar
{
    Q_OBJECT

public:
    explicit MessageBar(QWidget* parent = nullptr);

    /// Adds a line. One that stands there already is not said twice.
    void add(const QString& message);
    /// Empty while the bar is hidden.
    QStringList messages() const { return _messages; }

    bool eventFilter(QObject* watched, QEvent* event) override;

public slots:
    /// Takes all lines away, and with them the bar.
    void clear();

    /// Shows what there is to say, and only then the bar: a restored layout knows nothing of it.
    void refresh();

private:
    void fitHeight();

    QStringList _messages;
    QLabel* _text;
};
