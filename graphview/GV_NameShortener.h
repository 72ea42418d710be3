// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QFontMetrics>
#include <QHash>
#include <QString>

/// Shortens names that are too wide for a box, exactly as QFontMetrics measures and elides them in
/// the given font. Measuring a text costs microseconds, and a model has a name for every node, so
/// what is certain without measuring is not measured: in a font that gives all plain characters
/// one advance, the length of a plain name says nearly always whether it fits, and always where it
/// is cut.
class GV_NameShortener
{
public:
    explicit GV_NameShortener(const QFont& font);

    const QFont& font() const { return _font; }

    /// Empty when the name fits; otherwise the name elided in the middle so that it does.
    QString shorten(const QString& name);

private:
    struct Cut
    {
        qsizetype left;
        qsizetype right;
    };

    QString measured(const QString& name);
    Cut cutOfLength(qsizetype length);

    QFont _font;
    QFontMetrics _metrics;
    /// The advance shared by all plain characters; 0 when the font has no such thing.
    double _advance = 0.0;
    /// The lengths up to which a plain name surely fits, and from which on it surely does not.
    qsizetype _surelyFits = 0;
    qsizetype _surelyTooWide = 0;
    QString _ellipsis;
    QHash<qsizetype, Cut> _cuts;
    QHash<QString, QString> _measured;
};
