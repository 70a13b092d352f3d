// SPDX-License-Identifier: Apache-2.0
#include "catalog/column_check.h"

#include "catalog/names.h"
#include "catalog/value_rule.h"
#include "storage/bytes.h"
#include "storage/coding.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <optional>
#include <unordered_set>

namespace kelx::catalog {

std::string reasonOf(const storage::FileError& fault) {
    const std::string text = fault.what();
    const std::string prefix = fault.file().string() + ": ";
    return text.starts_with(prefix) ? text.substr(prefix.size()) : text;
}

namespace {

using storage::Physical;

constexpr std::uint64_t widestTable = std::uint64_t{1} << 20;

std::string recordText(std::uint64_t record) {
    return "record " + std::to_string(record + 1);
}

/// Whether codes stand twice in a family, that is under one parent. Memory is bounded by the range
/// of the codes where that is small, else by the largest family.
class FamilyCodes {
public:
    FamilyCodes(const storage::PointerFile& families, std::uint64_t lowest, std::uint64_t highest)
        : families_(families), lowest_(lowest),
          stamps_(highest - lowest < widestTable ? highest - lowest + 1 : 0, 0) {}

    /// True where the code has been there; records come in ascending order.
    bool isRepeated(std::uint64_t record, std::uint64_t code) {
        while (parent_ + 1 < families_.parents() && record >= families_.first(parent_ + 1)) {
            ++parent_;
            seen_.clear();
        }
        if (stamps_.empty()) {
            return !seen_.insert(code).second;
        }
        std::uint64_t& stamp = stamps_[code - lowest_];
        const bool repeated = stamp == parent_ + 1;
        stamp = parent_ + 1;
        return repeated;
    }
    std::uint64_t parent() const { return parent_; }

private:
    const storage::PointerFile& families_;
    std::uint64_t lowest_;
    std::uint64_t parent_ = 0;
    std::vector<std::uint64_t> stamps_; ///< last parent + 1 that had the code
    std::unordered_set<std::uint64_t> seen_;
};

class Check {
public:
    Check(const Variable& variable, const storage::Column& column,
          const storage::PointerFile* families)
        : variable_(variable), column_(column), info_(column.info()), rule_(variable),
          isCode_(variable.entity->codeVar == &variable) {
        if (families != nullptr) {
            families_.emplace(*families, lowestCode(), highestCode());
        }
        if (rule_.isSet() && !isReal() && info_.maxCode - info_.minCode < widestTable) {
            for (std::uint64_t code = info_.minCode; code <= info_.maxCode; ++code) {
                expected_.push_back(isExpected(code) ? 1 : 0);
            }
        }
    }

    ColumnFaults run(const std::atomic<bool>& stop) {
        storage::ColumnScratch scratch;
        for (std::size_t block = 0; block < column_.blockCount() && !stop; ++block) {
            const std::uint64_t begin = std::uint64_t{block} * storage::recordsPerBlock;
            try {
                const std::size_t count = column_.zone(block).records;
                look(begin, column_.read(begin, count, scratch), count);
            } catch (const storage::FileError& fault) {
                note(faults_.blocks, [&] { return reasonOf(fault); });
            }
        }
        return std::move(faults_);
    }

private:
    bool isReal() const { return info_.physical == Physical::Real64; }
    std::uint64_t lowestCode() const { return isReal() ? 0 : info_.minCode; }
    std::uint64_t highestCode() const {
        return isReal() ? std::numeric_limits<std::uint64_t>::max() : info_.maxCode;
    }

    template <typename Text>
    static void note(FaultCount& faults, const Text& text) {
        ++faults.count;
        if (faults.wantsText()) {
            faults.first.push_back(text());
        }
    }

    void look(std::uint64_t begin, const void* values, std::size_t count) {
        if (!isCode_ && !rule_.isSet()) {
            return; // reading it was the check
        }
        switch (info_.physical) {
        case Physical::Code8:
            return lookAt<std::uint8_t>(begin, values, count);
        case Physical::Code16:
            return lookAt<std::uint16_t>(begin, values, count);
        case Physical::Code32:
            return lookAt<std::uint32_t>(begin, values, count);
        default:
            return lookAt<std::uint64_t>(begin, values, count);
        }
    }

    template <typename Stored>
    void lookAt(std::uint64_t begin, const void* values, std::size_t count) {
        const std::uint64_t blank = storage::blankCode(info_.physical);
        for (std::size_t i = 0; i < count; ++i) {
            const std::uint64_t code = storage::load<Stored>(values, i);
            const bool isBlank = isReal() ? std::isnan(std::bit_cast<double>(code)) : code == blank;
            if (!isBlank) {
                lookAtValue(begin + i, code);
            } else if (isCode_) {
                note(faults_.blankCodes, [&] { return recordText(begin + i); });
            }
        }
    }

    void lookAtValue(std::uint64_t record, std::uint64_t code) {
        if (families_ && families_->isRepeated(record, code)) {
            note(faults_.doubleCodes, [&] {
                return valueText(code) + " in " + recordText(record) + ", under record " +
                       std::to_string(families_->parent() + 1) + " of " +
                       variable_.entity->parent->name;
            });
        }
        const bool expected =
            expected_.empty() ? isExpected(code) : expected_[code - info_.minCode] != 0;
        if (!expected) {
            note(faults_.unexpected, [&] { return valueText(code) + " in " + recordText(record); });
        }
    }

    bool isExpected(std::uint64_t code) const {
        if (!rule_.isSet()) {
            return true;
        }
        if (isReal()) {
            return rule_.expects(std::bit_cast<double>(code));
        }
        return info_.type == ValueType::String ? rule_.expects(column_.text(code))
                                               : rule_.expects(static_cast<double>(integer(code)));
    }

    std::int64_t integer(std::uint64_t code) const {
        return storage::decodeValue(info_.base, code);
    }

    std::string valueText(std::uint64_t code) const {
        if (isReal()) {
            return numberText(std::bit_cast<double>(code));
        }
        return info_.type == ValueType::String
                   ? "\"" + std::string(column_.text(code).substr(0, 60)) + "\""
                   : std::to_string(integer(code));
    }

    const Variable& variable_;
    const storage::Column& column_;
    storage::ColumnInfo info_;
    ValueRule rule_;
    bool isCode_;
    std::optional<FamilyCodes> families_;
    std::vector<std::uint8_t> expected_; ///< by code from the lowest on; empty for many codes
    ColumnFaults faults_;
};

} // namespace

ColumnFaults checkColumn(const Variable& variable, const storage::Column& column,
                         const storage::PointerFile* families, const std::atomic<bool>& stop) {
    return Check(variable, column, families).run(stop);
}

} // namespace kelx::catalog
