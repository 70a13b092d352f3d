// SPDX-License-Identifier: Apache-2.0
#include "execution/categories.h"

#include "execution/stored_values.h"
#include "execution/vector.h"
#include "plan/area_codes.h"

#include <algorithm>
#include <numeric>
#include <optional>

namespace kelx::execution {
namespace {

using language::Operation;

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
        : variable_(variable), values_(variable) {}

    Category name(std::uint64_t code) override {
        const std::uint8_t state = values_.state(code);
        if (state != state::valid)
            return marker((state & state::notApplicable) != 0 ? CategoryKind::NotApplicable
                                                              : CategoryKind::Missing);
        Category category;
        const StoredValues::Value value = values_.value(code);
        if (const auto* text = std::get_if<std::string>(&value))
            name(category, *text, *text);
        else if (const auto* real = std::get_if<double>(&value))
            name(category, *real, storage::numberText(*real));
        else if (const auto* whole = std::get_if<std::int64_t>(&value))
            name(category, *whole, std::to_string(*whole));
        return category;
    }

private:
    template <class Value>
    void name(Category& category, const Value& value, std::string code) const {
        category.value = value;
        category.code = std::move(code);
        const std::string* label = variable_.labelOf(category.code);
        category.label = label != nullptr ? *label : category.code;
    }

    const catalog::Variable& variable_;
    StoredValues values_;
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

/// Numbers of records: their own codes.
class RecordNames : public CodeNames {
public:
    Category name(std::uint64_t record) override {
        Category category;
        category.value = static_cast<std::int64_t>(record);
        category.code = category.label = std::to_string(record);
        return category;
    }
};

std::unique_ptr<CodeNames> namesOf(const language::Expression& expression) {
    if (expression.operation == Operation::RecordNumber)
        return std::make_unique<RecordNames>();
    if (expression.operation == Operation::CompoundCode)
        return std::make_unique<AreaNames>(*expression.codeEntity);
    return std::make_unique<VariableNames>(*expression.variable);
}

Dimension describe(const language::Expression& expression) {
    Dimension dimension;
    if (expression.operation == Operation::RecordNumber) {
        dimension.name = dimension.label = expression.text;
    } else if (expression.operation == Operation::CompoundCode) {
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

    void note(std::uint64_t code, Progress& progress) {
        if (!codes_.empty() && codes_.back() == code)
            return;
        if (codes_.size() == most_)
            settle(progress);
        codes_.push_back(code);
    }
    std::uint32_t indexOf(std::uint64_t code) const {
        const std::uint64_t place = code - codes_.front();
        if (place < direct_.size())
            return direct_[place];
        const auto found = std::lower_bound(codes_.begin(), codes_.end(), code);
        return indices_[static_cast<std::size_t>(found - codes_.begin())];
    }

    /// Valid categories in ascending order, then MV, then NA; equal ones are one.
    LargeVector<Category> number(Progress& progress) {
        settle(progress);
        LargeVector<Category> named;
        named.reserve(codes_.size());
        for (const std::uint64_t code : codes_) {
            progress.check();
            named.push_back(names_->name(code));
        }
        std::vector<std::uint32_t> order(codes_.size());
        std::iota(order.begin(), order.end(), 0U);
        const auto isBefore = [&](std::uint32_t a, std::uint32_t b) {
            progress.check();
            const Category& x = named[a];
            const Category& y = named[b];
            return x.kind != y.kind ? x.kind < y.kind : x.value < y.value;
        };
        if (!std::is_sorted(order.begin(), order.end(), isBefore))
            std::sort(order.begin(), order.end(), isBefore);
        indices_.resize(codes_.size());
        std::uint32_t index = 0;
        for (std::size_t i = 0; i < order.size(); ++i) {
            index += i > 0 && isBefore(order[i - 1], order[i]) ? 1 : 0;
            indices_[order[i]] = index;
        }
        makeDirect();
        LargeVector<Category> result;
        result.reserve(index + 1U);
        for (const std::uint32_t place : order) {
            progress.check();
            if (indices_[place] == result.size())
                result.push_back(std::move(named[place]));
        }
        return result;
    }

private:
    static constexpr std::size_t fewCodes = 4096;

    /// Ascending, each once.
    void settle(Progress& progress) {
        std::sort(codes_.begin(), codes_.end(), [&](std::uint64_t a, std::uint64_t b) {
            progress.check();
            return a < b;
        });
        codes_.erase(std::unique(codes_.begin(), codes_.end()), codes_.end());
        most_ = std::max(fewCodes, 2 * codes_.size());
    }

    /// Codes that lie close together are looked up by their place; that of blanks lies far off.
    void makeDirect() {
        direct_.reserve(codes_.size());
        while (direct_.size() < codes_.size() &&
               codes_[direct_.size()] - codes_.front() == direct_.size())
            direct_.push_back(indices_[direct_.size()]);
    }

    std::unique_ptr<CodeNames> names_;
    LargeVector<std::uint64_t> codes_;
    std::size_t most_ = fewCodes;        ///< codes, before they are settled again
    LargeVector<std::uint32_t> indices_; ///< of the codes' categories
    LargeVector<std::uint32_t> direct_;  ///< the same for the codes without a gap from the first on
};

/// Cells with the numbers of their categories, in any order and perhaps more than once.
struct LooseCells {
    std::size_t dimensions = 0;
    LargeVector<std::uint32_t> categories;
    LargeVector<std::uint64_t> records;
    LargeVector<Sum> sums;

    const std::uint32_t* of(std::size_t cell) const {
        return categories.data() + cell * dimensions;
    }
    Cells::Cell at(std::size_t cell) const {
        return {{of(cell), dimensions}, records[cell], sums.empty() ? Sum{} : sums[cell]};
    }
};

LooseCells number(const TableCells& cells, const std::vector<DimensionCategories>& dimensions,
                  Progress& progress) {
    LooseCells result;
    result.dimensions = dimensions.size();
    if (!cells.shape().dense()) { // growing would copy it all, again and again
        result.categories.reserve(cells.hashed.size() * dimensions.size());
        result.records.reserve(cells.hashed.size());
        result.sums.reserve(cells.shape().weighted ? cells.hashed.size() : 0);
    }
    cells.forEach([&](std::span<const std::uint64_t> codes, std::uint64_t records, const Sum& sum) {
        progress.check();
        for (std::size_t d = 0; d < dimensions.size(); ++d)
            result.categories.push_back(dimensions[d].indexOf(codes[d]));
        result.records.push_back(records);
        if (cells.shape().weighted)
            result.sums.push_back(sum);
    });
    return result;
}

/// Sorts cells and adds up those that have come to be the same. Tells where each has gone.
Cells sortedAndJoined(const LooseCells& loose, bool weighted, Progress& progress,
                      std::vector<std::uint32_t>* places) {
    const std::size_t dimensions = loose.dimensions;
    std::vector<std::uint32_t> order(loose.records.size());
    std::iota(order.begin(), order.end(), 0U);
    const auto isBefore = [&](std::uint32_t a, std::uint32_t b) {
        progress.check();
        const std::uint32_t* x = loose.of(a);
        const std::uint32_t* y = loose.of(b);
        for (std::size_t d = 0; d < dimensions; ++d) {
            if (x[d] != y[d])
                return x[d] < y[d];
        }
        return a < b;
    };
    if (!std::is_sorted(order.begin(), order.end(), isBefore))
        std::sort(order.begin(), order.end(), isBefore);
    Cells result(dimensions, weighted);
    result.reserve(order.size());
    if (places != nullptr)
        places->resize(order.size());
    for (const std::uint32_t cell : order) {
        progress.check();
        const std::uint32_t* categories = loose.of(cell);
        if (!result.empty() &&
            std::equal(categories, categories + dimensions, result.categories(result.size() - 1)))
            result.join(loose.at(cell));
        else
            result.add(loose.at(cell));
        if (places != nullptr)
            (*places)[cell] = static_cast<std::uint32_t>(result.size() - 1);
    }
    return result;
}

} // namespace

TableResult finishTable(const plan::PlannedTable& table, const TableCells& cells,
                        Progress& progress, std::vector<std::uint32_t>* places) {
    const bool weighted = cells.shape().weighted;
    TableResult result;
    result.command = table.command;
    result.exact = !weighted;
    std::vector<DimensionCategories> dimensions;
    for (const auto& expression : table.dimensions)
        dimensions.emplace_back(*expression);
    cells.forEach([&](std::span<const std::uint64_t> codes, std::uint64_t, const Sum&) {
        progress.check();
        for (std::size_t d = 0; d < dimensions.size(); ++d)
            dimensions[d].note(codes[d], progress);
    });
    for (std::size_t d = 0; d < dimensions.size(); ++d) {
        result.dimensions.push_back(describe(*table.dimensions[d]));
        result.dimensions.back().categories = dimensions[d].number(progress);
    }
    result.cells = sortedAndJoined(number(cells, dimensions, progress), weighted, progress, places);
    if (dimensions.empty() && result.cells.empty())
        result.cells.add({});
    return result;
}

} // namespace kelx::execution
