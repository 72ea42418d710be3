// SPDX-License-Identifier: MIT

#include "tests/subnodetree/TreeStage.h"

#include "host/actions/AC_ActionInfo.h"
#include "host/attributes/AT_StringAttr.h"
#include "host/commands/CO_CommandManager.h"
#include "host/models/AT_ModelData.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/MO_KinematicOutputModule.h"
#include "host/scene/TUScene.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SLB_NodeWith3DSubNode.h"
#include "host/selection/SL_Selection.h"
#include "host/selection/SL_SubSelectionUtil.h"

#include <QTest>
#include <QUndoStack>
#include <algorithm>

namespace {

void collect(const QAbstractItemModel& model, const QModelIndex& parent, QModelIndexList& rows)
{
    // Without recursion, as models may be very deep.
    QModelIndexList waiting;
    const auto push = [&](const QModelIndex& above) {
        for (int row = model.rowCount(above) - 1; row >= 0; --row)
            waiting.append(model.index(row, 0, above));
    };
    push(parent);
    while (!waiting.isEmpty()) {
        rows.append(waiting.takeLast());
        push(rows.last());
    }
}

QString outlineBelow(const QAbstractItemModel& model, const QModelIndex& parent)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const QString below = outlineBelow(model, index);
        const QString text = index.data().toString();
        texts.append(below.isEmpty() ? text : text + u'(' + below + u')');
    }
    return texts.join(u' ');
}

QString nameOf(const QModelIndex& row)
{
    return row.data(SGV_GraphModel::SubnodeKeyRole).toString();
}

class Lookalike : public MO_Node
{
public:
    Lookalike(const QString& typeName, const QString& keyword, const QString& value)
        : MO_Node(QStringLiteral("lookalike"))
        , _typeName(typeName)
    {
        addPort(MO_Port::eInput);
        addAttr(std::make_unique<AT_Attr>(this, AT_AttrMeta(keyword, false)));
        auto attr = std::make_unique<AT_StringAttr>(this, AT_AttrMeta(keyword, false));
        attr->setLocalValue(value);
        addAttr(std::move(attr));
        auto second = std::make_unique<AT_StringAttr>(this, AT_AttrMeta(keyword, false));
        second->setLocalValue(QStringLiteral("body"));
        addAttr(std::move(second));
    }

    QString typeName() const override { return _typeName; }
    void accept(MO_AbstractModuleVisitor&) override {}

private:
    QString _typeName;
};

} // namespace

TreeStage::TreeStage() = default;

TreeStage::~TreeStage() = default;

OpenTreePanel& TreeStage::panel()
{
    if (!_panel) {
        _panel = std::make_unique<OpenTreePanel>(context().actionManager(), nullptr, &context());
        _panel->init();
    }
    return *_panel;
}

bool TreeStage::show()
{
    panel().resize(400, 500);
    panel().show();
    return QTest::qWaitForWindowExposed(&panel());
}

QModelIndexList TreeStage::rows()
{
    QModelIndexList all;
    collect(*panel().proxyModel(), QModelIndex(), all);
    return all;
}

QModelIndex TreeStage::row(const QString& name)
{
    const QModelIndexList all = rows();
    const auto it = std::ranges::find(all, name, nameOf);
    return it == all.end() ? QModelIndex() : *it;
}

QString TreeStage::outline()
{
    return outlineBelow(*panel().proxyModel(), QModelIndex());
}

QStringList TreeStage::selectedRows()
{
    QStringList names;
    for (const QModelIndex& index : rows()) {
        if (tree().selectionModel()->isSelected(index))
            names.append(nameOf(index));
    }
    return names;
}

QStringList TreeStage::expandedRows()
{
    QStringList names;
    for (const QModelIndex& index : rows()) {
        if (panel().proxyModel()->hasChildren(index) && tree().isExpanded(index))
            names.append(nameOf(index));
    }
    return names;
}

void TreeStage::click(const QModelIndex& row, Qt::KeyboardModifiers held)
{
    tree().scrollTo(row);
    const QRect rect = tree().visualRect(row);
    if (!rect.isValid())
        qWarning("The row '%s' is not in sight.", qUtf8Printable(nameOf(row)));
    // Deep rows begin outside of the view, where the mouse cannot go.
    const QRect seen = rect & tree().viewport()->rect();
    QTest::mouseClick(tree().viewport(), Qt::LeftButton, held, seen.center());
}

void TreeStage::click(const QString& name, Qt::KeyboardModifiers held)
{
    click(row(name), held);
}

AC_Result TreeStage::perform(const char* slot)
{
    AC_ActionInfo info(slot, AC_ActionInfo::ePerform);
    AC_Responder& responder = panel();
    return responder.perform(&info);
}

QStringList TreeStage::subSelected()
{
    QStringList names;
    const MO_Node* node = context().selection()->firstNode();
    const auto* selected =
        node ? dynamic_cast<const SLB_NodeWith3DSubNode*>(node->selInterface()) : nullptr;
    for (const int id : SL_SubSelectionUtil::getSubSelectedIds(selected)) {
        AT_ModelNodeKey key;
        names.append(selected->subNodeKey(id, key) ? key.name() : QStringLiteral("?"));
    }
    return names;
}

QUndoStack& TreeStage::history()
{
    return *context().commandManager()->history();
}

QString TreeStage::lastStep()
{
    return history().undoText();
}

MO_KinematicOutputModule& TreeStage::addOutput(const QString& name, const QString& subnode,
                                               MO_ElementModule& element, int port)
{
    auto output = std::make_unique<MO_KinematicOutputModule>(name);
    MO_KinematicOutputModule& added = *output;
    scene().rootGroup()->insertNode(std::move(output));
    if (!setSubnodeName(added, subnode) && !subnode.isEmpty())
        qWarning("'%s' names no subnode.", qUtf8Printable(name));
    if (!MO_Port::link(element.outPort(port), added.inPort(0)))
        qWarning("'%s' cannot be linked.", qUtf8Printable(name));
    notify();
    return added;
}

void TreeStage::setRecord(MO_ElementModule& element, const QString& subnode,
                          const AT_ModelNodeData& record, int frame)
{
    const AT_ModelData* held = element.seqMeta(frame);
    auto data = held ? std::make_unique<AT_ModelData>(*held) : std::make_unique<AT_ModelData>();
    data->setNodeData(AT_ModelNodeKey(subnode), record);
    element.setSeqMeta(frame, std::move(data));
    notify();
}

std::unique_ptr<MO_Node> outputLookalike(const QString& typeName, const QString& keyword,
                                         const QString& value)
{
    return std::make_unique<Lookalike>(typeName, keyword, value);
}

bool setSubnodeName(MO_Node& output, const QString& subnode)
{
    for (auto attr = output.attrsBegin(); attr != output.attrsEnd(); ++attr) {
        auto* text = dynamic_cast<AT_StringAttr*>(*attr);
        if (text && text->meta().keyword() == QStringLiteral("Sub_Node_Name"))
            return text->setLocalValue(subnode);
    }
    return false;
}
