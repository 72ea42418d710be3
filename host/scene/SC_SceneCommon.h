// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

#include <QString>

/// What is common to a scene wherever it is opened: its name and its identity. The current frame
/// is kept for it, not in it.
class HOST_EXPORT SC_SceneCommon
{
public:
    SC_SceneCommon(const SC_SceneCommon&) = delete;
    SC_SceneCommon& operator=(const SC_SceneCommon&) = delete;

    QString name() const { return _name; }

protected:
    explicit SC_SceneCommon(const QString& name);
    virtual ~SC_SceneCommon();

private:
    QString _name;
};
