// SPDX-License-Identifier: Apache-2.0
// What is known of a record by its place alone: NUMBER, SAMPLE and the record's number.
#include "execution/node.h"

#include <limits>
#include <stdexcept>

namespace kelx::execution {
namespace {

using language::Expression;
using language::Operation;

/// Place among the records under the same ancestor.
class NumberNode : public Node {
public:
    NumberNode(const Entity& ancestor, const Entity& entity)
        : Node(ValueType::Integer, &entity), ancestor_(ancestor), path_(ancestor, entity) {}

protected:
    void work(Frames& frames, std::size_t count) override {
        const Frame frame = frames.frame(*entity());
        result_.integers.resize(count);
        if (&ancestor_ == entity()) {
            result_.integers.assign(count, 1);
            return;
        }
        const auto& ends = frames.runEnds(ancestor_, *entity());
        const std::uint64_t first = path_.first(frames.frame(ancestor_).begin);
        auto before = static_cast<std::int64_t>(frame.begin - first);
        std::size_t begin = 0;
        for (const std::uint32_t end : ends) {
            for (std::size_t i = begin; i < end; ++i)
                result_.integers[i] = before + static_cast<std::int64_t>(i - begin) + 1;
            before = 0;
            begin = end;
        }
    }

private:
    const Entity& ancestor_;
    plan::DescentPath path_;
};

class RecordNumberNode : public Node {
public:
    explicit RecordNumberNode(const Entity& entity) : Node(ValueType::Integer, &entity) {}

protected:
    void work(Frames& frames, std::size_t count) override {
        const auto first = static_cast<std::int64_t>(frames.frame(*entity()).begin);
        result_.integers.resize(count);
        for (std::size_t i = 0; i < count; ++i)
            result_.integers[i] = first + static_cast<std::int64_t>(i);
    }
};

/// The finaliser of splitmix64: every bit of the number moves every bit of the result.
constexpr std::uint64_t scatter(std::uint64_t x) {
    x += 0x9e3779b97f4a7c15U;
    x = (x ^ (x >> 30)) * 0xbf58476d1ce4e5b9U;
    x = (x ^ (x >> 27)) * 0x94d049bb133111ebU;
    return x ^ (x >> 31);
}

/// 1 to n from the record's number alone. The number n is scattered with it, so that samples of
/// different sizes have nothing to do with each other.
class SampleRandomNode : public Node {
public:
    SampleRandomNode(std::uint64_t n, const Entity& entity)
        : Node(ValueType::Integer, &entity), n_(n), salt_(scatter(n)) {}

protected:
    void work(Frames& frames, std::size_t count) override {
        const std::uint64_t first = frames.frame(*entity()).begin;
        result_.integers.resize(count);
        for (std::size_t i = 0; i < count; ++i)
            result_.integers[i] =
                static_cast<std::int64_t>(scaled(scatter((first + i) ^ salt_))) + 1;
    }

private:
    /// The upper half of bits * n; no n favours any result by more than n in 2^64.
    std::uint64_t scaled(std::uint64_t bits) const {
        __extension__ using Wide = unsigned __int128;
        return static_cast<std::uint64_t>(static_cast<Wide>(bits) * n_ >> 64);
    }
    std::uint64_t n_, salt_;
};

class SampleSystematicNode : public Node {
public:
    SampleSystematicNode(std::uint64_t n, const Entity& entity)
        : Node(ValueType::Boolean, &entity), n_(n) {}

protected:
    void work(Frames& frames, std::size_t count) override {
        std::uint64_t place = frames.frame(*entity()).begin % n_;
        result_.truths.resize(count);
        for (std::size_t i = 0; i < count; ++i) {
            const bool last = ++place == n_;
            place = last ? 0 : place;
            result_.truths[i] = last ? truth : 0;
        }
    }

private:
    std::uint64_t n_;
};

const Entity& entityOf(const Expression& expression) {
    const Entity* entity = expression.entity != nullptr ? expression.entity : expression.codeEntity;
    if (entity == nullptr)
        throw std::logic_error(expression.text + " belongs to no entity");
    return *entity;
}

std::uint64_t sizeOf(const Expression& expression) {
    const Expression& argument = *expression.arguments.at(0);
    const auto* whole = std::get_if<std::int64_t>(&argument.constant);
    if (argument.operation != Operation::Constant || whole == nullptr || *whole < 1)
        throw std::runtime_error("SAMPLE takes a whole number of 1 or more.");
    return static_cast<std::uint64_t>(*whole);
}

} // namespace

std::unique_ptr<Node> makeRecordNode(const Expression& expression) {
    switch (expression.operation) {
    case Operation::Number:
        return std::make_unique<NumberNode>(*expression.codeEntity, entityOf(expression));
    case Operation::SampleRandom:
        return std::make_unique<SampleRandomNode>(sizeOf(expression), entityOf(expression));
    case Operation::SampleSystematic:
        return std::make_unique<SampleSystematicNode>(sizeOf(expression), entityOf(expression));
    case Operation::RecordNumber:
        return std::make_unique<RecordNumberNode>(*expression.codeEntity);
    default:
        throw std::logic_error("not about a record's place");
    }
}

} // namespace kelx::execution
