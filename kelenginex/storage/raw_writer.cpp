// SPDX-License-Identifier: Apache-2.0
#include "storage/atomic_file.h"
#include "storage/bytes.h"
#include "storage/coding.h"
#include "storage/number_text.h"
#include "storage/raw_format.h"
#include "storage/utf8.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kelx::storage {

namespace {

/// Appends records of one layout; every value is checked to come back as it was.
class RawEncoder {
public:
    RawEncoder(AtomicFile& out, const RawLayout& layout, const std::filesystem::path& file)
        : out_(out), layout_(layout), file_(file) {}

    void addBlank();
    void addInteger(std::int64_t value);
    void addReal(double value);
    void addText(std::string_view text);
    void finish();

private:
    bool isScaled() const {
        return layout_.decimals > 0 &&
               (layout_.type == RawType::Pck || layout_.type == RawType::Chr ||
                layout_.type == RawType::Uni);
    }
    void addWhole(std::int64_t value, const std::string& shown);
    void addPacked(std::int64_t value, const std::string& shown);
    void addBits(std::uint64_t value);
    void addNumberText(const std::string& text);
    void addPadded(std::string_view text, bool right);
    template <class T>
    void put(T value) {
        out_.write(bytesOf(value));
        ++records_;
    }
    template <class T>
    void putWithin(std::int64_t value, std::int64_t lowest, std::int64_t highest,
                   const std::string& shown) {
        if (value < lowest || value > highest)
            refuse(shown);
        put(static_cast<T>(value));
    }
    [[noreturn]] void refuse(const std::string& shown) const {
        throw FileError(file_, "record " + std::to_string(records_ + 1) + ": " + shown +
                                   " does not fit type " + rawTypeName(layout_.type) +
                                   " with size " + std::to_string(layout_.size));
    }

    AtomicFile& out_;
    RawLayout layout_;
    std::filesystem::path file_;
    std::uint64_t records_ = 0;
    unsigned pendingBits_ = 0;
    unsigned pendingCount_ = 0;
};

void RawEncoder::addBlank() {
    switch (layout_.type) {
    case RawType::Byte:
    case RawType::Bool:
        return put(static_cast<std::uint8_t>(blankByte));
    case RawType::Int:
        return put(static_cast<std::int16_t>(blankInt));
    case RawType::Lng:
        return put(static_cast<std::int32_t>(blankLong));
    case RawType::Sng:
        return put(std::numeric_limits<float>::quiet_NaN());
    case RawType::Dbl:
        return put(std::numeric_limits<double>::quiet_NaN());
    case RawType::Pck:
        out_.write(std::string(rawRecordSize(layout_), '\xff'));
        ++records_;
        return;
    case RawType::Chr:
    case RawType::Uni:
        return addPadded({}, false);
    case RawType::Bin:
        break;
    }
    refuse("a blank");
}

void RawEncoder::addInteger(std::int64_t value) {
    const auto shown = std::to_string(value);
    if (!isScaled())
        return addWhole(value, shown);
    std::int64_t scaled = 0;
    if (__builtin_mul_overflow(value, powerOfTen(layout_.decimals), &scaled))
        refuse(shown);
    addWhole(scaled, shown);
}

void RawEncoder::addReal(double value) {
    if (std::isnan(value))
        return addBlank();
    if (layout_.type == RawType::Dbl)
        return put(value);
    if (layout_.type == RawType::Sng) {
        if (std::isfinite(value) && std::abs(value) > std::numeric_limits<float>::max())
            refuse(numberText(value));
        return put(static_cast<float>(value));
    }
    const bool text = layout_.type == RawType::Chr || layout_.type == RawType::Uni;
    if (!std::isfinite(value))
        refuse("an infinite number");
    if (text && !isScaled())
        return addNumberText(numberText(value));
    const double scaled =
        isScaled() ? std::round(value * static_cast<double>(powerOfTen(layout_.decimals))) : value;
    if (scaled != std::trunc(scaled) || scaled < -0x1p63 || scaled >= 0x1p63)
        refuse(numberText(value));
    addWhole(static_cast<std::int64_t>(scaled), numberText(value));
}

void RawEncoder::addWhole(std::int64_t value, const std::string& shown) {
    switch (layout_.type) {
    case RawType::Byte:
        return putWithin<std::uint8_t>(value, 0, blankByte - 1, shown);
    case RawType::Bool:
        return putWithin<std::uint8_t>(value, 0, 1, shown);
    case RawType::Int:
        return putWithin<std::int16_t>(value, blankInt + 1, 32767, shown);
    case RawType::Lng:
        return putWithin<std::int32_t>(value, blankLong + 1, 2147483647, shown);
    case RawType::Sng:
        return putWithin<float>(value, -(1 << 24), 1 << 24, shown);
    case RawType::Dbl:
        return putWithin<double>(value, -(1LL << 53), 1LL << 53, shown);
    case RawType::Pck:
        return addPacked(value, shown);
    case RawType::Chr:
    case RawType::Uni:
        return addNumberText(std::to_string(value));
    case RawType::Bin:
        break;
    }
    if (value < 0 || (layout_.size < 63 && value >> layout_.size != 0))
        refuse(shown);
    addBits(static_cast<std::uint64_t>(value));
}

void RawEncoder::addPacked(std::int64_t value, const std::string& shown) {
    const std::int64_t limit = powerOfTen(layout_.size);
    if (value <= -limit || value >= limit)
        refuse(shown);
    std::string bytes(rawRecordSize(layout_), '\0');
    auto rest = static_cast<std::uint64_t>(value < 0 ? -value : value);
    unsigned low = value < 0 ? 13 : 12;
    for (std::size_t i = bytes.size(); i-- > 0;) {
        bytes[i] = static_cast<char>(rest % 10 << 4 | low);
        rest /= 10;
        low = static_cast<unsigned>(rest % 10);
        rest /= 10;
    }
    out_.write(bytes);
    ++records_;
}

void RawEncoder::addBits(std::uint64_t value) {
    for (int bit = 0; bit < layout_.size; ++bit) {
        pendingBits_ |= static_cast<unsigned>(value >> bit & 1) << pendingCount_;
        if (++pendingCount_ == 8) {
            out_.write(bytesOf(static_cast<std::uint8_t>(pendingBits_)));
            pendingBits_ = 0;
            pendingCount_ = 0;
        }
    }
    ++records_;
}

void RawEncoder::addText(std::string_view text) {
    if (layout_.type != RawType::Chr && layout_.type != RawType::Uni)
        refuse("a text");
    if (!text.empty() && (text.back() == ' ' || text.back() == '\0'))
        refuse("\"" + std::string(text) + "\" with its last blank");
    addPadded(text, false);
}

void RawEncoder::addNumberText(const std::string& text) {
    addPadded(text, true);
}

void RawEncoder::addPadded(std::string_view text, bool right) {
    const auto size = static_cast<std::size_t>(layout_.size);
    const bool wide = layout_.type == RawType::Uni;
    const auto units = wide ? utf16FromUtf8(text) : std::u16string();
    const std::size_t length = wide ? units.size() : text.size();
    if (length > size)
        refuse("\"" + std::string(text) + "\"");
    const std::size_t before = right ? size - length : 0;
    if (wide) {
        const std::u16string padded =
            std::u16string(before, u' ') + units + std::u16string(size - length - before, u' ');
        out_.write(std::as_bytes(std::span(padded)));
    } else {
        std::string padded(size, ' ');
        padded.replace(before, length, text);
        out_.write(padded);
    }
    ++records_;
}

void RawEncoder::finish() {
    if (pendingCount_ > 0)
        out_.write(bytesOf(static_cast<std::uint8_t>(pendingBits_)));
}

void encodeBlock(const Column& column, const void* values, std::size_t count, RawEncoder& encoder) {
    const auto& info = column.info();
    if (info.type == ValueType::Real) {
        for (std::size_t i = 0; i < count; ++i)
            encoder.addReal(load<double>(values, i));
        return;
    }
    withCode(info.physical, [&]<class Code>(Code) {
        for (std::size_t i = 0; i < count; ++i) {
            const auto code = load<Code>(values, i);
            if (code == std::numeric_limits<Code>::max())
                encoder.addBlank();
            else if (info.type == ValueType::String)
                encoder.addText(column.text(code));
            else
                encoder.addInteger(decodeValue(info.base, code));
        }
    });
}

} // namespace

void writeRawColumn(const std::filesystem::path& file, const Column& column,
                    const RawLayout& layout, const Pulse& pulse) {
    checkRawLayout(layout, file);
    AtomicFile out(file);
    RawEncoder encoder(out, layout, file);
    ColumnScratch scratch;
    const auto records = column.info().records;
    for (std::uint64_t begin = 0; begin < records; begin += recordsPerBlock) {
        const auto count =
            static_cast<std::size_t>(std::min<std::uint64_t>(records - begin, recordsPerBlock));
        encodeBlock(column, column.read(begin, count, scratch), count, encoder);
        if (pulse)
            pulse();
    }
    encoder.finish();
    out.commit();
}

} // namespace kelx::storage
