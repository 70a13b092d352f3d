// SPDX-License-Identifier: Apache-2.0
#include "language/characters.h"

#include <algorithm>
#include <array>

namespace kelx::language {

namespace {

struct Span {
    char32_t first, last;
    CharacterKind kind;
};

/// Beyond ASCII, all but these belong to words.
constexpr std::array<Span, 19> spans = {{{0x80, 0x84, CharacterKind::Invisible},
                                         {0x85, 0x85, CharacterKind::Blank},
                                         {0x86, 0x9f, CharacterKind::Invisible},
                                         {0xa0, 0xa0, CharacterKind::Blank},
                                         {0xab, 0xab, CharacterKind::DoubleQuote},
                                         {0xad, 0xad, CharacterKind::Invisible},
                                         {0xbb, 0xbb, CharacterKind::DoubleQuote},
                                         {0x1680, 0x1680, CharacterKind::Blank},
                                         {0x2000, 0x200a, CharacterKind::Blank},
                                         {0x200b, 0x200f, CharacterKind::Invisible},
                                         {0x2018, 0x201b, CharacterKind::SingleQuote},
                                         {0x201c, 0x201f, CharacterKind::DoubleQuote},
                                         {0x2028, 0x2029, CharacterKind::Blank},
                                         {0x202a, 0x202e, CharacterKind::Invisible},
                                         {0x202f, 0x202f, CharacterKind::Blank},
                                         {0x205f, 0x205f, CharacterKind::Blank},
                                         {0x2060, 0x206f, CharacterKind::Invisible},
                                         {0x3000, 0x3000, CharacterKind::Blank},
                                         {0xfeff, 0xfeff, CharacterKind::Invisible}}};

/// Signs that are typed for an operator.
constexpr bool isOperatorLike(char32_t code) {
    return code == 0x2260 || code == 0x2264 || code == 0x2265;
}

/// Scripts that join letters need these two inside of words.
constexpr bool joinsLetters(char32_t code) {
    return code == 0x200c || code == 0x200d;
}

CharacterKind kindOfAscii(char c) {
    if ((c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_')
        return CharacterKind::Word;
    if (c == ' ' || (c >= '\t' && c <= '\r'))
        return CharacterKind::Blank;
    return c == '\'' ? CharacterKind::SingleQuote : CharacterKind::Other;
}

CharacterKind kindOf(char32_t code) {
    if (isOperatorLike(code))
        return CharacterKind::Other;
    const auto* span = std::lower_bound(spans.begin(), spans.end(), code,
                                        [](const Span& s, char32_t c) { return s.last < c; });
    const bool inside = span != spans.end() && code >= span->first && !joinsLetters(code);
    return inside ? span->kind : CharacterKind::Word;
}

} // namespace

/// The text is valid UTF-8, or begins inside of a character, whose rest goes with its word.
Character characterAt(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text.front());
    if (lead < 0x80)
        return {kindOfAscii(text.front()), 1, lead};
    const std::size_t length = lead < 0xc0 ? 1 : lead < 0xe0 ? 2 : lead < 0xf0 ? 3 : 4;
    if (lead < 0xc0 || text.size() < length)
        return {CharacterKind::Word, 1, lead};
    constexpr char32_t low = 0x3f;
    char32_t code = lead & (0xffU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i)
        code = code << 6 | (static_cast<unsigned char>(text[i]) & low);
    return {kindOf(code), length, code};
}

std::size_t wordRun(std::string_view text) {
    std::size_t length = 0;
    while (length < text.size()) {
        const Character character = characterAt(text.substr(length));
        if (character.kind != CharacterKind::Word)
            break;
        length += character.length;
    }
    return length;
}

std::string codePointName(char32_t code) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string name;
    for (; code > 0 || name.size() < 4; code >>= 4)
        name.insert(name.begin(), digits[code & 15]);
    return "U+" + name;
}

} // namespace kelx::language
