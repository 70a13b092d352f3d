// SPDX-License-Identifier: Apache-2.0
// The values that a definition makes for one block of records, in the type of its variable.
#pragma once

#include "execution/node.h"
#include "execution/vector.h"
#include "language/bound.h"
#include "storage/text_table.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kelx::execution {

struct BlockValues {
    ValueType type = ValueType::Integer;
    std::vector<std::int64_t> integers; ///< numbers, truth values 0 and 1, numbers of texts
    std::vector<double> reals;
    std::unique_ptr<storage::TextTable> texts;
    std::vector<std::uint8_t> states; ///< valid, blank or blankNotApplicable
    bool allValid = true;

    std::size_t size() const { return states.size(); }
};

/// Turns the values of expressions into those of a variable: its type, its ranges, and its codes
/// for MV and NA. One for each thread.
class ValueRule {
public:
    explicit ValueRule(const language::Definition& definition);

    ValueType type() const { return type_; }
    /// True where a valid value always stays as it is.
    bool keepsValid() const { return ranges_.empty(); }
    /// Empty values of the right type.
    BlockValues begin() const;
    /// Adds count values to a block. Where the mask, if there is one, is not set, or where nothing
    /// took the record, DEFAULT's value stands; the ranges are not asked about that one.
    void add(const Vector& values, const std::uint8_t* mask, std::size_t count, BlockValues& to);

private:
    struct Single { ///< a value of the variable's type
        std::int64_t integer = 0;
        double real = 0;
        std::string text;
    };
    std::optional<Single> single(const language::Constant& constant) const;
    std::optional<Single> codeOf(std::optional<double> code) const;
    void addStates(const Vector& values, std::size_t count, BlockValues& to) const;
    void addIntegers(const Vector& values, std::size_t count, BlockValues& to);
    void addTruths(const Vector& values, std::size_t count, BlockValues& to);
    void addReals(const Vector& values, std::size_t count, BlockValues& to);
    void addTexts(const Vector& values, std::size_t count, BlockValues& to) const;
    void dropOutside(std::size_t begin, BlockValues& to) const;
    void putDefaults(const Vector& values, const std::uint8_t* mask, std::size_t begin,
                     BlockValues& to) const;
    void writeCodes(std::size_t begin, BlockValues& to) const;
    void put(const std::optional<Single>& value, std::size_t at, BlockValues& to) const;

    const catalog::Variable& variable_;
    ValueType type_;
    std::vector<catalog::Range> ranges_;
    std::optional<Single> missing_, notApplicable_, otherwise_;
    NumberView view_;
    std::vector<double> parsed_;
};

} // namespace kelx::execution
