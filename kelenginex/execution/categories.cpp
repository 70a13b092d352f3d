// SPDX-License-Identifier: Apache-2.0
#include "execution/categories.h"

#include "execution/value_states.h"
#include "execution/vector.h"
#include "plan/area_codes.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <optional>
#include <unordered_map>

namespace kelx::execution {
namespace {

using language::Operation;

constexpr std::uint64_t blank = storage::blankCode(storage::Physical::Code64);

/// Names the codes of a dimension.
class CodeNames {
public:
    virtual ~CodeNames() = default;
    virtual Category name(std::uint64_t code) = 0;
};

Category marker(CategoryKind kind) {
    return {kind, {}, {}, {}};
}

class VariableNames : public CodeNames {
public:
    explicit VariableNames(const catalog::Variable& variable)
        : variable_(variable), column_(variable.column()), states_(variable) {}

    Category name(std::uint64_t code) override {
        if (code == blank)
            return marker(CategoryKind::Missing);
        Category category;
        const std::uint8_t state = read(code, category);
        if (state != state::valid)
            return marker(state == state::notApplicable ? CategoryKind::NotApplicable
                                                        : CategoryKind::Missing);
        const std::string* label = variable_.labelOf(category.code);
        category.label = label != nullptr ? *label : category.code;
        return category;
    }

private:
    std::uint8_t read(std::uint64_t code, Category& category) const {
        const storage::ColumnInfo& info = column_->info();
        if (info.physical == storage::Physical::Real64) {
            double value = 0;
            std::memcpy(&value, &code, sizeof value);
            category.value = value;
            category.code = plan::numberText(value);
            return states_.ofNumber(value);
        }
        if (info.type == ValueType::String) {
            category.code = std::string(column_->text(code));
            category.value = category.code;
            return states_.ofText(category.code);
        }
        const auto value = static_cast<std::int64_t>(static_cast<std::uint64_t>(info.base) + code);
        category.value = value;
        category.code = std::to_string(value);
        return states_.ofInteger(value);
    }

    const catalog::Variable& variable_;
    std::shared_ptr<const storage::Column> column_;
    ValueStates states_;
};

/// Compound codes of areas, labelled from the entity's label variable.
class AreaNames : public CodeNames {
public:
    explicit AreaNames(const Entity& entity) : codes_(entity) {
        if (entity.labelVar != nullptr)
            label_.emplace(*entity.labelVar);
    }

    Category name(std::uint64_t record) override {
        Category category;
        category.code = codes_.at(record);
        category.value = category.code;
        category.label = label_ ? label_->at(record) : category.code;
        if (category.label.empty())
            category.label = category.code;
        return category;
    }

private:
    plan::CompoundCodes codes_;
    std::optional<plan::ValueText> label_;
};

std::unique_ptr<CodeNames> namesOf(const language::Expression& expression) {
    if (expression.operation == Operation::CompoundCode)
        return std::make_unique<AreaNames>(*expression.codeEntity);
    return std::make_unique<VariableNames>(*expression.variable);
}

Dimension describe(const language::Expression& expression) {
    Dimension dimension;
    if (expression.operation == Operation::CompoundCode) {
        const Entity& entity = *expression.codeEntity;
        dimension.variable = entity.codeVar;
        dimension.name = expression.text;
        dimension.label = entity.label.empty() ? entity.name : entity.label;
    } else {
        const catalog::Variable& variable = *expression.variable;
        dimension.variable = &variable;
        dimension.name = variable.fullName();
        dimension.label = variable.label.empty() ? variable.name : variable.label;
    }
    return dimension;
}

/// The categories of one dimension and the number of the category of each code.
class DimensionCategories {
public:
    explicit DimensionCategories(const language::Expression& expression)
        : names_(namesOf(expression)) {}

    void note(std::uint64_t code) { indices_.emplace(code, 0); }
    std::uint32_t indexOf(std::uint64_t code) const { return indices_.at(code); }

    /// Valid categories in ascending order, then MV, then NA; equal ones are one.
    std::vector<Category> number() {
        std::map<Key, std::pair<Category, std::vector<std::uint64_t>>> sorted;
        for (const auto& [code, index] : indices_) {
            Category category = names_->name(code);
            Key key{category.kind, category.value};
            auto& place = sorted[std::move(key)];
            place.first = std::move(category);
            place.second.push_back(code);
        }
        std::vector<Category> result;
        for (auto& [key, place] : sorted) {
            for (const std::uint64_t code : place.second)
                indices_[code] = static_cast<std::uint32_t>(result.size());
            result.push_back(std::move(place.first));
        }
        return result;
    }

private:
    using Key = std::pair<CategoryKind, decltype(Category::value)>;
    std::unique_ptr<CodeNames> names_;
    std::unordered_map<std::uint64_t, std::uint32_t> indices_;
};

/// Sorts cells and adds up those that have come to be the same.
void sortAndJoin(std::vector<Cell>& cells) {
    std::stable_sort(cells.begin(), cells.end(),
                     [](const Cell& a, const Cell& b) { return a.categories < b.categories; });
    std::vector<Cell> joined;
    for (Cell& cell : cells) {
        if (!joined.empty() && joined.back().categories == cell.categories) {
            joined.back().records += cell.records;
            joined.back().sum += cell.sum;
        } else {
            joined.push_back(std::move(cell));
        }
    }
    cells = std::move(joined);
}

} // namespace

TableResult finishTable(const plan::PlannedTable& table, const TableShape& shape,
                        const TableCells& cells) {
    TableResult result;
    result.command = table.command;
    result.exact = !shape.weighted;
    std::vector<DimensionCategories> dimensions;
    for (const auto& expression : table.dimensions)
        dimensions.emplace_back(*expression);
    cells.forEach([&](std::span<const std::uint64_t> codes, std::uint64_t, double) {
        for (std::size_t d = 0; d < dimensions.size(); ++d)
            dimensions[d].note(codes[d]);
    });
    for (std::size_t d = 0; d < dimensions.size(); ++d) {
        result.dimensions.push_back(describe(*table.dimensions[d]));
        result.dimensions.back().categories = dimensions[d].number();
    }
    cells.forEach([&](std::span<const std::uint64_t> codes, std::uint64_t records, double sum) {
        Cell cell;
        for (std::size_t d = 0; d < dimensions.size(); ++d)
            cell.categories.push_back(dimensions[d].indexOf(codes[d]));
        cell.records = records;
        cell.sum = shape.weighted ? sum : static_cast<double>(records);
        result.cells.push_back(std::move(cell));
    });
    sortAndJoin(result.cells);
    if (dimensions.empty() && result.cells.empty())
        result.cells.emplace_back();
    return result;
}

} // namespace kelx::execution
