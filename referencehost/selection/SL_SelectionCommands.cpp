// SPDX-License-Identifier: MIT
#include "host/selection/SL_SelectionCommands.h"

#include "host/commands/CO_Command.h"
#include "host/commands/CO_CommandManager.h"
#include "host/scene/MO_Node.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"

#include <QCoreApplication>
#include <algorithm>
#include <vector>

namespace {

/// A selection as it was at a time: the nodes in order, each with its sub-selection in order.
struct SelectionState
{
    struct Member
    {
        UT_SharedWeakPtr<MO_Node> node;
        std::vector<int> subSelectedIds;
    };
    std::vector<Member> members;

    explicit SelectionState(const SL_Selection& selection)
    {
        for (MO_Node* node : selection.nodes())
            members.push_back(
                {UT_SharedWeakPtr<MO_Node>(node), node->selInterface()->subSelectedIds()});
    }

    bool hasNodesOf(const SelectionState& other) const
    {
        return std::ranges::equal(members, other.members, [](const Member& a, const Member& b) {
            return a.node.get() == b.node.get();
        });
    }
    bool isSameAs(const SelectionState& other) const
    {
        return std::ranges::equal(members, other.members, [](const Member& a, const Member& b) {
            return a.node.get() == b.node.get() && a.subSelectedIds == b.subSelectedIds;
        });
    }
};

void setSubSelection(SLB_NodeInterface& selected, const std::vector<int>& ids)
{
    if (selected.subSelectedIds() == ids)
        return;
    selected.clearSubSelection();
    for (const int id : ids)
        selected.subSelect(id, true);
}

void apply(const SelectionState& state, SL_Selection& selection)
{
    const SL_Selection::BatchSelectionModeScope scope(&selection);
    if (!state.hasNodesOf(SelectionState(selection))) {
        selection.clear();
        for (const SelectionState::Member& member : state.members) {
            // A node that is out of the scene cannot be selected.
            if (member.node.get() && member.node->scene())
                selection.add(member.node.get());
        }
    }
    for (const SelectionState::Member& member : state.members) {
        if (SLB_NodeInterface* selected = member.node.get() ? member.node->selInterface() : nullptr)
            setSubSelection(*selected, member.subSelectedIds);
    }
}

/// Goes back and forth between two states of a selection.
class SelectCommand : public CO_Command
{
public:
    SelectCommand(SL_Selection* selection, SelectionState before, SelectionState after)
        : _selection(selection)
        , _before(std::move(before))
        , _after(std::move(after))
    {
    }

    bool execute() override
    {
        apply(_after, *_selection);
        return true;
    }
    bool undo() override
    {
        apply(_before, *_selection);
        return true;
    }

private:
    SL_Selection* _selection;
    SelectionState _before;
    SelectionState _after;
};

} // namespace

struct SL_SelectionCommands::Scope::Private
{
    Private(CO_CommandManager* commandManager, SL_Selection* watched)
        : manager(commandManager)
        , selection(watched)
        , before(*watched)
        , batch(watched)
    {
    }

    CO_CommandManager* manager;
    SL_Selection* selection;
    SelectionState before;
    SL_Selection::BatchSelectionModeScope batch;
};

SL_SelectionCommands::Scope::Scope(CO_CommandManager* manager, SL_Selection* selection)
    : d(std::make_unique<Private>(manager, selection))
{
}

SL_SelectionCommands::Scope::~Scope()
{
    SelectionState after(*d->selection);
    if (after.isSameAs(d->before))
        return;
    d->manager->addExecuted(
        std::make_unique<SelectCommand>(d->selection, std::move(d->before), std::move(after)),
        QCoreApplication::translate("SL_SelectionCommands", "Selection"));
}
