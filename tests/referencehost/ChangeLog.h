// SPDX-License-Identifier: MIT
#pragma once

#include "host/scene/TUNodeSet.h"

#include <QObject>
#include <QStringList>

class TUSceneChangeManager;

/// Writes down what a change manager tells, in order: the kind of change and, where it concerns
/// nodes, their names in alphabetical order, a "?" for each that is gone.
class ChangeLog : public QObject
{
public:
    explicit ChangeLog(TUSceneChangeManager& manager);

    const QStringList& told() const { return _told; }
    /// What was told since the last call.
    QStringList take() { return std::exchange(_told, {}); }

private:
    void write(const QString& kind, const TUNodeSet& nodes);

    QStringList _told;
};
