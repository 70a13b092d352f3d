// SPDX-License-Identifier: Apache-2.0
// What the helper that reads files of statistics packages writes to its standard output: frames of
// a kind, a length, a checksum and a payload. The reading side believes nothing that it says.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace kelx::tools {

enum class FrameKind : std::uint8_t {
    Size = 1,     ///< number of rows, -1 where unknown
    Variable = 2, ///< index, whether it is a text, name, label, format, label set, missing ranges
    Label = 3,    ///< set, value, label
    Weight = 4,   ///< index of the variable with the weights
    Rows = 5,     ///< number of rows, then their values one after the other
    End = 6,      ///< number of rows; nothing comes behind it
    Fault = 7     ///< why the file cannot be read; nothing comes behind it
};

/// What stands before a value.
enum class ValueTag : std::uint8_t { Missing = 0, Number = 1, Text = 2, Tagged = 3 };

constexpr std::size_t longestPayload = 64u << 20;
constexpr std::size_t mostVariables = 100000;
constexpr std::size_t longestText = 1u << 20; ///< of names and labels

/// The stream is not what it should be.
class StreamFault : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Puts a payload together.
class PayloadWriter {
public:
    template <class Number>
    void put(Number number) {
        static_assert(std::is_arithmetic_v<Number>);
        const auto* bytes = reinterpret_cast<const char*>(&number);
        bytes_.append(bytes, sizeof number);
    }
    void putTag(ValueTag tag) { put(static_cast<std::uint8_t>(tag)); }
    void putText(std::string_view text) {
        put(static_cast<std::uint32_t>(text.size()));
        bytes_.append(text);
    }
    std::string& bytes() { return bytes_; }

private:
    std::string bytes_;
};

/// Takes a payload apart; throws StreamFault where it ends too early.
class PayloadReader {
public:
    explicit PayloadReader(std::string_view bytes) : rest_(bytes) {}

    template <class Number>
    Number get() {
        static_assert(std::is_arithmetic_v<Number>);
        Number number{};
        const std::string_view bytes = take(sizeof number);
        bytes.copy(reinterpret_cast<char*>(&number), sizeof number);
        return number;
    }
    ValueTag getTag();
    std::string_view getText(std::size_t longest = longestPayload); ///< well-formed UTF-8
    bool atEnd() const { return rest_.empty(); }

private:
    std::string_view take(std::size_t count);

    std::string_view rest_;
};

struct Frame {
    FrameKind kind = FrameKind::End;
    std::string payload;
};

/// Where the bytes of the frames come from.
class FrameBytes {
public:
    virtual ~FrameBytes() = default;
    /// Fills the span. Throws std::runtime_error where it cannot.
    virtual void read(std::span<char> bytes) = 0;
    /// Nothing is to come any more. Throws std::runtime_error where that is not so.
    virtual void finish() = 0;
};

/// Header and payload in one.
std::string encodeFrame(FrameKind kind, std::string_view payload);
/// Reads a whole frame through a function that fills a span or throws. Throws StreamFault.
void decodeFrame(const std::function<void(std::span<char>)>& read, Frame& frame);

} // namespace kelx::tools
