// SPDX-License-Identifier: MIT
#pragma once

#include <SubnodeViewsExport.h>

#include "host/models/AT_ModelNodeKey.h"
#include "subnodetree/SGV_GraphModelIndexProperties.h"

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>
#include <QAbstractItemModel>
#include <QHash>
#include <map>
#include <memory>
#include <vector>

class SGV_GraphItem;

/// The subnodes of one 3D model as a tree of one column: its key nodes, or in debug mode every node
/// of its scene graph. It carries two annotations, which are lost when the rows are rebuilt: what
/// each subnode is connected to, and what of it is switched off.
class SUBNODEVIEWS_EXPORT SGV_GraphModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    /// Others know these by their numbers, which therefore never change. Qt itself uses neither.
    enum Role
    {
        /// A SGV_GraphModelIndexProperties.
        SubnodePropertiesRole = 33,
        /// The name of the node, which makes the subnode's AT_ModelNodeKey.
        SubnodeKeyRole = 34
    };

    using ConnectionsData = std::map<AT_ModelNodeKey, QString>;
    using VisibilityData = std::map<AT_ModelNodeKey, quint32>;

    explicit SGV_GraphModel(QObject* parent = nullptr);
    ~SGV_GraphModel() override;

    QModelIndex index(int row, int column,
                      const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// Rebuilds all rows from the node, a reference to which is kept; a null node leaves no rows.
    void setRootNode(const osg::NodePtr& node);
    void clear();
    bool isEmpty() const;
    bool showsRootNode(const osg::NodePtr& node) const;

    /// Whether every node of the scene graph has a row, from the next rebuild on.
    bool debugMode() const { return _debugMode; }
    void setDebugMode(bool debugMode) { _debugMode = debugMode; }

    /// Replace the annotations of all rows.
    void setConnectionsData(const ConnectionsData& data);
    void setVisibilityData(const VisibilityData& data);

    /// The first index with the key, in pre-order, from the given one on; an invalid one starts at
    /// the top. Invalid when there is none.
    QModelIndex findIndex(const AT_ModelNodeKey& key,
                          const QModelIndex& start = QModelIndex()) const;

    /// All items, each before what is below it. They are the model's own, until the next rebuild.
    const std::vector<SGV_GraphItem*>& items() const { return _items; }
    /// A number that no other rows of any model ever had.
    quint64 rowsId() const { return _rowsId; }

private:
    std::vector<SGV_GraphItem*> build(const osg::NodePtr& node, SGV_GraphItem* root) const;
    void takeItems(std::vector<SGV_GraphItem*> items);
    SGV_GraphItem* newItem(const osg::NodePtr& node, bool isKey, SGV_GraphItem* parent) const;
    SGV_GraphItem* itemOf(const QModelIndex& index) const;
    QModelIndex indexOf(SGV_GraphItem* item) const;
    QString connectionsOf(const SGV_GraphItem* item) const;
    void emitAllChanged();

    osg::NodeRefPtr _rootNode;
    std::shared_ptr<SGV_GraphItem> _rootItem;
    ConnectionsData _connectionsData;
    bool _debugMode = false;

    std::vector<SGV_GraphItem*> _items;
    /// The first item of each name. The names are the items' own.
    mutable QHash<QStringView, SGV_GraphItem*> _firstItems;
    quint64 _rowsId = 0;
};
