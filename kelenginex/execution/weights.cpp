// SPDX-License-Identifier: Apache-2.0
#include "execution/weights.h"

#include "execution/kernels.h"
#include "storage/coding.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <stdexcept>

namespace kelx::execution {
namespace {

using language::Constant;
using language::ExpressionPtr;
using language::Operation;

/// The lower of the entities of weight and tally.
const Entity* entityOf(const language::TableCommand& command) {
    const Entity* result = nullptr;
    for (const ExpressionPtr& factor : {command.weight, command.tally}) {
        const Entity* entity = factor ? factor->entity : nullptr;
        if (entity != nullptr && (result == nullptr || result->isAncestorOf(*entity)))
            result = entity;
    }
    return result;
}

std::optional<Magnitudes> magnitudesOf(const Constant& constant) {
    double value = 1;
    if (const auto* integer = std::get_if<std::int64_t>(&constant))
        value = static_cast<double>(*integer);
    else if (const auto* real = std::get_if<double>(&constant))
        value = *real;
    if (!std::isfinite(value))
        return std::nullopt;
    value = value == 0 ? 1 : std::fabs(value);
    return Magnitudes::between(value, value);
}

std::optional<Magnitudes> magnitudesOf(const storage::ColumnInfo& info) {
    if (info.type == ValueType::Real) {
        if (info.minReal <= 0)
            return std::nullopt;
        return Magnitudes::between(info.minReal, info.maxReal);
    }
    const auto value = [&](std::uint64_t code) {
        return std::fabs(static_cast<double>(storage::decodeValue(info.base, code)));
    };
    return Magnitudes{1, std::max({1.0, value(info.minCode), value(info.maxCode)})};
}

std::optional<Magnitudes> magnitudesOf(const ExpressionPtr& factor) {
    if (!factor)
        return Magnitudes{};
    if (factor->operation == Operation::Constant)
        return magnitudesOf(factor->constant);
    if (factor->operation == Operation::VariableValue)
        return magnitudesOf(factor->variable->column()->info());
    return std::nullopt;
}

std::optional<WeightUnits> unitsOf(const language::TableCommand& command) {
    const auto weight = magnitudesOf(command.weight);
    const auto tally = magnitudesOf(command.tally);
    if (!weight || !tally)
        return std::nullopt;
    return unitsFor(*weight * *tally);
}

} // namespace

Weights::Weights(const language::TableCommand& command, const Entity& unit, NodePool& nodes)
    : unit_(&unit), entity_(entityOf(command)), weight_(factor(command.weight, nodes)),
      tally_(factor(command.tally, nodes)) {
    if (any())
        units_ = unitsOf(command);
}

Node* Weights::factor(const ExpressionPtr& expression, NodePool& nodes) const {
    if (!expression)
        return nullptr;
    Node& node = nodes.at(*expression, entity_ != nullptr ? *entity_ : *unit_);
    if (!isNumber(node.type()))
        throw std::runtime_error("A weight or tally is a number, but " + expression->text +
                                 " is not.");
    return &node;
}

void Weights::find(Frames& frames) {
    weights_.assign(entity_ != nullptr ? frames.frame(*entity_).count : 1, 1);
    mayBeInvalid_ = false;
    for (Node* factor : {weight_, tally_}) {
        if (factor != nullptr)
            multiplyBy(*factor, frames);
    }
}

void Weights::multiplyBy(Node& factor, Frames& frames) {
    const Vector& values = factor.value(frames);
    const std::size_t step = values.constant ? 0 : 1;
    const auto multiply = [&](const auto* numbers, auto toReal) {
        for (std::size_t i = 0; i < weights_.size(); ++i)
            weights_[i] *= toReal(numbers[i * step]);
    };
    if (values.type == ValueType::Real)
        multiply(values.reals.data(), [](double value) { return value; });
    else if (values.type == ValueType::Integer)
        multiply(values.integers.data(), [](auto value) { return static_cast<double>(value); });
    else
        multiply(values.truths.data(), [](unsigned value) { return value != 0 ? 1.0 : 0.0; });
    if (values.allValid)
        return;
    if (!mayBeInvalid_)
        invalid_.assign(weights_.size(), 0);
    mayBeInvalid_ = true;
    for (std::size_t i = 0; i < weights_.size(); ++i)
        invalid_[i] = invalid_[i] != 0 || values.stateAt(i) != state::valid ? 1 : 0;
}

const std::vector<WeightParts>& Weights::parts() {
    parts_.resize(weights_.size());
    kernels().splitWeights(weights_.data(), weights_.size(), *units_, parts_.data());
    for (std::size_t i = 0; mayBeInvalid_ && i < parts_.size(); ++i) {
        if (invalid_[i] != 0)
            parts_[i] = {};
    }
    return parts_;
}

/// Where the records end that share a weight.
const std::vector<std::uint32_t>& Weights::ends(Frames& frames) {
    if (entity_ != nullptr)
        return frames.runEnds(*entity_, *unit_);
    onlyEnd_ = {static_cast<std::uint32_t>(frames.baseFrame().count)};
    return onlyEnd_;
}

const std::uint32_t* Weights::runs(Frames& frames) {
    if (entity_ == unit_)
        return nullptr;
    const auto& runEnds = ends(frames);
    if (numbers_.size() < runEnds.size()) {
        numbers_.resize(runEnds.size());
        std::iota(numbers_.begin(), numbers_.end(), 0U);
    }
    runs_.resize(frames.baseFrame().count + expandSlack / sizeof(std::uint32_t));
    kernels().code32.expand(numbers_.data(), runEnds.data(), runEnds.size(), runs_.data());
    return runs_.data();
}

double* Weights::ofRecords(Frames& frames) {
    if (entity_ == unit_)
        return weights_.data();
    const auto& runEnds = ends(frames);
    spread_.resize(frames.baseFrame().count + expandSlack / sizeof(double));
    kernels().expandReal(weights_.data(), runEnds.data(), runEnds.size(), spread_.data());
    return spread_.data();
}

void Weights::dropInvalid(Frames& frames, std::uint8_t* mask) {
    if (entity_ == unit_) {
        for (std::size_t i = 0; i < weights_.size(); ++i)
            mask[i] = invalid_[i] != 0 ? 0 : mask[i];
        return;
    }
    const auto& runEnds = ends(frames);
    std::size_t begin = 0;
    for (std::size_t run = 0; run < runEnds.size(); ++run) {
        if (invalid_[run] != 0)
            std::fill(mask + begin, mask + runEnds[run], std::uint8_t{0});
        begin = runEnds[run];
    }
}

} // namespace kelx::execution
