// SPDX-License-Identifier: Apache-2.0
#include "execution/record_filter.h"

#include "execution/kernels.h"
#include "execution/lower_conditions.h"

#include <cstring>
#include <stdexcept>

namespace kelx::execution {

void requireCondition(const Node& node, const std::string& text) {
    if (node.type() != ValueType::Boolean)
        throw std::runtime_error("A filter is a condition, but " + text + " is not.");
}

const std::vector<std::uint8_t>& passing(const Vector& values, std::vector<std::uint8_t>& buffer) {
    if (values.allValid)
        return values.truths;
    buffer = values.truths;
    for (std::size_t i = 0; i < buffer.size(); ++i) {
        if (values.states[i] != state::valid)
            buffer[i] = 0;
    }
    return buffer;
}

namespace {

class DirectFilter : public RecordFilter {
public:
    explicit DirectFilter(Node& node) : node_(node) {}

    void apply(Frames& frames, std::uint8_t* mask) override {
        const std::size_t count = frames.baseFrame().count;
        const Vector& values = node_.value(frames);
        const auto& truths = passing(values, buffer_);
        if (!values.constant)
            kernels().andMasks(mask, truths.data(), count);
        else if (truths[0] == 0)
            std::memset(mask, 0, count);
    }
    const std::uint8_t* mask(Frames& frames) override {
        const Vector& values = node_.value(frames);
        return values.constant ? nullptr : passing(values, buffer_).data();
    }
    bool mayPass(const plan::RecordRange& records) const override {
        return node_.mayBeTrue(records);
    }

private:
    Node& node_;
    std::vector<std::uint8_t> buffer_;
};

/// Keeps the records that have one below that passes.
class LowerFilter : public RecordFilter {
public:
    explicit LowerFilter(const RecordBits& passing) : passing_(passing) {}

    void apply(Frames& frames, std::uint8_t* mask) override {
        const Frame& frame = frames.baseFrame();
        for (std::size_t i = 0; i < frame.count; ++i)
            mask[i] = passing_.at(frame.begin + i) ? mask[i] : std::uint8_t{0};
    }
    bool mayPass(const plan::RecordRange& records) const override {
        return passing_.mayHaveAny(records);
    }

private:
    const RecordBits& passing_;
};

} // namespace

std::unique_ptr<RecordFilter> makeFilter(const language::ExpressionPtr& condition,
                                         const Entity& unit, NodePool& pool) {
    const Entity* entity = condition->entity;
    if (entity == nullptr || entity->isAncestorOf(unit)) {
        Node& node = pool.at(*condition, unit);
        requireCondition(node, condition->text);
        return std::make_unique<DirectFilter>(node);
    }
    if (!unit.isAncestorOf(*entity))
        throw std::runtime_error("A filter on " + entity->name + " says nothing about " +
                                 unit.name + ", which lies on another branch.");
    if (pool.lower() == nullptr)
        throw std::logic_error("a condition below needs to be worked out before");
    return std::make_unique<LowerFilter>(pool.lower()->passing(*condition, unit));
}

} // namespace kelx::execution
