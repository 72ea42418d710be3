// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/import/FormatHabits.h"

#include <QString>
#include <memory>
#include <string>
#include <unordered_set>

struct aiScene;
class ImportProgress;

namespace Assimp {
class Importer;
}

/// Reads one file with Assimp, in a way that leaves the hierarchy as it is in the file. Owns what
/// was read. It recurses as deep as the hierarchy, when it reads and when it is destroyed.
class AssimpReader
{
public:
    /// The progress may be null and must outlive this object. Reading ends at the given fraction.
    AssimpReader(ImportProgress* progress, double end);
    ~AssimpReader();

    /// The path is in the encoding of the file system. False if the file cannot be read as a
    /// model or the import was cancelled; error() says why.
    bool read(const std::string& path);

    /// Assimp's own words, which may be anything.
    QString error() const;
    /// Whether no reader felt responsible for the file.
    bool isUnknownKind() const;

    /// Null before a successful read().
    const aiScene* scene() const { return _scene; }
    const FormatHabits& habits() const { return _habits; }
    /// The names that animations and bones refer to, as Assimp has them.
    const std::unordered_set<std::string>& movedNames() const { return _movedNames; }

private:
    std::unique_ptr<Assimp::Importer> makeImporter(double end) const;
    void collectMovedNames(const aiScene& scene);
    void completeColladaNames(const std::string& path);

    ImportProgress* _progress;
    std::unique_ptr<Assimp::Importer> _importer;
    const aiScene* _scene = nullptr;
    FormatHabits _habits;
    std::unordered_set<std::string> _movedNames;
};
