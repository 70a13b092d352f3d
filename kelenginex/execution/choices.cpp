// SPDX-License-Identifier: Apache-2.0
#include "execution/choices.h"

#include "execution/typed_data.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <utility>

namespace kelx::execution {

Choices::Choices(std::vector<Node*> values, bool hasElse)
    : nodes_(std::move(values)), hasElse_(hasElse), views_(nodes_.size()) {
    if (nodes_.size() >= std::numeric_limits<Choice>::max())
        throw std::runtime_error("There are too many values to choose from.");
}

ValueType Choices::type() const {
    const auto any = [&](ValueType type) {
        return std::any_of(nodes_.begin(), nodes_.end(),
                           [&](const Node* node) { return node->type() == type; });
    };
    const bool numbers = any(ValueType::Integer) || any(ValueType::Real);
    if (any(ValueType::String) && (numbers || any(ValueType::Boolean)))
        throw std::runtime_error("Texts and numbers cannot be values of one variable.");
    if (any(ValueType::String))
        return ValueType::String;
    if (any(ValueType::Real))
        return ValueType::Real;
    return numbers ? ValueType::Integer : ValueType::Boolean;
}

void Choices::fill(Frames& frames, const std::vector<Choice>& chosen, Vector& result) {
    workOut(frames, chosen);
    switch (result.type) {
    case ValueType::Integer:
        pick<std::int64_t>(
            chosen, [&](std::size_t i) { return views_[i].integers(*vectors_[i]); },
            result.integers);
        break;
    case ValueType::Real:
        pick<double>(
            chosen, [&](std::size_t i) { return views_[i].reals(*vectors_[i]); }, result.reals);
        break;
    case ValueType::String:
        pick<std::string_view>(
            chosen, [&](std::size_t i) { return vectors_[i]->texts.data(); }, result.texts);
        break;
    default:
        pick<std::uint8_t>(
            chosen, [&](std::size_t i) { return vectors_[i]->truths.data(); }, result.truths);
    }
    pickStates(chosen, result);
}

void Choices::workOut(Frames& frames, const std::vector<Choice>& chosen) {
    wanted_.assign(size() + 1, 0);
    for (const Choice choice : chosen)
        wanted_[choice] = 1;
    vectors_.assign(size(), nullptr);
    for (std::size_t i = 0; i < size(); ++i) {
        if (wanted_[i] != 0)
            vectors_[i] = &nodes_[i]->value(frames);
    }
}

template <class T, class Data>
void Choices::pick(const std::vector<Choice>& chosen, Data data, std::vector<T>& out) {
    struct Source {
        const T* data;
        std::size_t step;
    };
    const T nothing{};
    std::vector<Source> sources(size() + 1, {&nothing, 0});
    for (std::size_t i = 0; i < size(); ++i) {
        if (vectors_[i] != nullptr)
            sources[i] = {data(i), vectors_[i]->constant ? std::size_t{0} : std::size_t{1}};
    }
    out.resize(chosen.size());
    for (std::size_t i = 0; i < chosen.size(); ++i) {
        const Source& source = sources[chosen[i]];
        out[i] = source.data[i * source.step];
    }
}

void Choices::pickStates(const std::vector<Choice>& chosen, Vector& result) const {
    result.allValid = wanted_[size()] == 0 &&
                      std::all_of(vectors_.begin(), vectors_.end(), [](const Vector* values) {
                          return values == nullptr || values->allValid;
                      });
    if (result.allValid)
        return;
    result.states.resize(chosen.size());
    for (std::size_t i = 0; i < chosen.size(); ++i) {
        if (chosen[i] == size()) {
            result.states[i] = static_cast<std::uint8_t>(state::blank | state::untaken);
            continue;
        }
        // A value that is MV or NA is no code of the new variable.
        const std::uint8_t one = vectors_[chosen[i]]->stateAt(i);
        result.states[i] = state::combined(one, one);
    }
}

CodeChoices::CodeChoices(const catalog::Variable& variable, const std::vector<Rule>& rules,
                         Choice rest)
    : column_(variable.column()), rest_(rest) {
    const storage::Physical physical = column_->info().physical;
    if (storage::physicalSize(physical) <= 2)
        fillByCode(rules, static_cast<std::size_t>(storage::blankCode(physical)) + 1);
    else
        fillByEnds(rules);
}

void CodeChoices::choose(const Frame& frame, std::vector<Choice>& chosen) {
    const void* data = column_->read(frame.begin, frame.count, scratch_);
    chosen.resize(frame.count);
    withCodes(data, column_->info().physical, [&](const auto* codes) {
        if (byCode_.empty())
            return chooseByEnds(codes, chosen);
        for (std::size_t i = 0; i < frame.count; ++i)
            chosen[i] = byCode_[codes[i]];
    });
}

void CodeChoices::fillByCode(const std::vector<Rule>& rules, std::size_t codes) {
    FirstCome places(codes, rest_);
    for (const Rule& rule : rules) {
        for (const CodeInterval& interval : rule.intervals)
            places.take(interval.first, interval.last, rule.choice);
    }
    byCode_.assign(places.numbers.begin(), places.numbers.end());
}

void CodeChoices::fillByEnds(const std::vector<Rule>& rules) {
    std::vector<IntervalTable<std::uint64_t>::Bounds> bounds;
    for (const Rule& rule : rules) {
        for (const CodeInterval& interval : rule.intervals) {
            bounds.push_back({interval.first, interval.last});
            choices_.push_back(rule.choice);
        }
    }
    byEnds_ = IntervalTable<std::uint64_t>(bounds);
}

template <class Code>
void CodeChoices::chooseByEnds(const Code* codes, std::vector<Choice>& chosen) const {
    for (std::size_t i = 0; i < chosen.size(); ++i) {
        const std::uint32_t found = byEnds_.find(std::uint64_t{codes[i]});
        chosen[i] = found != byEnds_.none ? choices_[found] : rest_;
    }
}

} // namespace kelx::execution
