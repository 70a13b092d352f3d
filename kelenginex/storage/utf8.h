// SPDX-License-Identifier: Apache-2.0
// UTF-8 as texts are stored: checked on its way in.
#pragma once

#include <string>
#include <string_view>

namespace kelx::storage {

/// True for well-formed UTF-8: shortest forms, no surrogates, nothing above U+10FFFF.
bool isUtf8(std::string_view text);

/// Appends one code point, which must be a valid one.
void appendUtf8(std::string& text, char32_t codePoint);

/// UTF-16 of well-formed UTF-8, and the way back; the latter is false for a lone surrogate.
std::u16string utf16FromUtf8(std::string_view text);
bool utf8FromUtf16(std::u16string_view text, std::string& out);

} // namespace kelx::storage
