// SPDX-License-Identifier: Apache-2.0
// Finds the rows of a level by their keys.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace kelx::tools {

/// Pairs of a parent and a key, numbered in the order of their adding.
class KeyIndex {
public:
    /// The pair gets the next number; false where it is there already, then nothing changes.
    bool add(std::uint64_t parent, std::int64_t key);
    std::optional<std::uint64_t> find(std::uint64_t parent, std::int64_t key) const;
    std::uint64_t size() const { return keys_.size(); }
    std::uint64_t parent(std::uint64_t number) const { return parents_[number]; }
    std::int64_t key(std::uint64_t number) const { return keys_[number]; }

private:
    std::size_t slotOf(std::uint64_t parent, std::int64_t key) const;
    void grow();

    std::vector<std::uint64_t> parents_;
    std::vector<std::int64_t> keys_;
    std::vector<std::uint64_t> slots_; ///< number + 1; 0 is free
};

/// Numbers for the distinct texts that serve as keys.
class TextNumbers {
public:
    std::int64_t numberOf(std::string_view text); ///< a new one where the text is new
    std::optional<std::int64_t> find(std::string_view text) const;

private:
    std::unordered_map<std::string, std::int64_t> numbers_;
};

} // namespace kelx::tools
