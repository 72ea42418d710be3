// SPDX-License-Identifier: MIT
#include "workbench/timeline/TimelineModels.h"

#include <QSet>

QString TimelineModels::nameOf(const Model& model) const
{
    return _namer ? _namer(model) : QString();
}

QString TimelineModels::titleOf(const Model& model, const TimelineRows::Row& row) const
{
    const QString name = nameOf(model);
    return name.isEmpty() ? row.name : name;
}

std::vector<TimelineModels::Offer> TimelineModels::offersFor(const TimelineRows::Row& row) const
{
    std::vector<Offer> offers;
    const MO_ElementModule* element = row.element.get();
    if (!element)
        return offers;
    QSet<const TD_CelVq3d*> known;
    const auto add = [&](const QString& name, const Model& model) {
        if (!model || known.contains(model.get()))
            return;
        known.insert(model.get());
        offers.push_back({name.isEmpty() ? titleOf(model, row) : name, model});
    };
    if (_library) {
        for (const Offer& offer : _library(*element))
            add(offer.name, offer.model);
    }
    for (const ExposureEdits::Exposure& exposure : row.exposures)
        add(QString(), exposure.model);
    return offers;
}
