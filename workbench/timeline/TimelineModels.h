// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/timeline/TimelineRows.h"

#include <functional>

/// The names of models, and the models that there are to choose from. Neither is known here: the
/// owner of the time line sets functions that tell. Without them models have no names, and an
/// element offers only what it shows already.
class TimelineModels
{
public:
    using Model = ExposureEdits::Model;
    struct Offer
    {
        QString name;
        Model model;
    };
    using Namer = std::function<QString(const Model&)>;
    using Library = std::function<std::vector<Offer>(const MO_ElementModule&)>;

    /// The model's name; empty when it has none.
    QString nameOf(const Model& model) const;
    /// The same, with the name of the row's element in place of an empty one.
    QString titleOf(const Model& model, const TimelineRows::Row& row) const;
    /// What the row's element may show: the library's models, then others that it shows already;
    /// each once, never null, and none for an element that is gone.
    std::vector<Offer> offersFor(const TimelineRows::Row& row) const;

    void setNamer(Namer namer) { _namer = std::move(namer); }
    void setLibrary(Library library) { _library = std::move(library); }

private:
    Namer _namer;
    Library _library;
};
