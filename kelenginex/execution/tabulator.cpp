// SPDX-License-Identifier: Apache-2.0
#include "execution/tabulator.h"

#include "execution/kernels.h"
#include "execution/result.h"
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
    result.reserve(table.dimensions.size());
    for (const auto& dimension : table.dimensions)
        result.push_back(&pool.of(*dimension));
    return result;
}

TableShape shapeOf(const std::vector<CodeSource*>& sources, bool weighted) {
    std::vector<CodeDomain> domains;
    domains.reserve(sources.size());
    for (const CodeSource* source : sources)
        domains.push_back(source->domain());
    return {std::move(domains), weighted};
}

/// The lower of the entities of weight and tally.
const Entity* weightedBy(const language::TableCommand& command) {
    const Entity* result = nullptr;
    for (const language::ExpressionPtr& factor : {command.weight, command.tally}) {
        const Entity* entity = factor ? factor->entity : nullptr;
        if (entity != nullptr && (result == nullptr || result->isAncestorOf(*entity)))
            result = entity;
    }
    return result;
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
    : command_(*table.command), unit_(&unit), weighted_(weightedBy(command_)),
      sources_(sourcesOf(table, sources)), weight_(factor(command_.weight, nodes)),
      tally_(factor(command_.tally, nodes)),
      shape_(shapeOf(sources_, weight_ != nullptr || tally_ != nullptr)), cells_(shape_),
      numbers_(sources_.size()) {
    if (command_.filter)
        filter_ = makeFilter(command_.filter, unit, nodes);
}

Node* Tabulator::factor(const language::ExpressionPtr& expression, NodePool& nodes) const {
    if (!expression)
        return nullptr;
    Node& node = nodes.at(*expression, weighted_ != nullptr ? *weighted_ : *unit_);
    if (!isNumber(node.type()))
        throw std::runtime_error("A weight or tally is a number, but " + expression->text +
                                 " is not.");
    return &node;
}

/// Where the records end that share a weight.
const std::vector<std::uint32_t>& Tabulator::runEnds(Frames& frames) {
    if (weighted_ != nullptr)
        return frames.runEnds(*weighted_, *unit_);
    onlyEnd_ = {static_cast<std::uint32_t>(frames.baseFrame().count)};
    return onlyEnd_;
}

void Tabulator::add(Frames& frames, const std::uint8_t* mask) {
    if (shape_.weighted)
        findWeights(frames);
    mask = ownMask(frames, mask);
    const std::size_t count = frames.baseFrame().count;
    const bool oneByte =
        sources_.size() == 1 && sources_[0]->domain().physical == storage::Physical::Code8;
    if (!shape_.dense())
        return addHashed(frames, mask);
    if (shape_.weighted)
        addSums(frames, mask);
    if (sources_.empty())
        cells_.dense.counts[0] += mask != nullptr ? kernels().countMask(mask, count) : count;
    else if (oneByte)
        addBytes(frames, mask);
    else if (shape_.small())
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
            dropInvalid(node->value(frames), frames);
    }
    return mask_.data();
}

void Tabulator::dropInvalid(const Vector& values, Frames& frames) {
    if (weighted_ == unit_) {
        for (std::size_t i = 0; i < mask_.size(); ++i) {
            if (values.stateAt(i) != state::valid)
                mask_[i] = 0;
        }
        return;
    }
    const auto& ends = runEnds(frames);
    std::size_t begin = 0;
    for (std::size_t run = 0; run < ends.size(); ++run) {
        if (values.stateAt(run) != state::valid)
            std::fill(mask_.begin() + static_cast<std::ptrdiff_t>(begin),
                      mask_.begin() + static_cast<std::ptrdiff_t>(ends[run]), std::uint8_t{0});
        begin = ends[run];
    }
}

void Tabulator::findWeights(Frames& frames) {
    weights_.assign(weighted_ != nullptr ? frames.frame(*weighted_).count : 1, 1);
    for (Node* factor : {weight_, tally_}) {
        if (factor != nullptr)
            multiplyBy(*factor, frames);
    }
}

void Tabulator::multiplyBy(Node& factor, Frames& frames) {
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
    if (mask != nullptr)
        count = kernels().compact32(index32_.data(), mask, count, index32_.data());
    kernels().histogram32(index32_.data(), count, cells_.dense.counts.data());
}

/// The weight of each record. Mostly weights belong to records above, as those of persons do to
/// their household.
double* Tabulator::recordWeights(Frames& frames) {
    if (weighted_ == unit_)
        return weights_.data();
    const auto& ends = runEnds(frames);
    spread_.resize(frames.baseFrame().count + expandSlack / sizeof(double));
    kernels().expandReal(weights_.data(), ends.data(), ends.size(), spread_.data());
    return spread_.data();
}

/// Records that the mask leaves out add nothing, in their place.
void Tabulator::addSums(Frames& frames, const std::uint8_t* mask) {
    const Frame& frame = frames.baseFrame();
    double* weights = recordWeights(frames);
    if (mask != nullptr)
        kernels().maskReal(mask, frame.count, weights);
    Sum* sums = cells_.dense.sums.data();
    if (shape_.small()) {
        makeIndex(frames, index8_);
        kernels().addWeights8(index8_.data(), weights, frame.count, frame.begin, sums);
    } else {
        makeIndex(frames, index32_);
        kernels().addWeights(index32_.data(), weights, frame.count, sums);
    }
}

void Tabulator::addHashed(Frames& frames, const std::uint8_t* mask) {
    for (std::size_t d = 0; d < sources_.size(); ++d)
        sources_[d]->numbers(frames, numbers_[d]);
    const std::size_t count = frames.baseFrame().count;
    const double* weights = shape_.weighted ? recordWeights(frames) : nullptr;
    std::vector<std::uint64_t> codes(sources_.size());
    for (std::size_t i = 0; i < count; ++i) {
        if (mask != nullptr && mask[i] == 0)
            continue;
        for (std::size_t d = 0; d < codes.size(); ++d)
            codes[d] = numbers_[d][i];
        cells_.hashed.add(codes.data(), 1, {weights != nullptr ? weights[i] : 0, 0});
    }
    if (cells_.hashed.size() > mostRows)
        throwTooManyRows(command_);
}

} // namespace kelx::execution
