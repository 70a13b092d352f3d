// SPDX-License-Identifier: Apache-2.0
// What characters do in a program outside of texts and comments.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kelx::language {

enum class CharacterKind {
    Word,        ///< a letter of any script, a digit or "_"
    Blank,       ///< one of Unicode's spaces
    Invisible,   ///< shows nothing, and is no space
    SingleQuote, ///< ' and its typographic kin
    DoubleQuote, ///< typographic, or between angles; not the straight one
    Other
};

struct Character {
    CharacterKind kind = CharacterKind::Other;
    std::size_t length = 1; ///< in bytes
    char32_t code = 0;
};

/// The first character of a text, which must not be empty.
Character characterAt(std::string_view text);
/// Bytes of the run of word characters that a text begins with.
std::size_t wordRun(std::string_view text);
/// "U+200B"
std::string codePointName(char32_t code);

} // namespace kelx::language
