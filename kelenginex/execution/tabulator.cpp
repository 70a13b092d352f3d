// SPDX-License-Identifier: Apache-2.0
#include "execution/tabulator.h"

#include "execution/kernels.h"
#include "execution/record_weights.h"
#include "execution/result.h"
#include "execution/typed_data.h"

#include <algorithm>
#include <numeric>

namespace kelx::execution {
namespace {

/// Up to so many cells are counted by comparing; beyond, a table of counters is faster.
constexpr std::uint64_t mostCompared = 32;

/// Where runs are so long on average a stretch of its own costs less than an index by record.
constexpr std::uint64_t longRun = 1024;

/// Up to so many cells have their sums in lanes.
constexpr std::size_t mostInLanes = 4096;

std::vector<CodeSource*> sourcesOf(const plan::PlannedTable& table, SourcePool& pool) {
    std::vector<CodeSource*> result;
    result.reserve(table.dimensions.size());
    for (const auto& dimension : table.dimensions)
        result.push_back(&pool.of(*dimension));
    return result;
}

TableShape shapeOf(const std::vector<CodeSource*>& sources, const Entity& unit, bool weighted) {
    std::vector<CodeDomain> domains;
    domains.reserve(sources.size());
    for (const CodeSource* source : sources) {
        domains.push_back(source->domain());
        const Entity& entity = source->entity();
        domains.back().hasLongRuns =
            &entity != &unit && unit.records() / longRun >= entity.records();
    }
    return {std::move(domains), weighted};
}

/// The place of a code among a domain's numbers.
std::size_t numberOf(const void* codes, std::size_t record, const CodeDomain& domain) {
    return withCodes(codes, domain.physical, [&](const auto* typed) {
        const std::uint64_t code = typed[record] - domain.lowest;
        return static_cast<std::size_t>(std::min(code, domain.numbers() - 1));
    });
}

} // namespace

CodeSource& SourcePool::of(const language::Expression& expression) {
    auto& source = sources_[&expression];
    if (!source)
        source = std::make_unique<CodeSource>(expression);
    return *source;
}

Tabulator::Tabulator(const plan::PlannedTable& table, const Entity& unit, NodePool& nodes,
                     SourcePool& sources)
    : command_(*table.command), sources_(sourcesOf(table, sources)),
      weights_(command_, unit, nodes), shape_(shapeOf(sources_, unit, weights_.any())),
      cells_(shape_, !(shape_.dense() && weights_.exact())), numbers_(sources_.size()) {
    if (command_.filter)
        filter_ = makeFilter(command_.filter, unit, nodes);
    if (!shape_.dense())
        return;
    sortDimensions();
    if (weights_.exact()) {
        lanes_ = shape_.cells <= mostInLanes ? partLanes : 1;
        parts_.resize((shape_.cells + 1) * lanes_);
    }
}

std::size_t Tabulator::bytesFor(const plan::PlannedTable& table, const Entity& unit) {
    const bool weighted = table.command->weight || table.command->tally;
    SourcePool pool;
    const TableShape shape = shapeOf(sourcesOf(table, pool), unit, weighted);
    const std::size_t counts = shape.cells * sizeof(std::uint64_t);
    if (!weighted)
        return counts;
    const std::size_t lanes = shape.cells <= mostInLanes ? partLanes : 1;
    return std::max(shape.cells * lanes * sizeof(WeightParts),
                    counts + shape.cells * (shape.small() ? sumLanes : 1) * sizeof(Sum));
}

void Tabulator::sortDimensions() {
    for (std::size_t i = 0; i < sources_.size(); ++i) {
        const Entity& entity = sources_[i]->entity();
        const bool isFar = shape_.domains[i].hasLongRuns;
        (isFar ? far_ : close_).push_back({sources_[i], shape_.strides[i]});
        if (isFar && (lowestFar_ == nullptr || lowestFar_->isAncestorOf(entity)))
            lowestFar_ = &entity;
    }
}

bool Tabulator::isOneByte() const {
    return close_.size() == 1 && close_[0].source->domain().physical == storage::Physical::Code8;
}

/// Codes that are counted where they lie need no room in the cache.
std::size_t Tabulator::mostAtOnce() const {
    const bool inPlace =
        shape_.dense() && !filter_ && !weights_.any() && (close_.empty() || isOneByte());
    return inPlace ? storage::recordsPerBlock : cachedStep;
}

void Tabulator::add(Frames& frames, const std::uint8_t* mask) {
    if (weights_.any())
        weights_.find(frames);
    mask = ownMask(frames, mask);
    if (!shape_.dense())
        return addHashed(frames, mask);
    findStretches(frames);
    if (weights_.exact())
        return addParts(frames, mask);
    if (shape_.weighted)
        addSums(frames, mask);
    if (close_.empty())
        addWithoutCodes(mask);
    else if (isOneByte())
        addBytes(frames, mask);
    else if (shape_.small())
        addSmall(frames, mask);
    else
        addDense(frames, mask);
}

const std::uint8_t* Tabulator::ownMask(Frames& frames, const std::uint8_t* mask) {
    const bool inParts = shape_.dense() && weights_.exact();
    const bool checked = weights_.any() && weights_.mayBeInvalid() && !inParts;
    if (filter_ && mask == nullptr && !checked) {
        if (const std::uint8_t* ready = filter_->mask(frames))
            return ready;
    }
    return passingMask(frames, mask, filter_.get(), checked ? &weights_ : nullptr, mask_);
}

void Tabulator::findStretches(Frames& frames) {
    stretches_.clear();
    const std::size_t count = frames.baseFrame().count;
    if (lowestFar_ == nullptr) {
        stretches_.push_back({0, count, 0});
        return;
    }
    std::size_t begin = 0;
    for (const std::uint32_t end : frames.runEnds(*lowestFar_, frames.base())) {
        stretches_.push_back({begin, end, 0});
        begin = end;
    }
    for (const Dimension& dimension : far_)
        addCell(dimension, frames);
}

void Tabulator::addCell(const Dimension& dimension, Frames& frames) {
    const void* codes = dimension.source->codes(frames, *lowestFar_);
    for (std::size_t i = 0; i < stretches_.size(); ++i)
        stretches_[i].cell += numberOf(codes, i, dimension.source->domain()) * dimension.stride;
}

void Tabulator::addWithoutCodes(const std::uint8_t* mask) {
    for (const Stretch& stretch : stretches_) {
        const std::size_t count = stretch.end - stretch.begin;
        cells_.dense.counts[stretch.cell] +=
            mask != nullptr ? kernels().countMask(mask + stretch.begin, count) : count;
    }
}

void Tabulator::addBytes(Frames& frames, const std::uint8_t* mask) {
    const auto* codes = static_cast<const std::uint8_t*>(close_[0].source->codes(frames));
    const CodeDomain& domain = close_[0].source->domain();
    const auto lowest = static_cast<std::uint8_t>(domain.lowest);
    const auto size = static_cast<unsigned>(domain.size);
    for (const auto& [begin, end, cell] : stretches_) {
        std::uint64_t found[256] = {};
        const std::size_t count = end - begin;
        const std::uint8_t* kept = mask != nullptr ? mask + begin : nullptr;
        if (size <= mostCompared)
            kernels().countFew(codes + begin, kept, count, lowest, size, found);
        else
            kernels().histogram8(codes + begin, kept, count, lowest + size, found);
        std::uint64_t* counts = cells_.dense.counts.data() + cell;
        const std::uint64_t* first = found + lowest;
        for (std::size_t i = 0; i < size; ++i)
            counts[i] += first[i];
        if (domain.mayBeBlank)
            counts[size] += (kept != nullptr ? kernels().countMask(kept, count) : count) -
                            std::accumulate(first, first + size, std::uint64_t{0});
    }
}

template <class Index>
void Tabulator::makeIndex(Frames& frames, std::vector<Index>& index) {
    const std::size_t count = frames.baseFrame().count;
    index.resize(count);
    if (close_.empty())
        std::fill(index.begin(), index.end(), Index{0});
    for (const Dimension& dimension : close_) {
        const CodeDomain& domain = dimension.source->domain();
        const bool add = &dimension != close_.data();
        withCodes(dimension.source->codes(frames), domain.physical, [&](const auto* codes) {
            using Code = std::decay_t<decltype(*codes)>;
            const auto& set = kernels().of<Code>();
            const auto lowest = static_cast<Code>(domain.lowest);
            const auto last = static_cast<Code>(domain.numbers() - 1);
            if constexpr (sizeof(Index) == 1)
                set.index8(codes, count, lowest, last, dimension.stride, add, index.data());
            else
                set.index32(codes, count, lowest, last, dimension.stride, add, index.data());
        });
    }
}

void Tabulator::addSmall(Frames& frames, const std::uint8_t* mask) {
    makeIndex(frames, index8_);
    const auto kinds = static_cast<unsigned>(shape_.neighbours);
    for (const auto& [begin, end, cell] : stretches_) {
        const std::uint8_t* kept = mask != nullptr ? mask + begin : nullptr;
        std::uint64_t* counts = cells_.dense.counts.data() + cell;
        if (kinds <= mostCompared)
            kernels().countFew(index8_.data() + begin, kept, end - begin, 0, kinds, counts);
        else
            kernels().histogram8(index8_.data() + begin, kept, end - begin, kinds, counts);
    }
}

void Tabulator::addDense(Frames& frames, const std::uint8_t* mask) {
    makeIndex(frames, index32_);
    for (const auto& [begin, end, cell] : stretches_) {
        std::uint32_t* index = index32_.data() + begin;
        std::size_t count = end - begin;
        if (mask != nullptr)
            count = kernels().compact32(index, mask + begin, count, index);
        kernels().histogram32(index, count, cells_.dense.counts.data() + cell);
    }
}

/// What the mask leaves out goes into a cell behind all others.
void Tabulator::addParts(Frames& frames, const std::uint8_t* mask) {
    makeIndex(frames, index32_);
    const std::vector<WeightParts>& parts = weights_.parts();
    const std::uint32_t* runs = weights_.runs(frames);
    const auto add = lanes_ == 1 ? kernels().addParts : kernels().addPartsInLanes;
    for (const auto& [begin, end, cell] : stretches_) {
        std::uint32_t* index = index32_.data() + begin;
        if (mask != nullptr)
            kernels().replace32(index, mask + begin, end - begin,
                                static_cast<std::uint32_t>(shape_.cells - cell));
        const bool own = runs == nullptr;
        add(index, own ? nullptr : runs + begin, own ? parts.data() + begin : parts.data(),
            end - begin, parts_.data() + cell * lanes_);
    }
}

bool Tabulator::giveTo(TableCells& total, const GoOn& goOn) {
    if (parts_.empty())
        return total.take(cells_, goOn);
    for (std::size_t cell = 0; cell < shape_.cells; ++cell) {
        WeightParts all;
        for (std::size_t lane = 0; lane < lanes_; ++lane) {
            const WeightParts& own = parts_[cell * lanes_ + lane];
            all.high += own.high;
            all.middle += own.middle;
            all.low += own.low;
            all.records += own.records;
        }
        Sum sum;
        for (const double term : {all.high, all.middle, all.low})
            sum.add(term);
        total.dense.add(cell, static_cast<std::uint64_t>(all.records), sum);
    }
    std::fill(parts_.begin(), parts_.end(), WeightParts{});
    return true;
}

/// Records that the mask leaves out add nothing, in their place.
void Tabulator::addSums(Frames& frames, const std::uint8_t* mask) {
    const Frame& frame = frames.baseFrame();
    double* weights = weights_.ofRecords(frames);
    if (mask != nullptr)
        kernels().maskReal(mask, frame.count, weights);
    if (shape_.small())
        makeIndex(frames, index8_);
    else
        makeIndex(frames, index32_);
    for (const auto& [begin, end, cell] : stretches_) {
        Sum* sums = cells_.dense.sums.data() + cell * cells_.dense.lanes;
        if (shape_.small())
            kernels().addWeights8(index8_.data() + begin, weights + begin, end - begin,
                                  frame.begin + begin, sums);
        else
            kernels().addWeights(index32_.data() + begin, weights + begin, end - begin, sums);
    }
}

void Tabulator::addHashed(Frames& frames, const std::uint8_t* mask) {
    for (std::size_t d = 0; d < sources_.size(); ++d)
        sources_[d]->numbers(frames, numbers_[d]);
    const std::size_t count = frames.baseFrame().count;
    const double* weights = shape_.weighted ? weights_.ofRecords(frames) : nullptr;
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
