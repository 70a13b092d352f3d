// SPDX-License-Identifier: Apache-2.0
// Which records of a step are counted.
#pragma once

#include "execution/node.h"
#include "plan/hierarchy.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace kelx::execution {

/// A condition on the records of a unit. One for each thread.
class RecordFilter {
public:
    virtual ~RecordFilter() = default;
    /// Clears mask bytes (0 or 0xff) of the records that do not pass.
    virtual void apply(Frames& frames, std::uint8_t* mask) = 0;
    /// The mask of those that pass, where it stands ready for each record; else null.
    virtual const std::uint8_t* mask(Frames& /*frames*/) { return nullptr; }
    /// False where no record of a range of the unit, which is not empty, can pass.
    virtual bool mayPass(const plan::RecordRange& /*records*/) const { return true; }
};

/// On an entity below the unit the condition asks for at least one passing record under each, as
/// the pool's lower conditions tell.
/// Throws std::runtime_error where the entities lie on different branches.
std::unique_ptr<RecordFilter> makeFilter(const language::ExpressionPtr& condition,
                                         const Entity& unit, NodePool& pool);

/// Throws std::runtime_error where a node has no truth values; text is its expression's.
void requireCondition(const Node& node, const std::string& text);
/// True where valid and true; in the buffer where it is not to be had as it is.
const std::vector<std::uint8_t>& passing(const Vector& values, std::vector<std::uint8_t>& buffer);

} // namespace kelx::execution
