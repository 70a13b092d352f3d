// SPDX-License-Identifier: Apache-2.0
#include "execution/list_column.h"

#include "execution/code_source.h"
#include "execution/node.h"
#include "execution/stored_values.h"

#include <algorithm>
#include <limits>

namespace kelx::execution {
namespace {

constexpr std::uint64_t blank = storage::blankCode(storage::Physical::Code64);

/// Goes over the records in stretches of the entity: take(frames, places) with the places of the
/// listed records in the frame.
template <class Take>
void forEachStretch(const Entity& unit, const std::vector<std::uint64_t>& records,
                    Progress& progress, Take take) {
    constexpr std::uint64_t longest = 8192;
    Frames frames(unit);
    std::vector<std::uint32_t> places;
    for (std::size_t i = 0; i < records.size();) {
        progress.checkNow();
        const std::uint64_t begin = records[i];
        places.clear();
        for (; i < records.size() && records[i] - begin < longest; ++i)
            places.push_back(static_cast<std::uint32_t>(records[i] - begin));
        frames.move(begin, places.back() + 1U);
        take(frames, places);
    }
}

/// A variable's values: each once, where it has few codes.
class VariableColumn {
public:
    VariableColumn(const language::Expression& expression, Shown shown)
        : source_(expression), stored_(*expression.variable), shown_(shown) {}

    ListValues read(const Entity& unit, const std::vector<std::uint64_t>& records,
                    Progress& progress) {
        const CodeDomain& domain = source_.domain();
        const bool few = !source_.isReal() && domain.size < records.size() / 2;
        if (few)
            known_.assign(static_cast<std::size_t>(domain.size) + 1, unknown);
        if (few)
            result_.numbers.reserve(records.size());
        else
            result_.values.reserve(records.size());
        forEachStretch(unit, records, progress, [&](Frames& frames, const auto& places) {
            source_.numbers(frames, codes_);
            for (const std::uint32_t place : places) {
                if (few)
                    result_.numbers.push_back(numberOf(codes_[place]));
                else
                    result_.values.push_back(shown(codes_[place]));
            }
        });
        return std::move(result_);
    }

private:
    static constexpr std::uint32_t unknown = std::numeric_limits<std::uint32_t>::max();

    std::uint32_t numberOf(std::uint64_t code) {
        const CodeDomain& domain = source_.domain();
        std::uint32_t& known =
            known_[static_cast<std::size_t>(code == blank ? domain.size : code - domain.lowest)];
        if (known == unknown) {
            known = static_cast<std::uint32_t>(result_.values.size());
            result_.values.push_back(shown(code));
        }
        return known;
    }

    ListValue shown(std::uint64_t code) const {
        if (shown_ == Shown::ValidValues && stored_.state(code) != state::valid)
            return {};
        return stored_.value(code);
    }

    CodeSource source_;
    StoredValues stored_;
    Shown shown_;
    ListValues result_;
    std::vector<std::uint32_t> known_; ///< number of a value by code
    std::vector<std::uint64_t> codes_;
};

ListValue valueAt(const Vector& vector, std::size_t record) {
    const std::size_t i = vector.constant ? 0 : record;
    switch (vector.type) {
    case ValueType::Integer:
        return vector.integers[i];
    case ValueType::Real:
        return vector.reals[i];
    case ValueType::String:
        return std::string(vector.texts[i]);
    default:
        return std::int64_t{vector.truths[i] != 0 ? 1 : 0};
    }
}

} // namespace

ListValues listColumn(const language::Expression& expression, const Entity& unit,
                      const std::vector<std::uint64_t>& records, Shown shown, Progress& progress) {
    if (expression.operation == language::Operation::VariableValue)
        return VariableColumn(expression, shown).read(unit, records, progress);
    ListValues result;
    result.values.reserve(records.size());
    NodePool nodes;
    Node& node = nodes.at(expression, unit);
    forEachStretch(unit, records, progress, [&](Frames& frames, const auto& places) {
        const Vector& vector = node.value(frames);
        for (const std::uint32_t place : places)
            result.values.push_back(vector.stateAt(place) == state::valid ? valueAt(vector, place)
                                                                          : ListValue());
    });
    return result;
}

} // namespace kelx::execution
