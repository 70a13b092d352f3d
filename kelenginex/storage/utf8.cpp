// SPDX-License-Identifier: Apache-2.0
#include "storage/utf8.h"

#include "storage/bytes.h"

#include <algorithm>

namespace kelx::storage {

namespace {

/// Length of the sequence that a lead byte opens; 0 where none can begin with it.
std::size_t sequenceLength(unsigned char lead) {
    if (lead < 0x80)
        return 1;
    if (lead >= 0xc2 && lead < 0xe0)
        return 2;
    if (lead >= 0xe0 && lead < 0xf0)
        return 3;
    return lead >= 0xf0 && lead < 0xf5 ? 4 : 0;
}

/// Value of the sequence at the start of text, which has all of its length bytes.
char32_t decode(std::string_view text, std::size_t length) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    if (length == 1)
        return byte(0);
    char32_t value = byte(0) & (0xffu >> (length + 1));
    for (std::size_t i = 1; i < length; ++i)
        value = (value << 6) | (byte(i) & 0x3fu);
    return value;
}

bool isSurrogate(char32_t value) {
    return value >= 0xd800 && value < 0xe000;
}

bool isSequence(std::string_view text, std::size_t length) {
    if (length == 0 || length > text.size())
        return false;
    for (std::size_t i = 1; i < length; ++i)
        if (beginsCharacter(text[i]))
            return false;
    const char32_t value = decode(text, length);
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    return value >= smallest[length] && value <= 0x10ffff && !isSurrogate(value);
}

bool startsWithAscii8(std::string_view text) {
    return text.size() >= 8 && (load<std::uint64_t>(text.data()) & 0x8080808080808080u) == 0;
}

} // namespace

std::optional<std::size_t> firstInvalidUtf8(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const std::string_view rest = text.substr(at);
        std::size_t length = 8;
        if (!startsWithAscii8(rest)) {
            length = sequenceLength(static_cast<unsigned char>(rest[0]));
            if (!isSequence(rest, length))
                return at;
        }
        at += length;
    }
    return std::nullopt;
}

bool isUtf8(std::string_view text) {
    return !firstInvalidUtf8(text);
}

std::size_t characterCount(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), beginsCharacter));
}

void appendUtf8(std::string& text, char32_t codePoint) {
    const auto put = [&](char32_t byte) { text += static_cast<char>(byte); };
    if (codePoint < 0x80) {
        put(codePoint);
        return;
    }
    if (codePoint < 0x800) {
        put(0xc0 | (codePoint >> 6));
    } else {
        if (codePoint < 0x10000) {
            put(0xe0 | (codePoint >> 12));
        } else {
            put(0xf0 | (codePoint >> 18));
            put(0x80 | ((codePoint >> 12) & 0x3f));
        }
        put(0x80 | ((codePoint >> 6) & 0x3f));
    }
    put(0x80 | (codePoint & 0x3f));
}

std::u16string utf16FromUtf8(std::string_view text) {
    std::u16string out;
    while (!text.empty()) {
        const auto length = sequenceLength(static_cast<unsigned char>(text[0]));
        const char32_t value = decode(text, length);
        if (value >= 0x10000) {
            out += static_cast<char16_t>(0xd800 + ((value - 0x10000) >> 10));
            out += static_cast<char16_t>(0xdc00 + ((value - 0x10000) & 0x3ff));
        } else {
            out += static_cast<char16_t>(value);
        }
        text.remove_prefix(length);
    }
    return out;
}

bool utf8FromUtf16(std::u16string_view text, std::string& out) {
    out.clear();
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t value = text[i];
        if (isSurrogate(value)) {
            const char32_t low = i + 1 < text.size() ? text[i + 1] : 0;
            if (value >= 0xdc00 || low < 0xdc00 || low >= 0xe000)
                return false;
            value = 0x10000 + ((value - 0xd800) << 10) + (low - 0xdc00);
            ++i;
        }
        appendUtf8(out, value);
    }
    return true;
}

} // namespace kelx::storage
