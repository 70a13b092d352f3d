// SPDX-License-Identifier: Apache-2.0
#include "execution/lower_conditions.h"

#include "execution/record_filter.h"
#include "execution/table_maker.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace kelx::execution {
namespace {

/// Records that a thread goes over before it takes more; whole blocks, for the sake of their zones.
constexpr std::uint64_t pieceRecords = std::uint64_t{4} * storage::recordsPerBlock;

} // namespace

bool RecordBits::mayHaveAny(const plan::RecordRange& range) const {
    for (std::uint64_t word = range.begin / wordBits; word * wordBits < range.end; ++word) {
        if (words_[word].load(std::memory_order_relaxed) != 0)
            return true;
    }
    return false;
}

struct LowerConditions::Condition {
    Condition(language::ExpressionPtr of, const Entity& unit, const plan::RecordRanges& ranges)
        : expression(std::move(of)), passing(unit.records()) {
        const plan::DescentPath path(unit, *expression->entity);
        for (plan::RecordRange range : path.descend(ranges)) {
            while (range.begin < range.end) {
                const std::uint64_t next = (range.begin / pieceRecords + 1) * pieceRecords;
                const std::uint64_t end = std::min(range.end, next);
                pieces.push_back({range.begin, end});
                range.begin = end;
            }
        }
    }

    language::ExpressionPtr expression;
    RecordBits passing;
    plan::RecordRanges pieces; ///< of the records below
};

/// Works on pieces of one condition.
class LowerConditions::Worker : public CrewWorker {
public:
    Worker(Condition& condition, const Entity& unit, std::size_t stepRecords, Progress& progress)
        : condition_(condition), unit_(unit), stepRecords_(stepRecords), progress_(progress),
          frames_(*condition.expression->entity), node_(nodes_.own(*condition.expression)) {
        requireCondition(node_, condition.expression->text);
    }

    bool work(std::size_t item, const GoOn& goOn) override {
        plan::RecordRange rest = condition_.pieces[item];
        while (rest.begin < rest.end) {
            const std::uint64_t block = rest.begin / storage::recordsPerBlock;
            const std::uint64_t next = std::min((block + 1) * storage::recordsPerBlock, rest.end);
            const bool may = node_.mayBeTrue({rest.begin, next});
            const std::uint64_t end = may ? std::min(next, rest.begin + stepRecords_) : next;
            if (may)
                step(rest.begin, static_cast<std::size_t>(end - rest.begin));
            progress_.add(end - rest.begin);
            rest.begin = end;
            if (!goOn())
                return false;
        }
        return true;
    }

private:
    void step(std::uint64_t begin, std::size_t count) {
        frames_.move(begin, count);
        const Frame above = frames_.frame(unit_);
        if (above.count == 1 && condition_.passing.at(above.begin))
            return;
        const std::uint8_t* truths = execution::passing(node_.value(frames_), truths_).data();
        const auto& ends = frames_.runEnds(unit_, frames_.base());
        std::size_t first = 0;
        for (std::size_t run = 0; run < ends.size(); ++run) {
            if (std::memchr(truths + first, truth, ends[run] - first) != nullptr)
                condition_.passing.set(above.begin + run);
            first = ends[run];
        }
    }

    Condition& condition_;
    const Entity& unit_;
    std::size_t stepRecords_;
    Progress& progress_;
    Frames frames_;
    NodePool nodes_;
    Node& node_;
    std::vector<std::uint8_t> truths_;
};

void LowerConditions::note(const language::ExpressionPtr& condition, const Entity& unit,
                           const plan::RecordRanges& ranges) {
    const Entity* entity = condition->entity;
    if (entity == nullptr || entity->isAncestorOf(unit) || !unit.isAncestorOf(*entity))
        return;
    auto& place = conditions_[&unit][condition.get()];
    if (!place)
        place = std::make_shared<Condition>(condition, unit, ranges);
}

std::uint64_t LowerConditions::records() const {
    std::uint64_t sum = 0;
    for (const auto& [unit, conditions] : conditions_) {
        for (const auto& [expression, condition] : conditions)
            sum += plan::recordCount(condition->pieces);
    }
    return sum;
}

void LowerConditions::work(unsigned threads, std::size_t stepRecords, Progress& progress) {
    stepRecords = std::min(stepRecords, TablePart::cachedStep);
    for (const auto& [unit, conditions] : conditions_) {
        for (const auto& [expression, condition] : conditions)
            shareOut(
                condition->pieces.size(), threads,
                [&, &of = *condition, above = unit] {
                    return std::make_unique<Worker>(of, *above, stepRecords, progress);
                },
                progress);
    }
}

const RecordBits& LowerConditions::passing(const language::Expression& condition,
                                           const Entity& unit) const {
    const auto known = conditions_.find(&unit);
    if (known == conditions_.end() || !known->second.contains(&condition))
        throw std::logic_error("what " + condition.text + " says of each " + unit.name +
                               " was not worked out");
    return known->second.at(&condition)->passing;
}

} // namespace kelx::execution
