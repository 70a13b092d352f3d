// SPDX-License-Identifier: Apache-2.0
#include "execution/record_weights.h"

namespace kelx::execution {

RecordWeights::RecordWeights(const language::TableCommand& command, const Entity& unit,
                             NodePool& nodes)
    : weights_(command, unit, nodes) {
    if (command.filter)
        filter_ = makeFilter(command.filter, unit, nodes);
}

const std::uint8_t* RecordWeights::mask(Frames& frames, const std::uint8_t* mask) {
    if (weights_.any())
        weights_.find(frames);
    const bool checked = weights_.any() && weights_.mayBeInvalid();
    if (!filter_ && !checked)
        return mask;
    const std::size_t count = frames.baseFrame().count;
    if (mask != nullptr)
        mask_.assign(mask, mask + count);
    else
        mask_.assign(count, truth);
    if (filter_)
        filter_->apply(frames, mask_.data());
    if (checked)
        weights_.dropInvalid(frames, mask_.data());
    return mask_.data();
}

} // namespace kelx::execution
