// SPDX-License-Identifier: Apache-2.0
#include "language/odd_names.h"

#include "language/characters.h"
#include "language/text.h"

#include <algorithm>

namespace kelx::language {

namespace {

constexpr std::uint64_t firstHash = 14695981039346656037U;

std::uint64_t extended(std::uint64_t hash, char c) {
    constexpr std::uint64_t prime = 1099511628211U;
    const char lower = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    return (hash ^ static_cast<unsigned char>(lower)) * prime;
}

std::size_t inFilter(std::uint64_t hash) {
    return hash >> 48;
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Bytes of the next character of a name; 0 where none follows.
std::size_t nextOf(std::string_view text) {
    if (text.empty())
        return 0;
    const Character character = characterAt(text);
    return character.kind == CharacterKind::Word || text.front() == '-' ? character.length : 0;
}

} // namespace

void OddNames::add(std::string_view name) {
    if (name.empty() || (name.find('-') == std::string_view::npos && !isDigit(name.front())))
        return;
    std::uint64_t hash = firstHash;
    for (const char c : name)
        hash = extended(hash, c);
    names_.insert(lowerCase(name));
    hashes_.insert(hash);
    filter_.set(inFilter(hash));
    longest_ = std::max(longest_, name.size());
}

std::size_t OddNames::lengthAt(std::string_view text, bool digitsToo) const {
    if (names_.empty() || text.empty() || text.front() == '-')
        return 0;
    std::size_t best = 0, at = 0;
    std::uint64_t hash = firstHash;
    bool counts = digitsToo;
    for (std::size_t next = nextOf(text); next > 0 && at + next <= longest_;) {
        for (const std::size_t end = at + next; at < end; ++at) {
            hash = extended(hash, text[at]);
            counts = counts || !isDigit(text[at]);
        }
        next = nextOf(text.substr(at));
        const bool within = next > 0 && text[at - 1] != '-' && text[at] != '-';
        if (!within && counts && filter_.test(inFilter(hash)) && hashes_.contains(hash) &&
            names_.contains(lowerCase(text.substr(0, at))))
            best = at;
    }
    return best;
}

} // namespace kelx::language
