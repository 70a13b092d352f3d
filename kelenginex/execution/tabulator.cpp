// SPDX-License-Identifier: Apache-2.0
#include "execution/tabulator.h"

#include "execution/kernels.h"
#include "execution/typed_data.h"
#include "plan/same_expression.h"

#include <algorithm>
#include <numeric>
#include <stdexcept>

namespace kelx::execution {
namespace {

/// Up to so many cells are counted by comparing; beyond, a table of counters is faster.
constexpr std::uint64_t mostCompared = 32;

std::vector<CodeSource*> sourcesOf(const plan::PlannedTable& table, SourcePool& pool) {
    std::vector<CodeSource*> result;
    for (const auto& dimension : table.dimensions)
        result.push_back(&pool.of(*dimension));
    return result;
}

TableShape shapeOf(const std::vector<CodeSource*>& sources, bool weighted) {
    std::vector<CodeDomain> domains;
    for (const CodeSource* source : sources)
        domains.push_back(source->domain());
    return {std::move(domains), weighted};
}

Node* numberNode(const language::ExpressionPtr& expression, const Entity& unit, NodePool& pool) {
    if (!expression)
        return nullptr;
    Node& node = pool.at(*expression, unit);
    if (!isNumber(node.type()))
        throw std::runtime_error("A weight or tally is a number, but " + expression->text +
                                 " is not.");
    return &node;
}

} // namespace

CodeSource& SourcePool::of(const language::Expression& expression) {
    for (const auto& [known, source] : sources_) {
        if (plan::sameExpression(known, &expression))
            return *source;
    }
    sources_.emplace_back(&expression, std::make_unique<CodeSource>(expression));
    return *sources_.back().second;
}

Tabulator::Tabulator(const plan::PlannedTable& table, const Entity& unit, NodePool& nodes,
                     SourcePool& sources)
    : sources_(sourcesOf(table, sources)), weight_(numberNode(table.command->weight, unit, nodes)),
      tally_(numberNode(table.command->tally, unit, nodes)),
      shape_(shapeOf(sources_, weight_ != nullptr || tally_ != nullptr)), cells_(shape_),
      numbers_(sources_.size()) {
    if (table.command->filter)
        filter_ = makeFilter(table.command->filter, unit, nodes);
}

void Tabulator::add(Frames& frames, const std::uint8_t* mask) {
    if (shape_.weighted)
        findWeights(frames);
    mask = ownMask(frames, mask);
    const std::size_t count = frames.baseFrame().count;
    const bool oneByte =
        sources_.size() == 1 && sources_[0]->domain().physical == storage::Physical::Code8;
    if (!shape_.dense())
        addHashed(frames, mask);
    else if (shape_.weighted)
        addDense(frames, mask);
    else if (sources_.empty())
        cells_.dense.counts[0] += mask != nullptr ? kernels().countMask(mask, count) : count;
    else if (oneByte)
        addBytes(frames, mask);
    else if (shape_.cells <= 256)
        addSmall(frames, mask);
    else
        addDense(frames, mask);
}

const std::uint8_t* Tabulator::ownMask(Frames& frames, const std::uint8_t* mask) {
    const auto mayBeInvalid = [&](Node* node) {
        return node != nullptr && !node->value(frames).allValid;
    };
    const bool checked = mayBeInvalid(weight_) || mayBeInvalid(tally_);
    if (!filter_ && !checked)
        return mask;
    const std::size_t count = frames.baseFrame().count;
    if (mask != nullptr)
        mask_.assign(mask, mask + count);
    else
        mask_.assign(count, truth);
    if (filter_)
        filter_->apply(frames, mask_.data());
    for (Node* node : {weight_, tally_}) {
        if (mayBeInvalid(node))
            dropInvalid(node->value(frames), count);
    }
    return mask_.data();
}

void Tabulator::dropInvalid(const Vector& values, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        if (values.stateAt(i) != state::valid)
            mask_[i] = 0;
    }
}

void Tabulator::findWeights(Frames& frames) {
    weights_.assign(frames.baseFrame().count, 1);
    for (Node* factor : {weight_, tally_}) {
        if (factor != nullptr)
            multiplyBy(*factor, frames);
    }
}

void Tabulator::multiplyBy(Node& factor, Frames& frames) {
    const Vector& values = factor.value(frames);
    const std::size_t step = values.constant ? 0 : 1;
    const auto multiply = [&](const auto* numbers, double unit) {
        for (std::size_t i = 0; i < weights_.size(); ++i)
            weights_[i] *= static_cast<double>(numbers[i * step]) * unit;
    };
    if (values.type == ValueType::Real)
        multiply(values.reals.data(), 1);
    else if (values.type == ValueType::Integer)
        multiply(values.integers.data(), 1);
    else
        multiply(values.truths.data(), 1.0 / truth);
}

void Tabulator::addBytes(Frames& frames, const std::uint8_t* mask) {
    const std::size_t count = frames.baseFrame().count;
    const auto* codes = static_cast<const std::uint8_t*>(sources_[0]->codes(frames));
    const CodeDomain& domain = sources_[0]->domain();
    std::uint64_t found[256] = {};
    std::size_t passing = count;
    if (domain.size <= mostCompared) {
        if (mask != nullptr)
            passing = static_cast<std::size_t>(kernels().countMask(mask, count));
        kernels().countFew(codes, mask, count, static_cast<std::uint8_t>(domain.lowest),
                           static_cast<unsigned>(domain.size), found);
    } else {
        if (mask != nullptr) {
            index8_.resize(count);
            passing = kernels().compact8(codes, mask, count, index8_.data());
            codes = index8_.data();
        }
        kernels().histogram8(codes, passing, found);
    }
    const std::uint64_t* first = found + domain.lowest;
    for (std::size_t i = 0; i < domain.size; ++i)
        cells_.dense.counts[i] += first[i];
    cells_.dense.counts[domain.size] +=
        passing - std::accumulate(first, first + domain.size, std::uint64_t{0});
}

template <class Index>
void Tabulator::makeIndex(Frames& frames, std::vector<Index>& index) {
    const std::size_t count = frames.baseFrame().count;
    index.resize(count);
    if (sources_.empty())
        std::fill(index.begin(), index.end(), Index{0});
    for (std::size_t i = 0; i < sources_.size(); ++i) {
        const CodeDomain& domain = sources_[i]->domain();
        withCodes(sources_[i]->codes(frames), domain.physical, [&](const auto* codes) {
            using Code = std::decay_t<decltype(*codes)>;
            const auto& set = kernels().of<Code>();
            const auto lowest = static_cast<Code>(domain.lowest);
            const auto size = static_cast<Code>(domain.size);
            if constexpr (sizeof(Index) == 1)
                set.index8(codes, count, lowest, size, shape_.strides[i], i > 0, index.data());
            else
                set.index32(codes, count, lowest, size, shape_.strides[i], i > 0, index.data());
        });
    }
}

void Tabulator::addSmall(Frames& frames, const std::uint8_t* mask) {
    std::size_t count = frames.baseFrame().count;
    makeIndex(frames, index8_);
    std::uint64_t* counts = cells_.dense.counts.data();
    if (shape_.cells <= mostCompared) {
        kernels().countFew(index8_.data(), mask, count, 0, static_cast<unsigned>(shape_.cells),
                           counts);
        return;
    }
    if (mask != nullptr)
        count = kernels().compact8(index8_.data(), mask, count, index8_.data());
    kernels().histogram8(index8_.data(), count, counts);
}

void Tabulator::addDense(Frames& frames, const std::uint8_t* mask) {
    std::size_t count = frames.baseFrame().count;
    makeIndex(frames, index32_);
    if (mask != nullptr) {
        if (shape_.weighted)
            kernels().compactReal(weights_.data(), mask, count, weights_.data());
        count = kernels().compact32(index32_.data(), mask, count, index32_.data());
    }
    kernels().histogram32(index32_.data(), count, cells_.dense.counts.data());
    if (shape_.weighted)
        kernels().addWeights(index32_.data(), weights_.data(), count, cells_.dense.sums.data());
}

void Tabulator::addHashed(Frames& frames, const std::uint8_t* mask) {
    for (std::size_t d = 0; d < sources_.size(); ++d)
        sources_[d]->numbers(frames, numbers_[d]);
    std::vector<std::uint64_t> codes(sources_.size());
    for (std::size_t i = 0; i < frames.baseFrame().count; ++i) {
        if (mask != nullptr && mask[i] == 0)
            continue;
        for (std::size_t d = 0; d < codes.size(); ++d)
            codes[d] = numbers_[d][i];
        cells_.hashed.add(codes.data(), 1, shape_.weighted ? weights_[i] : 0);
    }
}

} // namespace kelx::execution
