// SPDX-License-Identifier: MIT

#include "benchmarks/workbench/BigModelFile.h"

#include "models/GltfModel.h"

#include <QFile>

namespace {

constexpr int childrenOfANode = 3;

GltfModel::Mesh triangle()
{
    return {{{0, 0, 0}, {1, 0, 0}, {0, 1, 0}}, {{0, 0, 1}, {0, 0, 1}, {0, 0, 1}}, {0, 1, 2}};
}

} // namespace

BigModelFile::BigModelFile(int nodes)
{
    GltfModel model;
    const int material = model.addMaterial("Grey", {0.5, 0.5, 0.5}, 0.0);
    const int shape = model.addMesh("Shape", triangle(), material);
    for (int i = 0; i < nodes; ++i) {
        const bool isLeaf = childrenOfANode * i + 1 >= nodes;
        model.addNode("Part" + std::to_string(i),
                      i == 0 ? GltfModel::none : (i - 1) / childrenOfANode, {0.001 * i, 1, 0},
                      isLeaf ? shape : GltfModel::none);
    }
    QFile file(path());
    if (file.open(QIODevice::WriteOnly))
        file.write(QByteArray::fromStdString(model.toText("")));
}
