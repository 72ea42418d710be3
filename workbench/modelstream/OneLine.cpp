// SPDX-License-Identifier: MIT
#include "workbench/modelstream/OneLine.h"

QString oneLine(const QString& text)
{
    QString line = text;
    for (QChar& character : line) {
        const QChar::Category category = character.category();
        const bool breaksLine =
            category == QChar::Separator_Line || category == QChar::Separator_Paragraph;
        // Surrogates come in pairs that can be printed together but not alone.
        if (breaksLine || (!character.isPrint() && !character.isSurrogate()))
            character = QLatin1Char(' ');
    }
    return line;
}

QString shortLine(const QString& text, int limit)
{
    QString line = oneLine(text).simplified();
    if (line.size() > limit)
        line = line.left(limit - 1).trimmed() + QChar(0x2026);
    return line;
}
