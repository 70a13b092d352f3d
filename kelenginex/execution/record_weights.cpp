// SPDX-License-Identifier: Apache-2.0
#include "execution/record_weights.h"

#include <algorithm>
#include <stdexcept>

namespace kelx::execution {

RecordWeights::RecordWeights(const language::TableCommand& command, const Entity& unit,
                             NodePool& nodes) {
    for (const language::ExpressionPtr& factor : {command.weight, command.tally}) {
        if (!factor)
            continue;
        Node& node = nodes.at(*factor, unit);
        if (!isNumber(node.type()))
            throw std::runtime_error("A weight or tally is a number, but " + factor->text +
                                     " is not.");
        factors_.push_back(&node);
    }
    if (command.filter)
        filter_ = makeFilter(command.filter, unit, nodes);
}

const std::uint8_t* RecordWeights::mask(Frames& frames, const std::uint8_t* mask) {
    const bool checked = std::any_of(factors_.begin(), factors_.end(),
                                     [&](Node* node) { return !node->value(frames).allValid; });
    if (!filter_ && !checked)
        return mask;
    const std::size_t count = frames.baseFrame().count;
    if (mask != nullptr)
        mask_.assign(mask, mask + count);
    else
        mask_.assign(count, truth);
    if (filter_)
        filter_->apply(frames, mask_.data());
    for (Node* node : factors_) {
        const Vector& values = node->value(frames);
        for (std::size_t i = 0; i < count && !values.allValid; ++i) {
            if (values.stateAt(i) != state::valid)
                mask_[i] = 0;
        }
    }
    return mask_.data();
}

const double* RecordWeights::weights(Frames& frames) {
    weights_.assign(frames.baseFrame().count, 1);
    for (Node* node : factors_) {
        const Vector& values = node->value(frames);
        const double* numbers = view_.reals(values);
        const std::size_t step = values.constant ? 0 : 1;
        for (std::size_t i = 0; i < weights_.size(); ++i)
            weights_[i] *= numbers[i * step];
    }
    return weights_.data();
}

} // namespace kelx::execution
