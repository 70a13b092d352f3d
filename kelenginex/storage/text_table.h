// SPDX-License-Identifier: Apache-2.0
// Distinct texts, numbered as they come and ranked once all are known.
#pragma once

#include <cstdint>
#include <deque>
#include <filesystem>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace kelx::storage {

class TextTable {
public:
    /// The file is named in errors.
    explicit TextTable(std::filesystem::path file) : file_(std::move(file)) {}

    /// The number of a text. Throws FileError for a new one that is not UTF-8 or is one too many.
    std::uint32_t numberOf(std::string_view text);
    std::size_t size() const { return texts_.size(); }

    /// Ends the numbering: ranks()[number] is the place of a text in sorted().
    void sort();
    const std::vector<std::uint32_t>& ranks() const { return ranks_; }
    const std::vector<std::string_view>& sorted() const { return sorted_; }

private:
    std::string_view keep(std::string_view text);

    std::filesystem::path file_;
    std::deque<std::string> texts_;
    std::unordered_map<std::string_view, std::uint32_t> numbers_;
    std::vector<std::uint32_t> ranks_;
    std::vector<std::string_view> sorted_;
};

} // namespace kelx::storage
