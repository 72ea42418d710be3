// SPDX-License-Identifier: MIT

#include "subnodetree/SGV_GraphModel.h"

#include "host/models/TD_NodeName.h"
#include "host/models/TD_SceneGraphUtil.h"
#include "host/widgets/WID_IconManager.h"
#include "subnodetree/SGV_GraphItem.h"
#include "subnodetree/SGV_RowStyle.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGKeyTransform.h>

namespace {

bool isDerivedFrom(const osg::NodeCorePtr& core, const osg::FieldContainerType& type)
{
    return core != osg::NullFC && core->getType().isDerivedFrom(type);
}

/// A scene-graph node that waits for its row, and the item that its row will be under.
struct PendingNode
{
    osg::NodePtr node;
    SGV_GraphItem* parent;
};

} // namespace

SGV_GraphModel::SGV_GraphModel(QObject* parent)
    : QAbstractItemModel(parent)
    , _rootItem(std::make_shared<SGV_GraphItem>(QString(), nullptr))
{
    takeItems({});
}

SGV_GraphModel::~SGV_GraphModel() = default;

SGV_GraphItem* SGV_GraphModel::itemOf(const QModelIndex& index) const
{
    return index.isValid() ? static_cast<SGV_GraphItem*>(index.internalPointer()) : _rootItem.get();
}

QModelIndex SGV_GraphModel::indexOf(SGV_GraphItem* item) const
{
    if (!item || item == _rootItem.get())
        return {};
    return createIndex(item->row(), 0, item);
}

QModelIndex SGV_GraphModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    SGV_GraphItem* child = itemOf(parent)->child(row);
    return child ? createIndex(row, column, child) : QModelIndex();
}

QModelIndex SGV_GraphModel::parent(const QModelIndex& index) const
{
    return index.isValid() ? indexOf(itemOf(index)->parent()) : QModelIndex();
}

int SGV_GraphModel::rowCount(const QModelIndex& parent) const
{
    return parent.column() > 0 ? 0 : static_cast<int>(itemOf(parent)->children().size());
}

int SGV_GraphModel::columnCount(const QModelIndex&) const
{
    return 1;
}

QString SGV_GraphModel::connectionsOf(const SGV_GraphItem* item) const
{
    const auto it = _connectionsData.find(AT_ModelNodeKey(item->name()));
    return it == _connectionsData.end() ? QString() : it->second;
}

QVariant SGV_GraphModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const SGV_GraphItem* item = itemOf(index);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return connectionsOf(item).isEmpty() ? item->name() : item->name() + QLatin1Char('*');
    case Qt::DecorationRole:
        return SGV_RowStyle::icon(*item);
    case Qt::ToolTipRole:
        if (const QString connections = connectionsOf(item); !connections.isEmpty())
            return tr("Connected to ") + connections;
        return {};
    case Qt::ForegroundRole:
        return SGV_RowStyle::textColor(*item);
    case SubnodePropertiesRole: {
        static const int known =
            qRegisterMetaType<SGV_GraphModelIndexProperties>("SGV_GraphModelIndexProperties");
        Q_UNUSED(known)
        return QVariant::fromValue(SGV_GraphModelIndexProperties{item->name(), QString()});
    }
    case SubnodeKeyRole:
        return item->name();
    default:
        return {};
    }
}

QVariant SGV_GraphModel::headerData(int, Qt::Orientation, int) const
{
    return {};
}

Qt::ItemFlags SGV_GraphModel::flags(const QModelIndex& index) const
{
    if (!index.isValid() || !(itemOf(index)->kindFlags() & SGV_GraphItem::IsKeyTransform))
        return Qt::NoItemFlags;
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled;
}

void SGV_GraphModel::clear()
{
    // One row more than there are is announced. Views and proxies take that as everything, also
    // where nothing was left of what they last heard of.
    beginRemoveRows(QModelIndex(), 0, rowCount());
    takeItems({});
    while (!_rootItem->children().isEmpty())
        _rootItem->deleteFirstChild();
    _rootNode = osg::NodePtr(osg::NullFC);
    _connectionsData.clear();
    endRemoveRows();
}

void SGV_GraphModel::setRootNode(const osg::NodePtr& node)
{
    // The caller may hold nothing but the reference that is let go of here.
    const osg::NodeRefPtr kept(node);
    clear();
    // A listener that has shown another root meanwhile has the last word.
    if (!isEmpty())
        return;
    auto root = std::make_shared<SGV_GraphItem>(QString(), nullptr);
    std::vector<SGV_GraphItem*> items = build(node, root.get());
    beginInsertRows(index(0, 0, QModelIndex()), 0, static_cast<int>(root->children().size()));
    _rootNode = node;
    _rootItem = root;
    takeItems(std::move(items));
    endInsertRows();
}

void SGV_GraphModel::takeItems(std::vector<SGV_GraphItem*> items)
{
    static quint64 lastId = 0;
    _items = std::move(items);
    _firstItems.clear();
    _rowsId = ++lastId;
}

std::vector<SGV_GraphItem*> SGV_GraphModel::build(const osg::NodePtr& node,
                                                  SGV_GraphItem* root) const
{
    // Not recursive: hierarchies can be deeper than the call stack.
    std::vector<SGV_GraphItem*> items;
    std::vector<PendingNode> pending{{node, root}};
    while (!pending.empty()) {
        const PendingNode next = pending.back();
        pending.pop_back();
        if (next.node == osg::NullFC)
            continue;
        SGV_GraphItem* parent = next.parent;
        const bool isKey = TD_SceneGraphUtil::isKeySubnode(next.node);
        if (isKey || _debugMode) {
            parent = newItem(next.node, isKey, next.parent);
            next.parent->append(parent);
            parent->setOrder(static_cast<int>(items.size()));
            items.push_back(parent);
        }
        for (osg::UInt32 i = next.node->getNChildren(); i > 0; --i)
            pending.push_back({next.node->getChild(i - 1), parent});
    }
    return items;
}

SGV_GraphItem* SGV_GraphModel::newItem(const osg::NodePtr& node, bool isKey,
                                       SGV_GraphItem* parent) const
{
    auto* item = new SGV_GraphItem(TD_nodeName(node), parent);
    const osg::NodeCorePtr core = node->getCore();
    const bool isGeometry = _debugMode ? isDerivedFrom(core, osg::Geometry::getClassType())
                                       : TD_SceneGraphUtil::isKeyGeometrySubnode(node);
    quint32 flags = 0;
    if (isKey)
        flags |= SGV_GraphItem::IsKeyTransform;
    if (isGeometry)
        flags |= SGV_GraphItem::IsGeometry;
    if (isDerivedFrom(core, osg::Transform::getClassType()))
        flags |= SGV_GraphItem::IsTransform;
    item->setKindFlags(flags);
    return item;
}

bool SGV_GraphModel::isEmpty() const
{
    return _rootItem->children().isEmpty();
}

bool SGV_GraphModel::showsRootNode(const osg::NodePtr& node) const
{
    return node == _rootNode.get();
}

void SGV_GraphModel::emitAllChanged()
{
    // There is no second column, so the second index is invalid and the range means everything.
    emit dataChanged(index(0, 0), index(0, 1));
}

void SGV_GraphModel::setConnectionsData(const ConnectionsData& data)
{
    if (&data != &_connectionsData)
        _connectionsData = data;
    emitAllChanged();
}

void SGV_GraphModel::setVisibilityData(const VisibilityData& data)
{
    _rootItem->setVisibility(0, false);
    // Parents come first, so what an item passes down is known by then.
    for (SGV_GraphItem* item : _items) {
        const auto it = data.find(AT_ModelNodeKey(item->name()));
        const SGV_GraphItem* above = item->parent();
        const bool inherited =
            above->isAncestorDisabled() || (above->visibilityState() & SGV_GraphItem::Disabled);
        item->setVisibility(it == data.end() ? 0 : it->second, inherited);
    }
    emitAllChanged();
}

QModelIndex SGV_GraphModel::findIndex(const AT_ModelNodeKey& key, const QModelIndex& start) const
{
    if (AT_ModelNodeKey(start.data(SubnodeKeyRole).toString()) == key)
        return start;
    if (!start.isValid()) {
        if (_firstItems.isEmpty()) {
            _firstItems.reserve(static_cast<qsizetype>(_items.size()));
            for (auto item = _items.rbegin(); item != _items.rend(); ++item)
                _firstItems.insert((*item)->name(), *item);
        }
        return indexOf(_firstItems.value(key.name()));
    }
    std::vector<SGV_GraphItem*> pending{itemOf(start)};
    while (!pending.empty()) {
        SGV_GraphItem* item = pending.back();
        pending.pop_back();
        if (AT_ModelNodeKey(item->name()) == key)
            return indexOf(item);
        pending.insert(pending.end(), item->children().rbegin(), item->children().rend());
    }
    return {};
}
