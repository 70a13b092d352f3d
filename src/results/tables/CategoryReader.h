// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers the categories of one variable of a dataset as its records are read. Millions of records
// have few categories: a label is read once for each of them.
#pragma once

#include "results/tables/RowOrder.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

class TKelDataset;

class CategoryReader {
public:
    /// The variable has three fields: its code, its label and the kind of category.
    CategoryReader(TKelDataset& data, int codeField) : data_(&data), codeField_(codeField) {}

    /// Categories are numbered as they come.
    std::uint32_t categoryOf(std::int64_t record);
    const std::vector<TableCategory>& categories() const { return categories_; }

private:
    CategoryKind kindOf(std::int64_t record, const std::string& code) const;
    bool isCategory(std::uint32_t number, const std::string& code, CategoryKind kind) const;
    std::uint32_t find(const std::string& code, CategoryKind kind, std::int64_t record);
    std::uint32_t add(const std::string& code, CategoryKind kind, std::int64_t record);

    TKelDataset* data_;
    int codeField_;
    std::vector<TableCategory> categories_;
    std::unordered_map<std::string, std::uint32_t> numbers_; ///< of valid categories, by code
    std::array<std::optional<std::uint32_t>, 4> markers_;    ///< by kind
    std::uint32_t last_ = 0;
    std::vector<std::uint32_t> following_; ///< what came last behind each category
};
