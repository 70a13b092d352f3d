// SPDX-License-Identifier: Apache-2.0
#include "output/joining.h"

#include <map>

namespace kelx::output {

using execution::Category;
using execution::CategoryKind;

namespace {

/// Valid ones by value, numbers before texts; then MV and NA.
struct Before {
    bool operator()(const Category* a, const Category* b) const {
        if (a->kind != b->kind || a->kind != CategoryKind::Valid)
            return a->kind < b->kind;
        const auto* textA = std::get_if<std::string>(&a->value);
        const auto* textB = std::get_if<std::string>(&b->value);
        if (textA != nullptr || textB != nullptr)
            return textA == nullptr || (textB != nullptr && *textA < *textB);
        const auto* integerA = std::get_if<std::int64_t>(&a->value);
        const auto* integerB = std::get_if<std::int64_t>(&b->value);
        if (integerA != nullptr && integerB != nullptr)
            return *integerA < *integerB;
        return number(*a) < number(*b);
    }
    static double number(const Category& category) {
        const auto* integer = std::get_if<std::int64_t>(&category.value);
        return integer != nullptr ? static_cast<double>(*integer)
                                  : std::get<double>(category.value);
    }
};

} // namespace

JoinedDimension joinDimension(const std::vector<const RowTable*>& tables, std::size_t dimension) {
    JoinedDimension result;
    std::map<const Category*, std::uint32_t, Before> all;
    for (const RowTable* table : tables) {
        for (const Category& category : table->dimensions[dimension].categories)
            all.emplace(&category, 0);
    }
    const execution::Dimension& first = tables.front()->dimensions[dimension];
    result.dimension.variable = first.variable;
    result.dimension.name = first.name;
    result.dimension.label = first.label;
    for (auto& [category, number] : all) {
        number = static_cast<std::uint32_t>(result.dimension.categories.size());
        result.dimension.categories.push_back(*category);
        result.valid += category->kind == CategoryKind::Valid ? 1 : 0;
    }
    for (const RowTable* table : tables) {
        auto& places = result.places.emplace_back();
        for (std::uint32_t place = 0; place < placesOf(*table, dimension); ++place) {
            const Category* category = categoryAt(*table, dimension, place);
            const std::uint32_t joined = category != nullptr ? all.at(category) : result.valid;
            const bool behindTotal = category != nullptr && joined >= result.valid;
            places.push_back(joined + (behindTotal ? 1 : 0));
        }
    }
    return result;
}

} // namespace kelx::output
