// SPDX-License-Identifier: MIT
#pragma once

#include <QMetaType>
#include <QString>

/// What a row of the subnode tree tells of its subnode. A value, known to Qt by its name.
struct SGV_GraphModelIndexProperties
{
    QString name = QStringLiteral("No name");
    /// Room for more; empty so far.
    QString detail;

    friend bool operator==(const SGV_GraphModelIndexProperties&,
                           const SGV_GraphModelIndexProperties&) = default;
};

Q_DECLARE_METATYPE(SGV_GraphModelIndexProperties)
