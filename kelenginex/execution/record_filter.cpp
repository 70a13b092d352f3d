// SPDX-License-Identifier: Apache-2.0
#include "execution/record_filter.h"

#include "execution/kernels.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace kelx::execution {
namespace {

void requireCondition(const Node& node, const std::string& text) {
    if (node.type() != ValueType::Boolean)
        throw std::runtime_error("A filter is a condition, but " + text + " is not.");
}

/// True where valid and true.
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

class DirectFilter : public RecordFilter {
public:
    DirectFilter(Node& node, const Entity& unit) : node_(node), unit_(unit) {}

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
    bool mayPass(std::size_t block) const override {
        return node_.entity() != &unit_ || node_.mayBeTrue(block);
    }

private:
    Node& node_;
    const Entity& unit_;
    std::vector<std::uint8_t> buffer_;
};

/// Looks below each record for one that passes, and no further than that one.
class LowerFilter : public RecordFilter {
public:
    LowerFilter(const language::ExpressionPtr& condition, const Entity& unit)
        : path_(unit, *condition->entity), frames_(*condition->entity),
          node_(&pool_.own(*condition)) {
        requireCondition(*node_, condition->text);
    }

    void apply(Frames& frames, std::uint8_t* mask) override {
        const Frame frame = frames.baseFrame();
        std::uint64_t begin = path_.first(frame.begin);
        limit_ = path_.first(frame.begin + frame.count);
        for (std::size_t i = 0; i < frame.count; ++i) {
            const std::uint64_t end = path_.first(frame.begin + i + 1);
            if (mask[i] != 0 && !anyPasses(begin, end))
                mask[i] = 0;
            begin = end;
        }
    }

private:
    static constexpr std::uint64_t stepRecords = 4096;

    bool anyPasses(std::uint64_t begin, std::uint64_t end) {
        while (begin < end) {
            if (begin < stepBegin_ || begin >= stepEnd_)
                move(begin);
            const std::uint64_t stop = std::min(end, stepEnd_);
            const std::uint8_t* truths = truths_->data() + (begin - stepBegin_);
            if (std::memchr(truths, truth, static_cast<std::size_t>(stop - begin)) != nullptr)
                return true;
            begin = stop;
        }
        return false;
    }

    void move(std::uint64_t begin) {
        stepBegin_ = begin;
        stepEnd_ = std::min(limit_, begin + stepRecords);
        frames_.move(begin, static_cast<std::size_t>(stepEnd_ - begin));
        truths_ = &passing(node_->value(frames_), buffer_);
    }

    plan::DescentPath path_;
    Frames frames_;
    NodePool pool_;
    Node* node_;
    std::uint64_t limit_ = 0, stepBegin_ = 0, stepEnd_ = 0;
    const std::vector<std::uint8_t>* truths_ = nullptr;
    std::vector<std::uint8_t> buffer_;
};

} // namespace

std::unique_ptr<RecordFilter> makeFilter(const language::ExpressionPtr& condition,
                                         const Entity& unit, NodePool& pool) {
    const Entity* entity = condition->entity;
    if (entity == nullptr || entity->isAncestorOf(unit)) {
        Node& node = pool.at(*condition, unit);
        requireCondition(node, condition->text);
        return std::make_unique<DirectFilter>(node, unit);
    }
    if (!unit.isAncestorOf(*entity))
        throw std::runtime_error("A filter on " + entity->name + " says nothing about " +
                                 unit.name + ", which lies on another branch.");
    return std::make_unique<LowerFilter>(condition, unit);
}

} // namespace kelx::execution
