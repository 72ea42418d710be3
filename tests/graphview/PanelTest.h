// SPDX-License-Identifier: MIT
#pragma once

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_LayoutGrid.h"
#include "host/models/AT_ModelNodeKey.h"
#include "host/preferences/PR_Preference.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"
#include "tests/graphview/PanelMouse.h"
#include "tests/graphview/StageTest.h"

#include <QSignalSpy>
#include <utility>

/// What tests with a mouse on the shown panel have in common. The robots are elements "a" and "b",
/// of which "a" is open with its leg selected, and there is a peg as well.
class PanelTest : public StageTest
{
    Q_OBJECT

protected:
    using View = GV_GraphXViewQt;

    /// Where nothing lies.
    static constexpr QPoint emptySpace{700, 500};

    bool showRobots()
    {
        MO_ElementModule& a = _stage->addElement(QStringLiteral("a"));
        _stage->addElement(QStringLiteral("b"));
        _stage->addPeg(QStringLiteral("peg"));
        return startWith({&a}, {QStringLiteral("leg")});
    }
    /// Shows the panel with these selected, and of the first of them these subnodes.
    bool startWith(const std::vector<MO_Node*>& nodes, const QStringList& names = {})
    {
        _mouse = std::make_unique<PanelMouse>(_stage->view());
        const bool shown = _mouse->show();
        _stage->select(nodes);
        if (!names.isEmpty())
            _stage->subSelect(dynamic_cast<MO_ElementModule&>(*nodes.front()), names);
        const TUSceneChangeManager* changes = _stage->context().changeManager();
        _selectionSpy =
            std::make_unique<QSignalSpy>(changes, &TUSceneChangeManager::selectionChanged);
        _subSelectionSpy =
            std::make_unique<QSignalSpy>(changes, &TUSceneChangeManager::subSelectionChanged);
        return shown;
    }

    MO_Node* node(const QString& name)
    {
        for (MO_Node* each : _stage->scene().rootGroup()->nodes()) {
            if (each->instanceName() == name)
                return each;
        }
        return nullptr;
    }
    MO_ElementModule& element(const QString& name)
    {
        return dynamic_cast<MO_ElementModule&>(*node(name));
    }

    /// How often listeners were told since the last call, of the selection and of sub-selections.
    std::pair<int, int> takeNotices()
    {
        const std::pair<int, int> notices(static_cast<int>(_selectionSpy->count()),
                                          static_cast<int>(_subSelectionSpy->count()));
        _selectionSpy->clear();
        _subSelectionSpy->clear();
        return notices;
    }
    /// What the host has selected, in order, each node with its sub-selected names in brackets.
    QString selected()
    {
        QStringList nodes;
        for (const MO_Node* each : _stage->context().selection()->nodes()) {
            QStringList names;
            const auto* shown = dynamic_cast<const MO_ElementModule*>(each);
            for (const int id : each->selInterface()->subSelectedIds()) {
                AT_ModelNodeKey key;
                if (shown && shown->getNodeKeyForSelId(id, key))
                    names.append(key.name());
            }
            nodes.append(each->instanceName() + QLatin1Char('(') + names.join(u' ') +
                         QLatin1Char(')'));
        }
        return nodes.join(u' ');
    }

    /// The left upper corner of a box of the open tree, and points within.
    QPoint corner(const GV_UiNode* node)
    {
        return {_stage->graph().visibleGraphIx() * GV_LayoutGrid::headerPitch +
                    node->column() * GV_LayoutGrid::indent,
                node->row() * GV_LayoutGrid::rowPitch};
    }
    QPoint box(const QString& name) { return corner(_stage->node(name)) + QPoint(60, 12); }
    QPoint control(const QString& name)
    {
        return corner(_stage->node(name)) + QPoint(12, GV_LayoutGrid::controlCentreY);
    }
    static QPoint header(int ix) { return {ix * GV_LayoutGrid::headerPitch + 60, 12}; }

    static QString extendedKey() { return QStringLiteral("GV_EXTENDED_DISPLAY"); }

    std::unique_ptr<PanelMouse> _mouse;

protected slots:
    void cleanup()
    {
        // The modifiers of the last event count as held from then on.
        if (_mouse)
            _mouse->click(emptySpace);
        _selectionSpy.reset();
        _subSelectionSpy.reset();
        _mouse.reset();
        _stage.reset();
        PR_Preference::instance()->reset(extendedKey());
    }

private:
    std::unique_ptr<QSignalSpy> _selectionSpy;
    std::unique_ptr<QSignalSpy> _subSelectionSpy;
};
