// SPDX-License-Identifier: MIT

#include "workbench/isolation/Isolation.h"

#include "host/commands/CO_Command.h"
#include "host/commands/CO_CommandManager.h"
#include "host/models/AT_ModelNodeKey.h"
#include "host/models/TD_CelVq3d.h"
#include "host/models/TD_KeyNodeFinders.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/SC_CurrentFrameInterface.h"
#include "host/scene/SC_SessionContext.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_SelectionUtil.h"
#include "referencehost/session/HostSession.h"
#include "workbench/isolation/VisibilitySettings.h"

#include <QCoreApplication>
#include <algorithm>
#include <utility>

namespace {

constexpr int firstFrame = 1;

using Settings = std::optional<AT_ModelData>;

/// What is set at that very frame.
Settings settingsAt(const MO_ElementModule& element, int frame)
{
    const AT_ModelData* data = element.seqMeta(frame);
    int setAt = 0;
    const bool isOwn = element.frameOfSeqMeta(data, setAt) && setAt == frame;
    return isOwn ? Settings(*data) : Settings();
}

/// The subnodes that are selected and that the model has.
std::vector<AT_ModelNodeKey> selectedKeys(const MO_ElementModule& element, const TD_CelVq3d& model)
{
    std::vector<AT_ModelNodeKey> keys;
    const SLB_NodeInterface* selected = element.selInterface();
    if (!selected)
        return keys;
    for (const int id : selected->subSelectedIds()) {
        AT_ModelNodeKey key;
        if (element.getNodeKeyForSelId(id, key) &&
            TD_FindKeyNode()(model.rootNodePtr(), key) != osg::NullFC)
            keys.push_back(key);
    }
    return keys;
}

} // namespace

/// The settings that were held when parts of an element were isolated, and where they were set.
struct Isolation::Before
{
    int frame = firstFrame;
    Settings settings;
};

class Isolation::Memory
{
public:
    const Before* of(const MO_ElementModule* element) const
    {
        const auto it = std::ranges::find_if(
            _entries, [element](const Entry& entry) { return entry.first.get() == element; });
        return !element || it == _entries.end() ? nullptr : &it->second;
    }
    void set(MO_ElementModule* element, const std::optional<Before>& before)
    {
        std::erase_if(_entries, [element](const Entry& entry) {
            return entry.first.isNull() || entry.first.get() == element;
        });
        if (before)
            _entries.emplace_back(UT_SharedWeakPtr<MO_ElementModule>(element), *before);
    }

private:
    using Entry = std::pair<UT_SharedWeakPtr<MO_ElementModule>, Before>;
    std::vector<Entry> _entries;
};

/// Swaps the settings of an element at a frame, and what is remembered of it, with what it holds.
class Isolation::Step : public CO_Command
{
public:
    Step(std::shared_ptr<Memory> memory, MO_ElementModule* element, int frame, Settings settings,
         std::optional<Before> before)
        : _memory(std::move(memory))
        , _element(element)
        , _frame(frame)
        , _settings(std::move(settings))
        , _before(std::move(before))
    {
    }

    bool empty() const override { return _element.isNull(); }

    bool execute() override
    {
        if (empty())
            return false;
        std::optional<Before> remembered;
        if (const Before* before = _memory->of(_element.get()))
            remembered = *before;
        _memory->set(_element.get(), std::exchange(_before, remembered));

        Settings held = settingsAt(*_element.get(), _frame);
        _element->setSeqMeta(_frame,
                             _settings ? std::make_unique<AT_ModelData>(*_settings) : nullptr);
        _settings = std::move(held);
        return true;
    }

private:
    std::shared_ptr<Memory> _memory;
    UT_SharedWeakPtr<MO_ElementModule> _element;
    int _frame;
    Settings _settings;
    std::optional<Before> _before;
};

Isolation::Isolation(HostSession& session)
    : _session(session)
    , _memory(std::make_shared<Memory>())
{
}

Isolation::~Isolation() = default;

bool Isolation::isIsolated(const MO_ElementModule* element) const
{
    return _memory->of(element) != nullptr;
}

MO_ElementModule* Isolation::selectedElement() const
{
    MO_Node* node = SL_SelectionUtil::getFirstNode(_session.context().selection());
    return dynamic_cast<MO_ElementModule*>(node);
}

int Isolation::currentFrame(const MO_ElementModule& element) const
{
    return _session.context().currentFrameInterface()->currentFrame(element.sceneCommon());
}

bool Isolation::canToggle() const
{
    const MO_ElementModule* element = selectedElement();
    if (!element)
        return false;
    if (isIsolated(element))
        return true;
    const CEL_SharedPtr<TD_CelVq3d> model = element->modelAt(currentFrame(*element));
    return model && element->isEditable() && !selectedKeys(*element, *model).empty();
}

bool Isolation::toggle()
{
    if (!canToggle())
        return false;
    MO_ElementModule* element = selectedElement();
    return isIsolated(element) ? leave(*element) : isolate(*element);
}

bool Isolation::isolate(MO_ElementModule& element)
{
    const int current = currentFrame(element);
    const CEL_SharedPtr<TD_CelVq3d> model = element.modelAt(current);
    Before before;
    if (!element.frameOfSeqMeta(element.seqMeta(current), before.frame))
        before.frame = firstFrame;
    before.settings = settingsAt(element, before.frame);
    const AT_ModelData next = VisibilitySettings::isolated(before.settings, model->rootNodePtr(),
                                                           selectedKeys(element, *model));
    return _session.context().commandManager()->execute(
        new Step(_memory, &element, before.frame, next, before),
        QCoreApplication::translate("Isolation", "Isolate Subnodes"));
}

bool Isolation::leave(MO_ElementModule& element)
{
    const Before before = *_memory->of(&element);
    const Settings next =
        VisibilitySettings::restored(settingsAt(element, before.frame), before.settings);
    return _session.context().commandManager()->execute(
        new Step(_memory, &element, before.frame, next, std::nullopt),
        QCoreApplication::translate("Isolation", "Leave Isolation"));
}
