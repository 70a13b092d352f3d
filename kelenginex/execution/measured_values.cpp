// SPDX-License-Identifier: Apache-2.0
#include "execution/measured_values.h"

#include <stdexcept>

namespace kelx::execution {
namespace {

bool holds(const std::vector<std::byte>& buffer, const void* data) {
    const auto* at = static_cast<const std::byte*>(data);
    return at >= buffer.data() && at < buffer.data() + buffer.size();
}

} // namespace

MeasuredValues::MeasuredValues(const language::Expression& measure, const Entity& unit,
                               NodePool& nodes) {
    const bool plain = measure.operation == language::Operation::VariableValue &&
                       measure.variable->entity == &unit;
    if (plain && measure.variable->column()->info().physical == storage::Physical::Real64) {
        const ValueStates states(*measure.variable);
        column_ = measure.variable->column();
        if (states.missing)
            exclusions_.missing = *states.missing;
        if (states.notApplicable)
            exclusions_.notApplicable = *states.notApplicable;
        mayExclude_ = column_->info().blanks > 0 || states.any();
        return;
    }
    node_ = &nodes.at(measure, unit);
    if (!isNumber(node_->type()))
        throw std::runtime_error("A measure is of numbers, but " + measure.text + " is none.");
}

void MeasuredValues::read(Frames& frames) {
    if (column_)
        return readColumn(frames.baseFrame());
    vector_ = &node_->value(frames);
    readNode(*vector_, frames.baseFrame().count);
}

void MeasuredValues::readColumn(const Frame& frame) {
    const void* data = column_->read(frame.begin, frame.count, scratch_);
    inPlace_ = !holds(scratch_.bytes, data) && !holds(scratch_.block, data);
    reals_ = static_cast<const double*>(data);
}

void MeasuredValues::readNode(const Vector& vector, std::size_t count) {
    if (vector.type == ValueType::Real)
        reals_ = vector.reals.data();
    else
        wholes_ = view_.integers(vector);
    if (!vector.constant)
        return;
    if (wholes_ != nullptr) {
        spreadWholes_.assign(count, wholes_[0]);
        wholes_ = spreadWholes_.data();
    } else {
        spreadReals_.assign(count, reals_[0]);
        reals_ = spreadReals_.data();
    }
}

const std::uint8_t* MeasuredValues::mask(const std::uint8_t* mask, std::size_t count) {
    if (column_ ? !mayExclude_ : vector_->allValid && wholes_ != nullptr)
        return mask;
    mask_.resize(count);
    for (std::size_t i = 0; i < count; ++i)
        mask_[i] = wholes_ == nullptr && exclusions_.excludes(reals_[i]) ? 0 : truth;
    for (std::size_t i = 0; i < count && mask != nullptr; ++i)
        mask_[i] &= mask[i];
    for (std::size_t i = 0; i < count && !column_ && !vector_->allValid; ++i) {
        if (vector_->stateAt(i) != state::valid)
            mask_[i] = 0;
    }
    return mask_.data();
}

} // namespace kelx::execution
