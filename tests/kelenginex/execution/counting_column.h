// SPDX-License-Identifier: GPL-3.0-or-later
// A column that tells how many of its records were read.
#pragma once

#include "catalog/model.h"
#include "storage/column.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <utility>

namespace kelx::test {

class CountingColumn final : public storage::Column {
public:
    explicit CountingColumn(std::shared_ptr<const Column> of) : of_(std::move(of)) {
        info_ = of_->info();
    }

    std::uint64_t records() const { return records_; }
    storage::Zone zone(std::size_t block) const override { return of_->zone(block); }
    const void* read(std::uint64_t begin, std::size_t count,
                     storage::ColumnScratch& scratch) const override {
        records_ += count;
        return of_->read(begin, count, scratch);
    }
    std::uint64_t textCount() const override { return of_->textCount(); }
    std::string_view text(std::uint64_t code) const override { return of_->text(code); }

private:
    std::shared_ptr<const Column> of_;
    mutable std::atomic<std::uint64_t> records_{0};
};

/// Puts a counting column in the place of a variable's own while it lives.
class CountedReads {
public:
    explicit CountedReads(catalog::Variable& variable)
        : variable_(variable), own_(variable.column()),
          counting_(std::make_shared<CountingColumn>(own_)) {
        variable_.setColumn(counting_);
    }
    ~CountedReads() { variable_.setColumn(own_); }
    CountedReads(const CountedReads&) = delete;
    CountedReads& operator=(const CountedReads&) = delete;

    std::uint64_t records() const { return counting_->records(); }

private:
    catalog::Variable& variable_;
    std::shared_ptr<const storage::Column> own_;
    std::shared_ptr<CountingColumn> counting_;
};

} // namespace kelx::test
