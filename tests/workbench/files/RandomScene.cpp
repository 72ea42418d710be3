// SPDX-License-Identifier: MIT
#include "RandomScene.h"

#include "host/attributes/AT_StringAttr.h"
#include "host/factories/MO_ModuleFactory.h"
#include "host/models/AT_ModelData.h"
#include "host/models/TD_CelVq3d.h"
#include "host/models/TD_KeyNodeFinders.h"
#include "host/scene/SC_CurrentFrameInterface.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace {

const char* const kinds[] = {"ELEMENT",     "GROUP", "PEG", "DISPLAY", "3D_KINEMATIC_OUTPUT",
                             "PASS_THROUGH"};

} // namespace

RandomScene::RandomScene(HostSession& session, const Models& models, quint32 seed)
    : _session(session)
    , _random(seed)
{
    for (const auto& [path, model] : models)
        _models.push_back(model);
}

int RandomScene::upTo(int highest)
{
    return _random.bounded(highest + 1);
}

bool RandomScene::chance(int percent)
{
    return upTo(99) < percent;
}

QString RandomScene::anyText()
{
    QString text;
    for (int left = upTo(12); left > 0; --left) {
        char32_t character = 0;
        do
            character = chance(50) ? char32_t(32 + upTo(94)) : char32_t(upTo(0x10FFFF));
        while (QChar::isSurrogate(character));
        text += QString::fromUcs4(&character, 1);
    }
    return text;
}

double RandomScene::anyNumber()
{
    double number = 0.0;
    do {
        const quint64 bits = _random.generate64();
        std::memcpy(&number, &bits, sizeof number);
    } while (!std::isfinite(number));
    return chance(50) ? number : upTo(2000) - 1000;
}

int RandomScene::anyFrame()
{
    switch (upTo(5)) {
    case 0:
        return std::numeric_limits<int>::max();
    case 1:
        return std::numeric_limits<int>::min();
    default:
        return upTo(200) - 50;
    }
}

AT_ModelNodeData RandomScene::anyRecord()
{
    AT_ModelNodeData record;
    record.visible = chance(50);
    record.localVisible = chance(50);
    record.hasTransformation = chance(50);
    for (osg::UInt32 i = 0; chance(95) && i < 16; ++i) {
        float number = 0.0F;
        do {
            const quint32 bits = _random.generate();
            std::memcpy(&number, &bits, sizeof number);
        } while (!std::isfinite(number));
        record.transformation[i / 4][i % 4] = number;
    }
    return record;
}

void RandomScene::fillElement(MO_ElementModule& element)
{
    element.setEditable(chance(70));
    for (int left = upTo(4); left > 0; --left) {
        const auto model = static_cast<std::size_t>(upTo(static_cast<int>(_models.size()) - 1));
        element.exposeModel(anyFrame(), anyFrame(), _models[model]);
    }
    for (int left = upTo(3); left > 0; --left) {
        auto data = std::make_unique<AT_ModelData>();
        for (int records = upTo(4); records > 0; --records)
            data->setNodeData(AT_ModelNodeKey(u'k' + anyText()), anyRecord());
        element.setSeqMeta(anyFrame(), std::move(data));
    }
}

MO_Node* RandomScene::addNode()
{
    const QString kind = QString::fromLatin1(kinds[upTo(5)]);
    std::unique_ptr<MO_Module> module = MO_ModuleFactorySingleton().create(kind);
    std::unique_ptr<MO_Node> made(dynamic_cast<MO_Node*>(module.release()));
    MO_GroupModule* group =
        _groups[static_cast<std::size_t>(upTo(static_cast<int>(_groups.size()) - 1))];
    MO_Node* node = group->insertNode(std::move(made));
    node->setInstanceName(anyText());
    node->setX(anyNumber());
    node->setY(anyNumber());
    for (auto it = node->attrsBegin(); it != node->attrsEnd(); ++it)
        dynamic_cast<AT_StringAttr&>(**it).setLocalValue(anyText());
    for (int left = chance(20) ? upTo(3) : 0; left > 0; --left)
        node->addPort(chance(50) ? MO_Port::eInput : MO_Port::eOutput);
    if (auto* element = dynamic_cast<MO_ElementModule*>(node))
        fillElement(*element);
    if (auto* inner = dynamic_cast<MO_GroupModule*>(node))
        _groups.push_back(inner);
    return node;
}

void RandomScene::link()
{
    const int last = static_cast<int>(_nodes.size()) - 1;
    MO_Node* from = _nodes[static_cast<std::size_t>(upTo(last))];
    MO_Node* to = _nodes[static_cast<std::size_t>(upTo(last))];
    MO_Port::link(from->outPort(upTo(std::max(0, from->nOutPorts() - 1))),
                  to->inPort(upTo(std::max(0, to->nInPorts() - 1))));
}

void RandomScene::select()
{
    const int last = static_cast<int>(_nodes.size()) - 1;
    MO_Node* node = _nodes[static_cast<std::size_t>(upTo(last))];
    _session.context().selection()->add(node);
    const auto* element = dynamic_cast<const MO_ElementModule*>(node);
    for (int left = element ? upTo(4) : 0; left > 0; --left) {
        // Only what is shown can be selected.
        const int id = upTo(40);
        AT_ModelNodeKey key;
        element->getNodeKeyForSelId(id, key);
        const std::vector<MO_ElementModule::Exposure> shown = element->exposures();
        if (std::ranges::any_of(shown, [&key](const auto& exposure) {
                return TD_FindKeyNode()(exposure.model->rootNodePtr(), key) != osg::NullFC;
            }))
            node->selInterface()->subSelect(id, true);
    }
}

void RandomScene::fill()
{
    const TUScene& scene = _session.openScene(anyText());
    _groups = {scene.rootGroup()};
    for (int left = upTo(25); left > 0; --left)
        _nodes.push_back(addNode());
    for (int left = _nodes.empty() ? 0 : upTo(30); left > 0; --left)
        link();
    for (int left = _nodes.empty() ? 0 : upTo(6); left > 0; --left)
        select();
    _session.context().currentFrameInterface()->setCurrentFrame(&scene, anyFrame());
    _session.context().changeManager()->notify();
}
