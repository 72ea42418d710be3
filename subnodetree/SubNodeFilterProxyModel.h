// SPDX-License-Identifier: MIT
#pragma once

#include <SubnodeViewsExport.h>

#include <QSortFilterProxyModel>
#include <memory>
#include <optional>

class SGV_GraphModel;

/// Shows the rows whose subnode name contains the filter text, whatever the case, and the rows that
/// lead to one. The mark behind the name of a connected subnode is no part of its name.
class SUBNODEVIEWS_EXPORT SubNodeFilterProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit SubNodeFilterProxyModel(QObject* parent = nullptr);
    ~SubNodeFilterProxyModel() override;

public slots:
    /// Takes the text literally. The model is reset around the change: leaving a large expanded
    /// view range by range takes it a time that is quadratic in the rows. A reset also makes
    /// selections of views go without being told.
    void setFilterFixedString(const QString& text);

protected slots:
    void resetInternalData() override;

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;

private:
    bool acceptsByWalk(const QModelIndex& index) const;

    class Matches;
    std::unique_ptr<Matches> _matches;
    /// The filter that the reset under way is for.
    std::optional<QString> _newText;
};
