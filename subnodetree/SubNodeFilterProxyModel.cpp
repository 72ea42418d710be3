// SPDX-License-Identifier: MIT

#include "subnodetree/SubNodeFilterProxyModel.h"

#include "subnodetree/SGV_GraphItem.h"
#include "subnodetree/SGV_GraphModel.h"

#include <QRegularExpression>
#include <algorithm>
#include <typeinfo>
#include <utility>
#include <vector>

namespace {

QRegularExpression caseInsensitive(const QRegularExpression& pattern)
{
    QRegularExpression copy = pattern;
    copy.setPatternOptions(pattern.patternOptions() | QRegularExpression::CaseInsensitiveOption);
    return copy;
}

bool isAscii(const QString& text)
{
    return std::ranges::all_of(text, [](QChar c) { return c.unicode() < 0x80; });
}

char16_t asciiLower(QChar c)
{
    const char16_t unit = c.unicode();
    return unit >= u'A' && unit <= u'Z' ? unit + (u'a' - u'A') : unit;
}

/// Whether the text contains the other one, which is in lower case, whatever its own case. Both are
/// ASCII, where there is no more to it than this; Qt's search is made for all of Unicode.
bool containsAscii(const QString& text, const QString& lowerCase)
{
    return std::search(text.begin(), text.end(), lowerCase.begin(), lowerCase.end(),
                       [](QChar a, QChar b) { return asciiLower(a) == b.unicode(); }) != text.end();
}

} // namespace

/// Which rows of a model the filter accepts, found for all of them in one pass upwards and kept
/// until the pattern or the rows change.
class SubNodeFilterProxyModel::Matches
{
public:
    void setLiteral(const QString& text) { _literal = text; }

    bool accepts(const SGV_GraphModel& model, const SGV_GraphItem& item,
                 const QRegularExpression& pattern)
    {
        if (_rowsId != model.rowsId() || _pattern != pattern)
            find(model, pattern);
        return item.order() >= 0 && _accepted[static_cast<std::size_t>(item.order())];
    }

private:
    void find(const SGV_GraphModel& model, const QRegularExpression& pattern)
    {
        _rowsId = model.rowsId();
        _pattern = pattern;
        const std::vector<SGV_GraphItem*>& items = model.items();
        _accepted.assign(items.size(), false);
        const QRegularExpression insensitive = caseInsensitive(pattern);
        const QString lowerCase = _literal.toLower();
        // Nearly all names and filters are plain ASCII, of which a literal search gives the same.
        const bool isLiteral = isAscii(_literal) &&
                               pattern.pattern() == QRegularExpression::escape(_literal) &&
                               pattern.patternOptions() == QRegularExpression::NoPatternOption;
        for (auto item = items.rbegin(); item != items.rend(); ++item) {
            const QString& name = (*item)->name();
            const auto order = static_cast<std::size_t>((*item)->order());
            if (!_accepted[order]) {
                _accepted[order] = isLiteral && isAscii(name) ? containsAscii(name, lowerCase)
                                                              : insensitive.match(name).hasMatch();
            }
            const SGV_GraphItem* parent = (*item)->parent();
            if (_accepted[order] && parent->order() >= 0)
                _accepted[static_cast<std::size_t>(parent->order())] = true;
        }
    }

    quint64 _rowsId = 0;
    QRegularExpression _pattern;
    QString _literal;
    std::vector<bool> _accepted;
};

SubNodeFilterProxyModel::SubNodeFilterProxyModel(QObject* parent)
    : QSortFilterProxyModel(parent)
    , _matches(std::make_unique<Matches>())
{
}

SubNodeFilterProxyModel::~SubNodeFilterProxyModel() = default;

void SubNodeFilterProxyModel::setFilterFixedString(const QString& text)
{
    beginResetModel();
    _newText = text;
    endResetModel();
}

void SubNodeFilterProxyModel::resetInternalData()
{
    QSortFilterProxyModel::resetInternalData();
    if (!_newText)
        return;
    // By now nobody keeps an index any more, so that the base class can forget what it knows of the
    // rows, and then has none to take out one by one. Views hear of it all when the reset ends.
    const QSignalBlocker blocker(this);
    QSortFilterProxyModel::invalidate();
    _matches->setLiteral(*_newText);
    QSortFilterProxyModel::setFilterFixedString(*std::exchange(_newText, std::nullopt));
}

bool SubNodeFilterProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    const QModelIndex index =
        sourceModel() ? sourceModel()->index(sourceRow, 0, sourceParent) : QModelIndex();
    if (!index.isValid())
        return false;
    const QRegularExpression pattern = filterRegularExpression();
    if (pattern.pattern().isEmpty())
        return true;
    // A subclass may have an answer of its own for the rows below.
    const auto* model = qobject_cast<const SGV_GraphModel*>(sourceModel());
    if (model && typeid(*this) == typeid(SubNodeFilterProxyModel)) {
        const auto* item = static_cast<const SGV_GraphItem*>(index.internalPointer());
        return _matches->accepts(*model, *item, pattern);
    }
    return acceptsByWalk(index);
}

bool SubNodeFilterProxyModel::acceptsByWalk(const QModelIndex& index) const
{
    const QString name = index.data(SGV_GraphModel::SubnodeKeyRole).toString();
    if (caseInsensitive(filterRegularExpression()).match(name).hasMatch())
        return true;
    const int rows = sourceModel()->rowCount(index);
    for (int row = 0; row < rows; ++row) {
        if (filterAcceptsRow(row, index))
            return true;
    }
    return false;
}
