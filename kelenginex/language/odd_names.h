// SPDX-License-Identifier: Apache-2.0
// Names that do not look like words.
#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_set>

namespace kelx::language {

/// Names with a "-" or a leading digit ("INCOME-2", "2ND"), in any case. A run of characters is
/// such a name only where it is held here.
class OddNames {
public:
    /// Does nothing for a name that is a word.
    void add(std::string_view name);
    /// Length of the longest name that the text begins with and that ends where a word can; 0 for
    /// none. One of digits alone counts with digitsToo only.
    std::size_t lengthAt(std::string_view text, bool digitsToo) const;

    bool isEmpty() const { return names_.empty(); }

private:
    static constexpr std::size_t filterSize = 1 << 16;

    std::unordered_set<std::string> names_; ///< in lower case
    // Any text of a program is looked up, at each place in all lengths: so by hash first, which
    // grows with the text.
    std::unordered_set<std::uint64_t> hashes_;
    std::bitset<filterSize> filter_;
    std::size_t longest_ = 0;
};

} // namespace kelx::language
