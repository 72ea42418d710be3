// SPDX-License-Identifier: MIT
#include "host/scene/SC_NameGenerator.h"

#include "host/scene/MO_GroupModule.h"

#include <QSet>
#include <algorithm>

QString SC_NameGenerator::uniqueName(const QString& wanted, const MO_GroupModule* group,
                                     int firstNumber, int step)
{
    QSet<QString> taken;
    if (group) {
        for (const MO_Node* node : group->nodes())
            taken.insert(node->instanceName());
    }
    QString name = wanted;
    for (int number = firstNumber; taken.contains(name); number += std::max(1, step))
        name = wanted + u'_' + QString::number(number);
    return name;
}
