// SPDX-License-Identifier: Apache-2.0
// UTF-8 as texts are stored: checked on its way in.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace kelx::storage {

/// Offset of the first byte that is not part of well-formed UTF-8; null where all of it is.
std::optional<std::size_t> firstInvalidUtf8(std::string_view text);
/// True for well-formed UTF-8: shortest forms, no surrogates, nothing above U+10FFFF.
bool isUtf8(std::string_view text);

/// True for a byte that does not continue a character.
constexpr bool beginsCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xc0U) != 0x80U;
}
/// Characters of a text in UTF-8.
std::size_t characterCount(std::string_view text);

/// Appends one code point, which must be a valid one.
void appendUtf8(std::string& text, char32_t codePoint);

/// UTF-16 of well-formed UTF-8, and the way back; the latter is false for a lone surrogate.
std::u16string utf16FromUtf8(std::string_view text);
bool utf8FromUtf16(std::u16string_view text, std::string& out);

} // namespace kelx::storage
