// SPDX-License-Identifier: MIT
#pragma once

#include "host/scene/UT_SharedWeakPtr.h"

#include <QString>

/// What is common to a scene wherever it is opened: its name and its identity. The current frame
/// is kept for it, not in it.
class HOST_EXPORT SC_SceneCommon : public UT_SharedWeakTarget
{
public:
    QString name() const { return _name; }

protected:
    explicit SC_SceneCommon(const QString& name);
    ~SC_SceneCommon() override;

private:
    QString _name;
};
