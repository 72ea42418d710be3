// SPDX-License-Identifier: MIT
#pragma once

#include "host/scene/MO_ElementModule.h"

#include <limits>
#include <vector>

/// What an element would show after an edit: each function takes exposures that are in order and
/// do not overlap, and returns such. Whatever an edited exposure comes to lie on is cut, as
/// MO_ElementModule::exposeModel does it. Edits never bring an exposure to frames below 1. An index
/// that is out of range, and an edit that is impossible, return what was given.
namespace ExposureEdits {

using Exposure = MO_ElementModule::Exposure;
using Exposures = std::vector<Exposure>;
using Model = CEL_SharedPtr<TD_CelVq3d>;

/// The last frame of an exposure that is shown on every frame from its first one on.
constexpr int openEnd = std::numeric_limits<int>::max();

bool isOpen(const Exposure& exposure);

/// The exposure that covers the frame; -1 when none does.
int indexAt(const Exposures& all, int frame);
/// The first exposure that ends at the frame or after it; the size when there is none.
int firstReaching(const Exposures& all, int frame);

/// With the model on the frames from the first to the last; a null model clears them.
Exposures exposed(const Exposures& all, int first, int last, const Model& model);

Exposures cleared(const Exposures& all, int index);
/// With another first frame; it is never after the last frame.
Exposures withFirst(const Exposures& all, int index, int first);
/// With another last frame; it is never before the first frame.
Exposures withLast(const Exposures& all, int index, int last);
/// Later by as many frames, or earlier; an open end stays open.
Exposures moved(const Exposures& all, int index, int frames);
/// As two exposures, the second of which begins at the frame.
Exposures split(const Exposures& all, int index, int frame);
/// With the same model shown once more, as long, right after it; an open end has no after.
Exposures duplicatedAfter(const Exposures& all, int index);

/// How far the exposure really moves when it is moved by as many frames.
int reach(const Exposure& exposure, int frames);
/// The last frame before the next exposure, seen from a frame that shows nothing.
int lastEmptyFrame(const Exposures& all, int frame);

/// The nearest frame before the given one, or after it, at which something else is shown than on
/// the frame before; the given one when there is none.
int boundaryBefore(const Exposures& all, int frame);
int boundaryAfter(const Exposures& all, int frame);

/// The last frame at which something ends or, where that is never, begins; at least 1.
int lastFrame(const Exposures& all);

} // namespace ExposureEdits
