// SPDX-License-Identifier: Apache-2.0
#include "execution/saved_column.h"

#include "catalog/names.h"
#include "execution/typed_data.h"
#include "storage/block_stats.h"
#include "storage/coding.h"
#include "storage/error.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <limits>
#include <set>
#include <string>
#include <utility>

namespace kelx::execution {
namespace {

using storage::Column;
using storage::ColumnInfo;
using storage::ColumnScratch;
using storage::Physical;
using storage::ValueType;

/// Doubles tell all whole numbers apart up to here.
constexpr double mostExact = 0x1p53;
constexpr std::int64_t mostShown = std::int64_t{1} << 53;

/// Codes that have a meaning, whether they occur or not.
std::vector<double> namedCodes(const catalog::Variable& variable) {
    std::vector<double> codes;
    if (variable.missing)
        codes.push_back(*variable.missing);
    for (const auto& [code, label] : variable.valueLabels) {
        if (const auto number = catalog::parseNumber(code))
            codes.push_back(*number);
    }
    return codes;
}

[[noreturn]] void failForCode(const catalog::Variable& variable) {
    throw storage::FileError(variable.fullName(), "has no code left for what is not applicable; "
                                                  "give it one with NOTAPP");
}

double aboveAll(const catalog::Variable& variable, double lowest, double highest) {
    for (const double code : namedCodes(variable)) {
        lowest = std::min(lowest, code);
        highest = std::max(highest, code);
    }
    const double above = std::floor(highest) + 1;
    const double below = std::ceil(lowest) - 1;
    if (std::fabs(above) <= mostExact)
        return above;
    if (std::fabs(below) <= mostExact)
        return below;
    failForCode(variable);
}

double freeText(const catalog::Variable& variable, const Column& column,
                const storage::Pulse& pulse) {
    const std::vector<double> named = namedCodes(variable);
    std::set<double> taken(named.begin(), named.end());
    storage::forEachStep(column.textCount(), pulse, [&](std::uint64_t i) {
        if (const auto number = catalog::parseNumber(column.text(i)))
            taken.insert(*number);
    });
    for (std::int64_t code = 9; code < mostShown; code = code * 10 + 9) {
        const auto number = static_cast<double>(code);
        if (taken.count(number) == 0)
            return number;
    }
    failForCode(variable);
}

/// A code that the variable names itself will do where no truth value and not MV has it.
double codeBesideTruth(const catalog::Variable& variable) {
    const auto& own = variable.notapp;
    const bool isFree = own && *own == std::round(*own) && std::fabs(*own) <= mostExact &&
                        *own != 0 && *own != 1 && own != variable.missing;
    return isFree ? *own : aboveAll(variable, 0, 1);
}

/// Codes are given in 64 bits, so that there is room for one more.
class NaAsCode : public Column {
public:
    NaAsCode(std::optional<double> code, std::shared_ptr<const Column> column)
        : column_(std::move(column)), code_(code) {
        info_ = column_->info();
        info_.naCode.reset();
        if (info_.physical == Physical::Real64)
            return;
        info_.physical = Physical::Code64;
        if (info_.type == ValueType::Boolean)
            info_.type = ValueType::Integer;
        if (info_.type == ValueType::Integer)
            placeNumber(static_cast<std::int64_t>(*code));
        else
            placeText(catalog::numberText(*code));
    }

    storage::Zone zone(std::size_t block) const override {
        const auto begin = std::uint64_t{block} * storage::recordsPerBlock;
        const auto count = static_cast<std::size_t>(
            std::min<std::uint64_t>(info_.records - begin, storage::recordsPerBlock));
        ColumnScratch scratch;
        return storage::measureBlock(info_.physical, read(begin, count, scratch), count);
    }

    const void* read(std::uint64_t begin, std::size_t count,
                     ColumnScratch& scratch) const override {
        const void* data = column_->read(begin, count, scratch);
        std::vector<std::byte> out(count * sizeof(std::uint64_t));
        if (info_.physical == Physical::Real64)
            readReals(static_cast<const double*>(data), count, out.data());
        else
            withCodes(data, column_->info().physical,
                      [&](const auto* codes) { readCodes(codes, count, out.data()); });
        scratch.bytes = std::move(out);
        return scratch.bytes.data();
    }

    std::uint64_t textCount() const override {
        return column_->textCount() + (text_.empty() ? 0 : 1);
    }
    std::string_view text(std::uint64_t code) const override {
        if (text_.empty() || code < na_)
            return column_->text(code);
        return code == na_ ? std::string_view(text_) : column_->text(code - 1);
    }

private:
    void placeNumber(std::int64_t number) {
        const std::int64_t base = info_.base;
        info_.base = std::min(base, number);
        shift_ = storage::codeOf(base, info_.base);
        na_ = storage::codeOf(number, info_.base);
        findBounds(column_->info().minCode + shift_, lastValue() + shift_);
    }

    void placeText(std::string text) {
        text_ = std::move(text);
        for (std::uint64_t end = column_->textCount(); na_ < end;) {
            const std::uint64_t middle = na_ + (end - na_) / 2;
            if (column_->text(middle) < text_)
                na_ = middle + 1;
            else
                end = middle;
        }
        findBounds(0, column_->textCount());
    }

    /// The bounds of the source take its NA in.
    std::uint64_t lastValue() const {
        const std::uint64_t na = *column_->info().naCode;
        return na == 0 ? 0 : na - 1;
    }

    void findBounds(std::uint64_t lowest, std::uint64_t highest) {
        info_.minCode = std::min(lowest, na_);
        info_.maxCode = std::max(highest, na_);
    }

    template <class Code>
    void readCodes(const Code* codes, std::size_t count, std::byte* out) const {
        const auto na = static_cast<Code>(*column_->info().naCode);
        const bool isText = !text_.empty();
        for (std::size_t i = 0; i < count; ++i) {
            std::uint64_t code = codes[i] + shift_;
            if (codes[i] == std::numeric_limits<Code>::max())
                code = storage::blankCode(Physical::Code64);
            else if (codes[i] == na)
                code = na_;
            else if (isText && code >= na_)
                ++code;
            std::memcpy(out + i * sizeof code, &code, sizeof code);
        }
    }

    void readReals(const double* values, std::size_t count, std::byte* out) const {
        for (std::size_t i = 0; i < count; ++i) {
            const bool isNa = std::bit_cast<std::uint64_t>(values[i]) == storage::naRealBits;
            const double value = isNa && code_ ? *code_ : values[i];
            std::memcpy(out + i * sizeof value, &value, sizeof value);
        }
    }

    std::shared_ptr<const Column> column_;
    std::optional<double> code_;
    std::uint64_t shift_ = 0; ///< from the source's codes to ours
    std::uint64_t na_ = 0;    ///< our code of NA
    std::string text_;        ///< of NA, among texts
};

} // namespace

std::optional<double> freeCodeForNa(const catalog::Variable& variable,
                                    const storage::Pulse& pulse) {
    const auto column = variable.column();
    const ColumnInfo& info = column->info();
    if (!info.naCode)
        return std::nullopt;
    if (info.type == ValueType::Boolean)
        return codeBesideTruth(variable);
    if (info.type == ValueType::String)
        return freeText(variable, *column, pulse);
    if (info.type == ValueType::Real)
        return aboveAll(variable, info.minReal, info.maxReal);
    const std::uint64_t last = *info.naCode == 0 ? 0 : *info.naCode - 1;
    return aboveAll(
        variable,
        static_cast<double>(storage::decodeValue(info.base, std::min(info.minCode, last))),
        static_cast<double>(storage::decodeValue(info.base, last)));
}

std::shared_ptr<const Column> withNaAs(std::optional<double> code,
                                       std::shared_ptr<const Column> column) {
    if (!column->info().naCode)
        return column;
    return std::make_shared<const NaAsCode>(code, std::move(column));
}

} // namespace kelx::execution
