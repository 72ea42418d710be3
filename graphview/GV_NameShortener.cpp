// SPDX-License-Identifier: MIT

#include "graphview/GV_NameShortener.h"

#include "graphview/GV_LayoutGrid.h"

#include <QGlyphRun>
#include <QRawFont>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

namespace {

constexpr ushort firstPlain = 0x20;
constexpr ushort lastPlain = 0x7e;

/// How many measured names are remembered; beyond it they are forgotten all at once.
constexpr qsizetype mostMeasured = 100000;

/// Without a branch for each character, so that the compiler can look at many at once.
bool isPlain(const QString& text)
{
    bool plain = true;
    for (const QChar character : text)
        plain &= static_cast<ushort>(character.unicode() - firstPlain) <= lastPlain - firstPlain;
    return plain;
}

bool hasSpaceAtAnEnd(const QString& text)
{
    return text.startsWith(QChar(firstPlain)) || text.endsWith(QChar(firstPlain));
}

/// Every plain character next to every other one.
QString allPairs()
{
    QString pairs;
    for (ushort first = firstPlain; first <= lastPlain; ++first) {
        for (ushort second = firstPlain; second <= lastPlain; ++second)
            pairs.append(QChar(first)).append(QChar(second));
    }
    return pairs;
}

/// The advance that all plain characters have in common, whatever stands beside them; 0 when the
/// font gives them different ones, kerns them, joins them or borrows them from other fonts.
double commonAdvance(const QFont& font)
{
    const QString text = allPairs();
    QTextLayout layout(text, font);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(1e9);
    layout.endLayout();

    const QList<QGlyphRun> runs = layout.glyphRuns();
    if (runs.size() != 1)
        return 0.0;
    const QList<QPointF> positions = runs.first().positions();
    if (runs.first().glyphIndexes() != runs.first().rawFont().glyphIndexesForString(text) ||
        positions.size() != text.size())
        return 0.0;
    const double advance = positions.at(1).x() - positions.at(0).x();
    for (qsizetype i = 0; i < positions.size(); ++i) {
        if (std::abs(positions.at(i).x() - positions.at(0).x() - double(i) * advance) > 1e-6)
            return 0.0;
    }
    return advance;
}

} // namespace

GV_NameShortener::GV_NameShortener(const QFont& font)
    : _font(font)
    , _metrics(font)
    , _advance(commonAdvance(font))
{
    if (_advance <= 0.0)
        return;
    // The ink of a text may start after its first character's origin and end before its last
    // one's advance, each by less than an advance, or stick out by the font's negative bearings.
    const double overhang =
        2.0 + std::max(0, -_metrics.minLeftBearing()) + std::max(0, -_metrics.minRightBearing());
    using GV_LayoutGrid::labelWidth;
    _surelyFits = static_cast<qsizetype>(std::max(0.0, (labelWidth - overhang) / _advance));
    _surelyTooWide = static_cast<qsizetype>(labelWidth / _advance) + 4;
}

QString GV_NameShortener::shorten(const QString& name)
{
    const qsizetype length = name.size();
    if (_advance <= 0.0 || (length > _surelyFits && length < _surelyTooWide) || !isPlain(name))
        return measured(name);
    if (length <= _surelyFits)
        return {};
    if (hasSpaceAtAnEnd(name))
        return measured(name);
    const Cut cut = cutOfLength(length);
    QString shortened;
    shortened.reserve(cut.left + _ellipsis.size() + cut.right);
    return shortened.append(QStringView(name).first(cut.left))
        .append(_ellipsis)
        .append(QStringView(name).last(cut.right));
}

QString GV_NameShortener::measured(const QString& name)
{
    const auto known = _measured.constFind(name);
    if (known != _measured.constEnd())
        return *known;
    QString shortened;
    if (_metrics.boundingRect(name).width() > GV_LayoutGrid::labelWidth)
        shortened = _metrics.elidedText(name, Qt::ElideMiddle, GV_LayoutGrid::labelWidth);
    if (_measured.size() >= mostMeasured)
        _measured.clear();
    _measured.insert(name, shortened);
    return shortened;
}

GV_NameShortener::Cut GV_NameShortener::cutOfLength(qsizetype length)
{
    const auto known = _cuts.constFind(length);
    if (known != _cuts.constEnd())
        return *known;
    // With one advance for all, where a name is cut depends on its length alone: any name of the
    // length tells. Left and right halves of different characters show where the cut is.
    const QString probe = QString(length / 2, u'l').append(QString(length - length / 2, u'r'));
    const QString elided = _metrics.elidedText(probe, Qt::ElideMiddle, GV_LayoutGrid::labelWidth);
    const Cut cut{elided.count(u'l'), elided.count(u'r')};
    _ellipsis = elided.mid(cut.left, elided.size() - cut.left - cut.right);
    _cuts.insert(length, cut);
    return cut;
}
