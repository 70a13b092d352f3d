// SPDX-License-Identifier: Apache-2.0
// The stretch of records that a step works on, and what belongs to it above.
#pragma once

#include "plan/hierarchy.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace kelx::execution {

using catalog::Entity;

/// Records begin to begin + count - 1 of an entity.
struct Frame {
    std::uint64_t begin = 0;
    std::size_t count = 0;
};

/// A step over a base entity. Frames of entities above and the runs of equal parents are found
/// when they are first asked for. One for each thread.
class Frames {
public:
    explicit Frames(const Entity& base) : base_(&base) {}

    void move(std::uint64_t begin, std::size_t count);
    const Entity& base() const { return *base_; }
    std::uint64_t serial() const { return serial_; } ///< differs from step to step
    const Frame& baseFrame() const { return frame_; }
    /// The records of an entity, above or at the base, that the step's records belong to.
    Frame frame(const Entity& entity);
    /// Where the run of each record of an upper entity ends within the frame of a lower one; both
    /// above or at the base. Runs may be empty.
    const std::vector<std::uint32_t>& runEnds(const Entity& upper, const Entity& lower);

private:
    struct Link {
        const Entity* upper;
        const Entity* lower;
        plan::DescentPath path;
        std::uint64_t frameSerial = 0;
        Frame frame; ///< of upper
        std::uint64_t runSerial = 0;
        std::vector<std::uint32_t> ends;
    };
    Link& link(const Entity& upper, const Entity& lower);

    const Entity* base_;
    Frame frame_;
    std::uint64_t serial_ = 0;
    std::vector<std::unique_ptr<Link>> links_;
};

} // namespace kelx::execution
