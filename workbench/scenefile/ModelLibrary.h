// SPDX-License-Identifier: MIT
#pragma once

#include "host/models/CEL_SharedPtr.h"

#include <QString>
#include <map>
#include <vector>

class TD_CelVq3d;

/// Which model came from which file. It keeps no model alive and forgets those that are gone. A
/// model that stands in for a file that could not be read is known here under the file's path, so
/// that neither is lost when the scene is saved.
class ModelLibrary
{
public:
    using Model = CEL_SharedPtr<TD_CelVq3d>;
    /// Where a model came from; the paths are absolute and clean.
    struct Origin
    {
        /// Empty for a model of no file.
        QString path;
        /// Where else the file may be; only known for models that stand in for one.
        QString otherPath;
    };

    /// A relative path is taken from the current folder. A null model is ignored.
    void note(const Model& model, const QString& path);
    /// An empty model that stands in for what could not be read; never null.
    Model placeholder(const Origin& origin);

    /// Empty paths for a model that is not known here, and for null.
    Origin originOf(const Model& model) const;
    bool isPlaceholder(const Model& model) const;
    /// Whether the model came from the file, or stands in for it. False for an empty path.
    bool isFrom(const Model& model, const QString& path) const;
    /// All models that are from the file, by that measure.
    std::vector<Model> modelsOf(const QString& path) const;

private:
    struct Entry
    {
        Origin origin;
        bool isPlaceholder;
    };

    void insert(const Model& model, const Entry& entry);

    std::map<std::weak_ptr<TD_CelVq3d>, Entry, std::owner_less<>> _entries;
};
