// SPDX-License-Identifier: Apache-2.0
#include "language/text.h"

#include <algorithm>
#include <cstdint>

namespace kelx::language {

namespace {

bool isBlank(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// Number of single changes (insert, drop, replace, swap neighbours) between two texts.
std::size_t distance(std::string_view a, std::string_view b) {
    std::vector<std::size_t> before(b.size() + 1), last(b.size() + 1), row(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j)
        last[j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t change = a[i - 1] == b[j - 1] ? 0 : 1;
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + change});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                row[j] = std::min(row[j], before[j - 2] + 1);
        }
        before.swap(last);
        last.swap(row);
    }
    return last[b.size()];
}

/// Where the comment, text in quotes or single character at this place ends.
std::size_t endOfPiece(std::string_view text, std::size_t at) {
    const std::string_view rest = text.substr(at);
    std::size_t end = 1;
    if (rest.starts_with("//"))
        end = rest.find_first_of("\r\n");
    else if (rest.starts_with("/*"))
        end = rest.find("*/", 2) == std::string_view::npos ? rest.size() : rest.find("*/", 2) + 2;
    else if (rest.front() == '"')
        end = rest.find('"', 1) == std::string_view::npos ? rest.size() : rest.find('"', 1) + 1;
    return at + std::min(end, rest.size());
}

} // namespace

std::string upperCase(std::string_view text) {
    std::string result(text);
    for (char& c : result) {
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    }
    return result;
}

std::string shortened(std::string_view text) {
    constexpr std::size_t longest = 60;
    if (text.size() <= longest)
        return std::string(text);
    std::size_t cut = longest;
    while (cut > 0 && (static_cast<unsigned char>(text[cut]) & 0xc0) == 0x80)
        --cut;
    return std::string(text.substr(0, cut)) + "...";
}

std::string inQuotes(std::string_view text) {
    return "\"" + shortened(text) + "\"";
}

std::string trimmed(std::string_view text) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return std::string(text);
}

std::string simplified(std::string_view source) {
    std::string result;
    bool gap = false;
    for (std::size_t at = 0; at < source.size();) {
        const std::size_t end = endOfPiece(source, at);
        const std::string_view piece = source.substr(at, end - at);
        at = end;
        if (isBlank(piece.front()) || piece.starts_with("//") || piece.starts_with("/*")) {
            gap = true;
            continue;
        }
        if (gap && !result.empty())
            result += ' ';
        gap = false;
        result += piece;
    }
    return result;
}

std::string nearest(std::string_view word, const std::vector<std::string>& candidates) {
    constexpr std::size_t longest = 100;
    if (word.size() > longest)
        return {};
    const std::string wanted = lowerCase(word);
    std::size_t best = std::max<std::size_t>(1, word.size() / 3) + 1;
    std::string found;
    for (const std::string& candidate : candidates) {
        const std::size_t difference = wanted.size() > candidate.size()
                                           ? wanted.size() - candidate.size()
                                           : candidate.size() - wanted.size();
        if (difference >= best)
            continue;
        const std::size_t changes = distance(wanted, lowerCase(candidate));
        if (changes < best && changes < candidate.size()) {
            best = changes;
            found = candidate;
        }
    }
    return found;
}

} // namespace kelx::language
