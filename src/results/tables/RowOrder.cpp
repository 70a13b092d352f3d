// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/RowOrder.h"

#include "results/tables/VariableHeading.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <numeric>
#include <tuple>

namespace {

struct SortingKey {
    CategoryKind kind;
    std::int64_t number;
    const std::string* code;
    const std::string* label;

    explicit SortingKey(const TableCategory& category)
        : kind(category.kind), number(sortingNumber(category.code)), code(&category.code),
          label(&category.label) {}

    bool operator<(const SortingKey& other) const {
        return std::tie(kind, number, *code, *label) <
               std::tie(other.kind, other.number, *other.code, *other.label);
    }
};

std::string_view withoutBlanksAround(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

} // namespace

CategoryKind categoryKindOf(std::string_view word) {
    if (word == "tot")
        return CategoryKind::Total;
    if (word == "mv")
        return CategoryKind::Missing;
    return word == "na" ? CategoryKind::NotApplicable : CategoryKind::Valid;
}

std::string TableCategory::rowText() const {
    return categoryText(code, label);
}

std::string TableCategory::columnText() const {
    return code + ". " + label;
}

std::int64_t sortingNumber(std::string_view code) {
    const std::string_view digits = withoutBlanksAround(code.substr(0, code.find('.')));
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (end != digits.data() + digits.size() || error == std::errc::invalid_argument)
        return 0;
    if (error == std::errc::result_out_of_range)
        return digits.front() == '-' ? std::numeric_limits<std::int64_t>::min()
                                     : std::numeric_limits<std::int64_t>::max();
    return number;
}

std::vector<std::uint32_t> sortedOrder(const std::vector<TableCategory>& categories) {
    const std::vector<SortingKey> keys(categories.begin(), categories.end());
    std::vector<std::uint32_t> order(categories.size());
    std::iota(order.begin(), order.end(), 0U);
    std::sort(order.begin(), order.end(),
              [&keys](std::uint32_t a, std::uint32_t b) { return keys[a] < keys[b]; });
    return order;
}
