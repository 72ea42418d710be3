// SPDX-License-Identifier: MIT
#include "Dialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>

namespace {

constexpr int milliseconds = 10;

QAbstractButton* buttonOf(const QWidget& dialog, const QString& text)
{
    for (QAbstractButton* button : dialog.findChildren<QAbstractButton*>()) {
        if (button->text().remove(u'&') == text)
            return button;
    }
    return nullptr;
}

/// A dialog that has no such button must not be waited for.
void giveUp(QWidget& dialog, const QString& wanted)
{
    QTest::qFail(qPrintable(QStringLiteral("There is no button ") + wanted), __FILE__, __LINE__);
    dialog.close();
}

} // namespace

Dialogs::Dialogs()
{
    _timer.callOnTimeout([this] { look(); });
    _timer.start(milliseconds);
}

void Dialogs::look()
{
    QWidget* dialog = QApplication::activeModalWidget();
    const auto* box = qobject_cast<QMessageBox*>(dialog);
    if (!dialog || !dialog->isVisible() || (!box && !qobject_cast<QFileDialog*>(dialog)))
        return;
    if (_busy.contains(dialog))
        return;
    const QString text = box ? box->text() : dialog->windowTitle();
    _texts += text;
    Answer answer = escape();
    if (_answers.empty()) {
        _unexpected += text;
    } else {
        answer = _answers.front();
        _answers.pop_front();
    }
    // An answer may bring up another dialog before it returns, and a timer does not go off while
    // it is being heard.
    _busy.append(dialog);
    QTimer::singleShot(0, &_timer, [this, answer, dialog = QPointer<QWidget>(dialog)] {
        if (dialog)
            answer(*dialog);
        _busy.removeIf([&](const QPointer<QWidget>& each) { return !each || each == dialog; });
    });
}

Dialogs::Answer Dialogs::click(const QString& text)
{
    return [text](QWidget& dialog) {
        if (QAbstractButton* button = buttonOf(dialog, text))
            QTest::mouseClick(button, Qt::LeftButton);
        else
            giveUp(dialog, text);
    };
}

Dialogs::Answer Dialogs::press(const QString& text)
{
    return [text](QWidget& dialog) {
        const QAbstractButton* button = buttonOf(dialog, text);
        if (!button) {
            giveUp(dialog, text);
            return;
        }
        constexpr int mostKeys = 10;
        for (int i = 0; i < mostKeys && !button->hasFocus(); ++i)
            QTest::keyClick(dialog.windowHandle(), Qt::Key_Tab);
        if (button->hasFocus())
            QTest::keyClick(dialog.windowHandle(), Qt::Key_Space);
        else
            giveUp(dialog, text);
    };
}

Dialogs::Answer Dialogs::escape()
{
    return [](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); };
}

Dialogs::Answer Dialogs::choose(const QString& path)
{
    return [path](QWidget& dialog) {
        auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        name->setText(path);
        QTest::keyClick(name, Qt::Key_Return);
    };
}
