// SPDX-License-Identifier: Apache-2.0
#include "storage/raw_reader.h"

#include "storage/raw_format.h"
#include "storage/utf8.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace kelx::storage {

namespace {

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

template <class Number>
std::optional<Number> parseNumber(std::string_view text) {
    text = trimmed(text);
    if (text.size() > 1 && text[0] == '+' && text[1] != '-')
        text.remove_prefix(1);
    Number number{};
    const auto end = text.data() + text.size();
    const auto [stop, problem] = std::from_chars(text.data(), end, number);
    if (problem != std::errc{} || stop != end)
        return std::nullopt;
    return number;
}

/// A number whose point is left out, or a plain one where it is written.
std::optional<double> parseReal(std::string_view text, int decimals) {
    if (text.find_first_not_of("+-0123456789 ") == std::string_view::npos)
        if (const auto whole = parseNumber<std::int64_t>(text))
            return static_cast<double>(*whole) / static_cast<double>(powerOfTen(decimals));
    const auto number = parseNumber<double>(text);
    return number && std::isfinite(*number) ? number : std::nullopt;
}

bool isWhole(double value) {
    return value == std::trunc(value) && value >= -0x1p63 && value < 0x1p63;
}

/// The digits and the sign of a packed number; nothing where a half byte is out of place.
std::optional<std::int64_t> unpack(const std::byte* bytes, std::size_t size) {
    std::int64_t value = 0;
    for (std::size_t i = 0; i + 1 < 2 * size; ++i) {
        const auto pair = std::to_integer<unsigned>(bytes[i / 2]);
        const unsigned digit = i % 2 == 0 ? pair >> 4 : pair & 15;
        if (digit > 9 || value > (std::numeric_limits<std::int64_t>::max() - 9) / 10)
            return std::nullopt;
        value = value * 10 + digit;
    }
    const unsigned sign = std::to_integer<unsigned>(bytes[size - 1]) & 15;
    if (sign < 10)
        return std::nullopt;
    return sign == 11 || sign == 13 ? -value : value;
}

} // namespace

RawReader::Native RawReader::native() const {
    switch (layout_.type) {
    case RawType::Chr:
    case RawType::Uni:
        return Native::Text;
    case RawType::Dbl:
    case RawType::Sng:
        return Native::Real;
    default:
        return Native::Integer;
    }
}

const std::byte* RawReader::record(std::uint64_t number) const {
    return map_.bytes().data() + static_cast<std::size_t>(number) * rawRecordSize(layout_);
}

void RawReader::fail(std::uint64_t number, const std::string& problem) const {
    throw FileError(map_.file(), "record " + std::to_string(number + 1) + " " + problem);
}

void RawReader::readIntegers(std::uint64_t begin, std::size_t count, RawRecords& out) const {
    if (native() == Native::Integer)
        return decodeIntegers(begin, count, out);
    const bool text = native() == Native::Text;
    text ? decodeTexts(begin, count, out) : decodeReals(begin, count, out);
    out.integers.assign(count, 0);
    for (std::size_t i = 0; i < count; ++i) {
        if (out.blank[i] != 0)
            continue;
        const auto value = text ? parseNumber<std::int64_t>(out.texts[i])
                           : isWhole(out.reals[i])
                               ? std::optional(static_cast<std::int64_t>(out.reals[i]))
                               : std::nullopt;
        if (!value)
            fail(begin + i, text ? "holds \"" + out.texts[i] + "\", which is no whole number"
                                 : "holds no whole number");
        out.integers[i] = *value;
    }
}

void RawReader::readReals(std::uint64_t begin, std::size_t count, RawRecords& out) const {
    if (native() == Native::Real)
        return decodeReals(begin, count, out);
    const bool text = native() == Native::Text;
    text ? decodeTexts(begin, count, out) : decodeIntegers(begin, count, out);
    const double scale =
        layout_.type == RawType::Pck ? static_cast<double>(powerOfTen(layout_.decimals)) : 1.0;
    out.reals.assign(count, std::numeric_limits<double>::quiet_NaN());
    for (std::size_t i = 0; i < count; ++i) {
        if (out.blank[i] != 0)
            continue;
        const auto value = text ? parseReal(out.texts[i], layout_.decimals)
                                : std::optional(static_cast<double>(out.integers[i]) / scale);
        if (!value)
            fail(begin + i, "holds \"" + out.texts[i] + "\", which is no number");
        out.reals[i] = *value;
    }
}

void RawReader::readTexts(std::uint64_t begin, std::size_t count, RawRecords& out) const {
    decodeTexts(begin, count, out);
}

void RawReader::decodeIntegers(std::uint64_t begin, std::size_t count, RawRecords& out) const {
    out.integers.assign(count, 0);
    out.blank.assign(count, 0);
    switch (layout_.type) {
    case RawType::Int:
        return decodeSigned<std::int16_t>(begin, count, blankInt, out);
    case RawType::Lng:
        return decodeSigned<std::int32_t>(begin, count, blankLong, out);
    case RawType::Bin:
        return decodeBits(begin, count, out);
    case RawType::Pck:
        return decodePacked(begin, count, out);
    default:
        return decodeSigned<std::uint8_t>(begin, count, blankByte, out);
    }
}

template <class T>
void RawReader::decodeSigned(std::uint64_t begin, std::size_t count, std::int64_t blank,
                             RawRecords& out) const {
    const std::byte* first = record(begin);
    for (std::size_t i = 0; i < count; ++i) {
        const std::int64_t value = load<T>(first, i);
        out.blank[i] = value == blank ? 1 : 0;
        out.integers[i] = value == blank ? 0 : value;
    }
}

void RawReader::decodeBits(std::uint64_t begin, std::size_t count, RawRecords& out) const {
    const auto width = static_cast<std::uint64_t>(layout_.size);
    const auto bytes = map_.bytes();
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint64_t start = (begin + i) * width;
        std::uint64_t value = 0;
        for (std::uint64_t have = 0; have < width;) {
            const std::uint64_t bit = start + have;
            const auto byte = std::to_integer<std::uint64_t>(bytes[bit / 8]) >> (bit % 8);
            const auto taken = std::min(8 - bit % 8, width - have);
            value |= (byte & ((std::uint64_t{1} << taken) - 1)) << have;
            have += taken;
        }
        if (value > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()))
            fail(begin + i, "holds a number above 63 bits");
        out.integers[i] = static_cast<std::int64_t>(value);
    }
}

void RawReader::decodePacked(std::uint64_t begin, std::size_t count, RawRecords& out) const {
    const std::size_t size = rawRecordSize(layout_);
    for (std::size_t i = 0; i < count; ++i) {
        const std::byte* bytes = record(begin + i);
        if (std::all_of(bytes, bytes + size, [](std::byte b) { return b == std::byte{0xff}; })) {
            out.blank[i] = 1;
            continue;
        }
        const auto value = unpack(bytes, size);
        if (!value)
            fail(begin + i, "holds no packed number");
        out.integers[i] = *value;
    }
}

void RawReader::decodeReals(std::uint64_t begin, std::size_t count, RawRecords& out) const {
    out.reals.assign(count, 0);
    out.blank.assign(count, 0);
    const std::byte* first = record(begin);
    for (std::size_t i = 0; i < count; ++i) {
        out.reals[i] = layout_.type == RawType::Dbl ? load<double>(first, i)
                                                    : static_cast<double>(load<float>(first, i));
        out.blank[i] = std::isnan(out.reals[i]) ? 1 : 0;
    }
}

void RawReader::decodeTexts(std::uint64_t begin, std::size_t count, RawRecords& out) const {
    out.texts.resize(count);
    out.blank.assign(count, 0);
    std::u16string wide(static_cast<std::size_t>(layout_.size), u' ');
    for (std::size_t i = 0; i < count; ++i) {
        const std::byte* bytes = record(begin + i);
        std::string& text = out.texts[i];
        if (layout_.type == RawType::Uni) {
            std::memcpy(wide.data(), bytes, wide.size() * 2);
            if (!utf8FromUtf16(wide, text))
                fail(begin + i, "holds a text that is not UTF-16");
        } else {
            text.assign(reinterpret_cast<const char*>(bytes), rawRecordSize(layout_));
        }
        text.erase(std::min(text.find_last_not_of(std::string_view(" \0", 2)) + 1, text.size()));
        if (layout_.type == RawType::Chr && !isUtf8(text))
            fail(begin + i, "holds a text that is not UTF-8");
        out.blank[i] = text.empty() ? 1 : 0;
    }
}

} // namespace kelx::storage
