// SPDX-License-Identifier: MIT
#include "workbench/scenefile/ModelLibrary.h"

#include "host/models/TD_CelVq3d.h"

#include <QDir>
#include <QFileInfo>

namespace {

QString cleanAbsolute(const QString& path)
{
    return path.isEmpty() ? path : QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

} // namespace

void ModelLibrary::insert(const Model& model, const Entry& entry)
{
    std::erase_if(_entries, [](const auto& known) { return known.first.expired(); });
    _entries.insert_or_assign(std::weak_ptr<TD_CelVq3d>(model), entry);
}

void ModelLibrary::note(const Model& model, const QString& path)
{
    if (model)
        insert(model, {{cleanAbsolute(path), QString()}, false});
}

ModelLibrary::Model ModelLibrary::placeholder(const Origin& origin)
{
    auto model = std::make_shared<TD_CelVq3d>(osg::NullFC);
    insert(model, {origin, true});
    return model;
}

ModelLibrary::Origin ModelLibrary::originOf(const Model& model) const
{
    const auto it = _entries.find(model);
    return it == _entries.end() ? Origin() : it->second.origin;
}

bool ModelLibrary::isPlaceholder(const Model& model) const
{
    const auto it = _entries.find(model);
    return it != _entries.end() && it->second.isPlaceholder;
}

bool ModelLibrary::isFrom(const Model& model, const QString& path) const
{
    const QString wanted = cleanAbsolute(path);
    const Origin origin = originOf(model);
    return !wanted.isEmpty() && (origin.path == wanted || origin.otherPath == wanted);
}

std::vector<ModelLibrary::Model> ModelLibrary::modelsOf(const QString& path) const
{
    std::vector<Model> models;
    for (const auto& [reference, entry] : _entries) {
        const Model model = reference.lock();
        if (model && isFrom(model, path))
            models.push_back(model);
    }
    return models;
}
