// SPDX-License-Identifier: Apache-2.0
#include "execution/frames.h"

#include <algorithm>

namespace kelx::execution {
namespace {

/// Ends of runs from neighbouring offsets, cut to the frame below.
template <class Offset>
void cutEnds(const Offset* next, const Frame& lower, std::vector<std::uint32_t>& ends) {
    const std::size_t count = ends.size();
    const std::uint64_t begin = lower.begin;
    for (std::size_t i = 0; i < count; ++i)
        ends[i] = static_cast<std::uint32_t>(next[i] - begin);
    // Only the last run reaches over the frame; every earlier one ends before its last record.
    if (count > 0)
        ends[count - 1] = static_cast<std::uint32_t>(lower.count);
}

} // namespace

void Frames::move(std::uint64_t begin, std::size_t count) {
    frame_ = {begin, count};
    ++serial_;
}

Frames::Link& Frames::link(const Entity& upper, const Entity& lower) {
    for (const auto& known : links_) {
        if (known->upper == &upper && known->lower == &lower)
            return *known;
    }
    links_.push_back(std::make_unique<Link>(
        Link{&upper, &lower, plan::DescentPath(upper, lower), 0, {}, 0, {}}));
    return *links_.back();
}

Frame Frames::frame(const Entity& entity) {
    if (&entity == base_)
        return frame_;
    Link& to = link(entity, *base_);
    if (to.frameSerial != serial_) {
        to.frameSerial = serial_;
        const std::uint64_t before = to.frame.begin + std::max<std::size_t>(to.frame.count, 1) - 1;
        to.frame.begin = to.path.above(frame_.begin, before);
        const std::uint64_t last = to.path.above(frame_.begin + frame_.count - 1, to.frame.begin);
        to.frame.count = static_cast<std::size_t>(last - to.frame.begin + 1);
    }
    return to.frame;
}

const std::vector<std::uint32_t>& Frames::runEnds(const Entity& upper, const Entity& lower) {
    Link& to = link(upper, lower);
    if (to.runSerial == serial_)
        return to.ends;
    to.runSerial = serial_;
    const Frame above = frame(upper);
    const Frame below = frame(lower);
    to.ends.resize(above.count);
    if (to.path.length() == 1) {
        const storage::PointerFile& file = to.path.only();
        if (file.isWide())
            cutEnds(file.wide() + above.begin + 1, below, to.ends);
        else
            cutEnds(file.narrow() + above.begin + 1, below, to.ends);
        return to.ends;
    }
    for (std::size_t i = 0; i < above.count; ++i) {
        const std::uint64_t next = to.path.first(above.begin + i + 1) - below.begin;
        to.ends[i] = static_cast<std::uint32_t>(std::min<std::uint64_t>(next, below.count));
    }
    return to.ends;
}

} // namespace kelx::execution
