// SPDX-License-Identifier: MIT

#include "workbench/docks/LogDock.h"

#include <QFontDatabase>
#include <QPlainTextEdit>

namespace {

/// Older lines go first.
constexpr int mostLines = 100000;

} // namespace

LogDock::LogDock(QWidget* parent)
    : QDockWidget(tr("Log"), parent)
    , _text(new QPlainTextEdit(this))
{
    setObjectName(QStringLiteral("LogDock"));
    _text->setReadOnly(true);
    _text->setLineWrapMode(QPlainTextEdit::NoWrap);
    _text->setMaximumBlockCount(mostLines);
    _text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    _text->setPlaceholderText(tr("Dumps of scene graphs appear here."));
    _text->setAccessibleName(tr("Log"));
    setWidget(_text);
    _previous = Diagnostics::setSink([this](const QString& text) { append(text); });
}

LogDock::~LogDock()
{
    Diagnostics::setSink(_previous);
}

void LogDock::append(const QString& text)
{
    _text->appendPlainText(text.endsWith(u'\n') ? text.chopped(1) : text);
    show();
    raise();
}
