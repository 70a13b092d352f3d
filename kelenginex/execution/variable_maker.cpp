// SPDX-License-Identifier: Apache-2.0
#include "execution/variable_maker.h"

#include "execution/aggregator.h"
#include "execution/block_values.h"
#include "execution/column_builder.h"
#include "execution/crew.h"
#include "execution/lower_conditions.h"

#include <algorithm>
#include <atomic>
#include <stdexcept>
#include <utility>

namespace kelx::execution {
namespace {

using language::Definition;

std::size_t stepOf(const RunOptions& options) {
    return std::clamp<std::size_t>(options.blockRecords, 1, storage::recordsPerBlock);
}

/// A step asks every node of an expression, so it is small where there are many: it must not take
/// long until the next question whether to go on.
std::size_t stepFor(const RunOptions& options, std::size_t nodes) {
    constexpr std::size_t mostValues = std::size_t{1} << 26; // some 50 milliseconds
    constexpr std::size_t fewestRecords = 256;
    return std::min(stepOf(options),
                    std::max(fewestRecords, mostValues / std::max<std::size_t>(nodes, 1)));
}

/// What the threads of one definition share.
struct Making {
    const Definition& definition;
    const RunOptions& options;
    ColumnBuilder& builder;
    plan::Selections& selections;
    Progress& progress;
    LowerConditions lower{};

    const Entity& entity() const { return *definition.variable->entity; }
};

/// Blocks of an expression's values.
class ValueWorker : public CrewWorker {
public:
    explicit ValueWorker(const Making& making)
        : making_(making), rule_(making.definition), frames_(making.entity()),
          nodes_(&making.lower), value_(nodes_.at(*making.definition.value, making.entity())) {
        for (const auto& condition : making.definition.filters)
            filters_.push_back(makeFilter(condition, making.entity(), nodes_));
        step_ = stepFor(making.options, nodes_.size());
    }

    bool work(std::size_t block, const GoOn& goOn) override {
        const std::uint64_t first = std::uint64_t{block} * storage::recordsPerBlock;
        const std::size_t size = making_.builder.size(block);
        BlockValues values = rule_.begin();
        for (std::size_t done = 0; done < size;) {
            const std::size_t count = std::min(step_, size - done);
            frames_.move(first + done, count);
            rule_.add(value_.value(frames_), findMask(), count, values);
            making_.progress.add(count);
            if (!goOn())
                return false;
            done += count;
        }
        making_.builder.put(block, values);
        return true;
    }

private:
    const std::uint8_t* findMask() {
        if (filters_.empty())
            return nullptr;
        mask_.assign(frames_.baseFrame().count, truth);
        for (const auto& filter : filters_)
            filter->apply(frames_, mask_.data());
        return mask_.data();
    }

    const Making& making_;
    ValueRule rule_;
    Frames frames_;
    NodePool nodes_;
    Node& value_;
    std::vector<std::unique_ptr<RecordFilter>> filters_;
    std::size_t step_ = 0;
    std::vector<std::uint8_t> mask_;
};

/// The aggregates of a definition, one or two, with what is found for each block and not yet put.
class AggregateMaking {
public:
    explicit AggregateMaking(const Making& making) : making_(making) {
        const Definition& definition = making.definition;
        plans_.emplace_back(*definition.numerator, making.entity(), making.selections);
        if (definition.denominator)
            plans_.emplace_back(*definition.denominator, making.entity(), making.selections);
        blocks_ = std::vector<Block>(making.builder.blocks());
        for (std::size_t which = 0; which < plans_.size(); ++which)
            noteParts(which);
        std::stable_sort(parts_.begin(), parts_.end(), [](const Part& a, const Part& b) {
            return a.piece->block < b.piece->block;
        });
    }

    struct Part {
        std::size_t which; ///< 0: numerator, 1: denominator
        const AggregatePiece* piece;
    };
    const std::vector<Part>& parts() const { return parts_; }
    const Making& making() const { return making_; }
    const std::vector<AggregatePlan>& plans() const { return plans_; }
    bool isQuotient() const { return plans_.size() > 1; }
    /// Sums and counts are made as real numbers for a quotient and for a real variable.
    bool isReal() const {
        return isQuotient() || making_.definition.variable->type == ValueType::Real;
    }
    std::uint64_t records() const {
        std::uint64_t sum = 0;
        for (const Part& part : parts_)
            sum += part.piece->below.end - part.piece->below.begin;
        return sum;
    }

    using Folds = std::vector<std::unique_ptr<GroupFold>>;
    /// Takes what was found for a piece; true where it was the last of its block.
    bool keep(const Part& part, std::unique_ptr<GroupFold> fold) {
        Block& block = blocks_[part.piece->block];
        block.folds[part.which][part.piece->number] = std::move(fold);
        return block.pending.fetch_sub(1) == 1;
    }
    Folds take(std::size_t block, std::size_t which) {
        return std::move(blocks_[block].folds[which]);
    }

private:
    struct Block {
        std::atomic<std::size_t> pending{0};
        Folds folds[2];
    };

    void noteParts(std::size_t which) {
        for (const AggregatePiece& piece : plans_[which].pieces()) {
            parts_.push_back({which, &piece});
            ++blocks_[piece.block].pending;
            blocks_[piece.block].folds[which].resize(plans_[which].piecesOf(piece.block));
        }
    }

    const Making& making_;
    std::vector<AggregatePlan> plans_;
    std::vector<Part> parts_;
    std::vector<Block> blocks_;
};

/// numerator / denominator; MV where the latter is 0 or either has no value.
Vector quotient(const Vector& numerator, const Vector& denominator, std::size_t count) {
    Vector result;
    result.type = ValueType::Real;
    result.reals.resize(count);
    result.states.resize(count, state::valid);
    NumberView views[2];
    const double* above = views[0].reals(numerator);
    const double* below = views[1].reals(denominator);
    for (std::size_t i = 0; i < count; ++i) {
        const bool valid = numerator.stateAt(i) == state::valid &&
                           denominator.stateAt(i) == state::valid && below[i] != 0;
        result.reals[i] = valid ? above[i] / below[i] : 0;
        result.states[i] = valid ? state::valid : state::blank;
        result.allValid = result.allValid && valid;
    }
    return result;
}

class AggregateWorker : public CrewWorker {
public:
    explicit AggregateWorker(AggregateMaking& shared)
        : shared_(shared), rule_(shared.making().definition) {
        const Making& making = shared.making();
        for (const AggregatePlan& plan : shared.plans())
            aggregators_.push_back(std::make_unique<Aggregator>(
                plan, making.lower, shared.isReal(), stepOf(making.options), making.progress));
        mayBeBytes_ = !shared.isQuotient() && aggregators_[0]->countsPlainly() &&
                      rule_.type() == ValueType::Integer && rule_.keepsValid();
    }

    bool work(std::size_t number, const GoOn& goOn) override {
        const AggregateMaking::Part& part = shared_.parts()[number];
        if (mayBeBytes_ && shared_.plans()[0].piecesOf(part.piece->block) == 1) {
            const Aggregator::Bytes bytes = countBytes(*part.piece, goOn);
            if (bytes != Aggregator::Bytes::Refused)
                return bytes == Aggregator::Bytes::Written;
        }
        auto fold = aggregators_[part.which]->work(*part.piece, goOn);
        if (fold == nullptr)
            return false;
        return !shared_.keep(part, std::move(fold)) || finish(part.piece->block, goOn);
    }

private:
    Aggregator::Bytes countBytes(const AggregatePiece& piece, const GoOn& goOn) {
        ColumnBuilder& builder = shared_.making().builder;
        const auto done = aggregators_[0]->countBytes(piece, builder.bytes(piece.block), goOn);
        if (done == Aggregator::Bytes::Written)
            builder.putBytes(piece.block);
        return done;
    }

    bool finish(std::size_t block, const GoOn& goOn) {
        const std::size_t count = shared_.making().builder.size(block);
        Vector results[2];
        for (std::size_t which = 0; which < shared_.plans().size(); ++which) {
            if (!joined(block, which, count)->finish(results[which], goOn))
                return false;
        }
        BlockValues values = rule_.begin();
        rule_.add(shared_.isQuotient() ? quotient(results[0], results[1], count) : results[0],
                  nullptr, count, values);
        shared_.making().builder.put(block, values);
        return true;
    }

    /// The folds of a block's pieces as one.
    std::unique_ptr<GroupFold> joined(std::size_t block, std::size_t which, std::size_t count) {
        AggregateMaking::Folds folds = shared_.take(block, which);
        if (folds.size() == 1)
            return std::move(folds[0]);
        auto all = aggregators_[which]->makeFold(count);
        const auto& pieces = shared_.plans()[which].pieces();
        auto piece = std::find_if(pieces.begin(), pieces.end(),
                                  [&](const AggregatePiece& p) { return p.block == block; });
        for (auto& fold : folds) {
            all->join(*fold,
                      static_cast<std::size_t>(piece++->firstGroup -
                                               std::uint64_t{block} * storage::recordsPerBlock));
            fold.reset();
        }
        return all;
    }

    AggregateMaking& shared_;
    ValueRule rule_;
    std::vector<std::unique_ptr<Aggregator>> aggregators_;
    bool mayBeBytes_ = false;
};

/// Works the conditions on records below out, in a stage with all that is to do.
void beginStage(Making& making, double end, std::uint64_t records) {
    making.progress.begin(end, making.lower.records() + records);
    making.lower.work(making.options.threads, stepOf(making.options), making.progress);
}

void workOnValue(Making& making, double end) {
    const Definition& definition = making.definition;
    const language::Expression& value = *definition.value;
    if (value.entity != nullptr && !value.entity->isAncestorOf(making.entity()))
        throw std::runtime_error(value.text + " has no value for each " + making.entity().name +
                                 ".");
    for (const auto& condition : definition.filters)
        making.lower.note(condition, making.entity(), {{0, making.entity().records()}});
    beginStage(making, end, making.entity().records());
    shareOut(
        making.builder.blocks(), making.options.threads,
        [&] { return std::make_unique<ValueWorker>(making); }, making.progress);
}

void workOnAggregates(Making& making, double end) {
    AggregateMaking shared(making);
    for (const AggregatePlan& plan : shared.plans()) {
        for (const auto& condition : plan.aggregate().filters)
            making.lower.note(condition, plan.over(), plan.selected());
    }
    beginStage(making, end, shared.records());
    shareOut(
        shared.parts().size(), making.options.threads,
        [&] { return std::make_unique<AggregateWorker>(shared); }, making.progress);
}

} // namespace

void makeVariable(const Definition& definition, const RunOptions& options, double end,
                  plan::Selections& selections, Progress& progress) {
    catalog::Variable& variable = *definition.variable;
    if (!definition.value && !definition.numerator)
        throw std::logic_error(variable.fullName() + " is defined by nothing");
    const ValueType type = ValueRule(definition).type();
    const auto builder =
        ColumnBuilder::create(type, variable.entity->records(), variable.fullName());
    Making making{definition, options, *builder, selections, progress};
    if (definition.value)
        workOnValue(making, end);
    else
        workOnAggregates(making, end);
    while (const std::size_t parts = builder->nextStep()) {
        progress.begin(end, 1);
        shareOut(
            parts, options.threads, StageShare{},
            [&](std::size_t part, const GoOn&) { builder->join(part); }, progress);
    }
    variable.setColumn(builder->take(
        static_cast<std::uint8_t>(std::clamp(variable.decimals.value_or(0), 0, 255))));
}

} // namespace kelx::execution
