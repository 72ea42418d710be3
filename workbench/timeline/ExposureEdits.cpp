// SPDX-License-Identifier: MIT
#include "workbench/timeline/ExposureEdits.h"

#include <algorithm>

namespace ExposureEdits {

namespace {

bool hasIndex(const Exposures& all, int index)
{
    return index >= 0 && index < static_cast<int>(all.size());
}

/// The exposure gives up its frames and takes others.
Exposures replaced(const Exposures& all, int index, int first, int last)
{
    const Model model = all[index].model;
    return exposed(cleared(all, index), first, last, model);
}

/// All frames at which something else is shown than on the frame before, from frame 1 on.
std::vector<int> boundaries(const Exposures& all)
{
    std::vector<int> frames;
    const auto add = [&frames](int frame) {
        if (frame >= 1 && (frames.empty() || frames.back() != frame))
            frames.push_back(frame);
    };
    for (const Exposure& exposure : all) {
        add(exposure.firstFrame);
        if (!isOpen(exposure))
            add(exposure.lastFrame + 1);
    }
    return frames;
}

} // namespace

bool isOpen(const Exposure& exposure)
{
    return exposure.lastFrame == openEnd;
}

int firstReaching(const Exposures& all, int frame)
{
    const auto it = std::ranges::lower_bound(all, frame, {}, &Exposure::lastFrame);
    return static_cast<int>(it - all.begin());
}

int indexAt(const Exposures& all, int frame)
{
    const int index = firstReaching(all, frame);
    return hasIndex(all, index) && all[index].firstFrame <= frame ? index : -1;
}

Exposures exposed(const Exposures& all, int first, int last, const Model& model)
{
    if (first > last)
        return all;
    Exposures result;
    result.reserve(all.size() + 2);
    for (const Exposure& exposure : all) {
        if (exposure.firstFrame < first)
            result.push_back(
                {exposure.firstFrame, std::min(exposure.lastFrame, first - 1), exposure.model});
    }
    if (model)
        result.push_back({first, last, model});
    for (const Exposure& exposure : all) {
        if (exposure.lastFrame > last)
            result.push_back(
                {std::max(exposure.firstFrame, last + 1), exposure.lastFrame, exposure.model});
    }
    return result;
}

Exposures cleared(const Exposures& all, int index)
{
    Exposures result = all;
    if (hasIndex(all, index))
        result.erase(result.begin() + index);
    return result;
}

Exposures withFirst(const Exposures& all, int index, int first)
{
    if (!hasIndex(all, index))
        return all;
    const Exposure& exposure = all[index];
    // One that begins below frame 1 already stays there until it is brought back up.
    const int least = std::min(1, exposure.firstFrame);
    return replaced(all, index, first < 1 ? least : std::min(first, exposure.lastFrame),
                    exposure.lastFrame);
}

Exposures withLast(const Exposures& all, int index, int last)
{
    if (!hasIndex(all, index))
        return all;
    return replaced(all, index, all[index].firstFrame, std::max(last, all[index].firstFrame));
}

int reach(const Exposure& exposure, int frames)
{
    const auto first = static_cast<long long>(exposure.firstFrame);
    const long long top = isOpen(exposure) ? first : exposure.lastFrame;
    // One that begins below frame 1 already may only come back up.
    const long long least = std::min(0LL, 1 - first);
    // The frame before an open end is the last one that an end can be told apart on.
    const long long most = std::max(0LL, openEnd - 1 - top);
    return static_cast<int>(std::clamp<long long>(frames, least, most));
}

Exposures moved(const Exposures& all, int index, int frames)
{
    if (!hasIndex(all, index))
        return all;
    const Exposure& exposure = all[index];
    const int distance = reach(exposure, frames);
    return replaced(all, index, exposure.firstFrame + distance,
                    isOpen(exposure) ? openEnd : exposure.lastFrame + distance);
}

Exposures split(const Exposures& all, int index, int frame)
{
    if (!hasIndex(all, index) || frame <= all[index].firstFrame || frame > all[index].lastFrame)
        return all;
    Exposures result = all;
    result[index].lastFrame = frame - 1;
    result.insert(result.begin() + index + 1, {frame, all[index].lastFrame, all[index].model});
    return result;
}

Exposures duplicatedAfter(const Exposures& all, int index)
{
    if (!hasIndex(all, index) || isOpen(all[index]))
        return all;
    const Exposure& exposure = all[index];
    const long long length = static_cast<long long>(exposure.lastFrame) - exposure.firstFrame + 1;
    const long long last = std::min<long long>(exposure.lastFrame + length, openEnd);
    return exposed(all, exposure.lastFrame + 1, static_cast<int>(last), exposure.model);
}

int lastEmptyFrame(const Exposures& all, int frame)
{
    const int next = firstReaching(all, frame);
    return hasIndex(all, next) ? all[next].firstFrame - 1 : openEnd;
}

int boundaryBefore(const Exposures& all, int frame)
{
    const std::vector<int> frames = boundaries(all);
    const auto it = std::ranges::lower_bound(frames, frame);
    return it == frames.begin() ? frame : *std::prev(it);
}

int boundaryAfter(const Exposures& all, int frame)
{
    const std::vector<int> frames = boundaries(all);
    const auto it = std::ranges::upper_bound(frames, frame);
    return it == frames.end() ? frame : *it;
}

int lastFrame(const Exposures& all)
{
    if (all.empty())
        return 1;
    // In order and without overlaps, so nothing ends or begins later than in the last one.
    const Exposure& last = all.back();
    return std::max(1, isOpen(last) ? last.firstFrame : last.lastFrame);
}

} // namespace ExposureEdits
