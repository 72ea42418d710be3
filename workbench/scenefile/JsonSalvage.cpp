// SPDX-License-Identifier: MIT
#include "workbench/scenefile/JsonSalvage.h"

#include <algorithm>

QByteArray jsonSalvagedBefore(const QByteArray& json, qsizetype offset)
{
    // Closing brackets that are due, the innermost last.
    QByteArray due;
    qsizetype end = 0;
    QByteArray dueAtEnd;
    const auto isComplete = [&](qsizetype position) {
        end = position;
        dueAtEnd = due;
    };

    bool inString = false;
    bool escaped = false;
    const qsizetype size = std::clamp(offset, qsizetype(0), json.size());
    for (qsizetype i = 0; i < size; ++i) {
        const char c = json[i];
        if (inString) {
            inString = escaped || c != '"';
            escaped = !escaped && c == '\\';
            continue;
        }
        switch (c) {
        case '"':
            inString = true;
            break;
        case '{':
        case '[':
            due.append(c == '{' ? '}' : ']');
            isComplete(i + 1);
            break;
        case '}':
        case ']':
            if (!due.endsWith(c))
                i = size;
            else {
                due.chop(1);
                isComplete(i + 1);
            }
            break;
        case ',':
            // What follows may be half a number or a name without its value.
            isComplete(i);
            break;
        default:
            break;
        }
    }
    std::reverse(dueAtEnd.begin(), dueAtEnd.end());
    return json.left(end) + dueAtEnd;
}
