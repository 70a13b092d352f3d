// SPDX-License-Identifier: Apache-2.0
#include "execution/record_weights.h"

namespace kelx::execution {

const std::uint8_t* passingMask(Frames& frames, const std::uint8_t* mask, RecordFilter* filter,
                                Weights* weights, std::vector<std::uint8_t>& buffer) {
    if (filter == nullptr && weights == nullptr)
        return mask;
    const std::size_t count = frames.baseFrame().count;
    if (mask != nullptr)
        buffer.assign(mask, mask + count);
    else
        buffer.assign(count, truth);
    if (filter != nullptr)
        filter->apply(frames, buffer.data());
    if (weights != nullptr)
        weights->dropInvalid(frames, buffer.data());
    return buffer.data();
}

RecordWeights::RecordWeights(const language::TableCommand& command, const Entity& unit,
                             NodePool& nodes)
    : weights_(command, unit, nodes) {
    if (command.filter)
        filter_ = makeFilter(command.filter, unit, nodes);
}

const std::uint8_t* RecordWeights::mask(Frames& frames, const std::uint8_t* mask) {
    if (weights_.any())
        weights_.find(frames);
    return passingMask(frames, mask, filter_.get(), weights_.mayBeInvalid() ? &weights_ : nullptr,
                       mask_);
}

} // namespace kelx::execution
