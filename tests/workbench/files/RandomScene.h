// SPDX-License-Identifier: MIT
#pragma once

#include "FilesTesting.h"

#include <QRandomGenerator>
#include <map>
#include <vector>

/// Fills the session's scene with anything that a scene can hold, the same for the same seed.
class RandomScene
{
public:
    using Models = std::map<QString, CEL_SharedPtr<TD_CelVq3d>>;

    /// The models are what elements show, each noted in the library under its path already.
    RandomScene(HostSession& session, const Models& models, quint32 seed);

    void fill();

private:
    int upTo(int highest);
    bool chance(int percent);
    QString anyText();
    double anyNumber();
    int anyFrame();
    MO_Node* addNode();
    void fillElement(MO_ElementModule& element);
    AT_ModelNodeData anyRecord();
    void link();
    void select();

    HostSession& _session;
    std::vector<CEL_SharedPtr<TD_CelVq3d>> _models;
    QRandomGenerator _random;
    std::vector<MO_GroupModule*> _groups;
    std::vector<MO_Node*> _nodes;
};
