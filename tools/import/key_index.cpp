// SPDX-License-Identifier: Apache-2.0
#include "import/key_index.h"

namespace kelx::tools {

namespace {

std::uint64_t mixed(std::uint64_t value) {
    value = (value ^ (value >> 30)) * 0xbf58476d1ce4e5b9u;
    value = (value ^ (value >> 27)) * 0x94d049bb133111ebu;
    return value ^ (value >> 31);
}

} // namespace

std::size_t KeyIndex::slotOf(std::uint64_t parent, std::int64_t key) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t slot = mixed(mixed(parent + 1) ^ static_cast<std::uint64_t>(key)) & mask;
    while (slots_[slot] != 0 &&
           (parents_[slots_[slot] - 1] != parent || keys_[slots_[slot] - 1] != key))
        slot = (slot + 1) & mask;
    return slot;
}

bool KeyIndex::add(std::uint64_t parent, std::int64_t key) {
    if (slots_.size() < 2 * (keys_.size() + 1))
        grow();
    std::uint64_t& slot = slots_[slotOf(parent, key)];
    if (slot != 0)
        return false;
    parents_.push_back(parent);
    keys_.push_back(key);
    slot = keys_.size();
    return true;
}

std::optional<std::uint64_t> KeyIndex::find(std::uint64_t parent, std::int64_t key) const {
    if (slots_.empty())
        return std::nullopt;
    const std::uint64_t slot = slots_[slotOf(parent, key)];
    return slot == 0 ? std::nullopt : std::optional(slot - 1);
}

void KeyIndex::grow() {
    slots_.assign(slots_.empty() ? 1024 : 2 * slots_.size(), 0);
    for (std::uint64_t number = 0; number < keys_.size(); ++number)
        slots_[slotOf(parents_[number], keys_[number])] = number + 1;
}

std::int64_t TextNumbers::numberOf(std::string_view text) {
    const auto next = static_cast<std::int64_t>(numbers_.size());
    return numbers_.try_emplace(std::string(text), next).first->second;
}

std::optional<std::int64_t> TextNumbers::find(std::string_view text) const {
    const auto found = numbers_.find(std::string(text));
    return found == numbers_.end() ? std::nullopt : std::optional(found->second);
}

} // namespace kelx::tools
