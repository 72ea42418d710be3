// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/scenefile/SceneDescription.h"
#include "workbench/scenefile/SceneProblems.h"

#include <QByteArray>

/// Turns the bytes of a scene file into a description, without making anything of it. Bytes are not
/// trusted: what is damaged, wrong or unknown is left out and noted as a problem, and the rest is
/// read. Files of earlier versions are brought up to the current one.
class SceneFileReader
{
    Q_DECLARE_TR_FUNCTIONS(SceneFileReader)

public:
    struct Result
    {
        SceneDescription scene;
        SceneProblems problems;
        /// One line, without the file's name; empty when the bytes are a scene file, however bad.
        QString error;
    };

    /// The folder is the one that the file is in, for models that are named relative to it; empty
    /// when there is none.
    static Result read(const QByteArray& bytes, const QString& folder);
};
