// SPDX-License-Identifier: Apache-2.0
#include "import/statistics_stream.h"

#include "storage/bytes.h"
#include "storage/utf8.h"

#include <algorithm>
#include <array>

namespace kelx::tools {

namespace {

constexpr std::size_t headerSize = 16;
constexpr std::size_t chunk = 1u << 16;

std::uint64_t checksum(std::string_view payload) {
    return storage::hash64(std::as_bytes(std::span(payload.data(), payload.size())));
}

} // namespace

ValueTag PayloadReader::getTag() {
    const auto tag = get<std::uint8_t>();
    if (tag > static_cast<std::uint8_t>(ValueTag::Tagged))
        throw StreamFault("a value of an unknown kind");
    return static_cast<ValueTag>(tag);
}

std::string_view PayloadReader::getText(std::size_t longest) {
    const auto length = get<std::uint32_t>();
    if (length > longest)
        throw StreamFault("a text that is too long");
    const std::string_view text = take(length);
    if (!storage::isUtf8(text))
        throw StreamFault("a text that is no UTF-8; --encoding NAME tells how texts are written");
    if (text.find('\0') != std::string_view::npos)
        throw StreamFault("a text with a zero byte");
    return text;
}

std::string_view PayloadReader::take(std::size_t count) {
    if (count > rest_.size())
        throw StreamFault("a record that ends too early");
    const std::string_view part = rest_.substr(0, count);
    rest_.remove_prefix(count);
    return part;
}

std::string encodeFrame(FrameKind kind, std::string_view payload) {
    PayloadWriter frame;
    frame.put(static_cast<std::uint32_t>(kind));
    frame.put(static_cast<std::uint32_t>(payload.size()));
    frame.put(checksum(payload));
    frame.bytes().append(payload);
    return std::move(frame.bytes());
}

void decodeFrame(const std::function<void(std::span<char>)>& read, Frame& frame) {
    std::array<char, headerSize> header{};
    read(header);
    PayloadReader parts(std::string_view(header.data(), header.size()));
    const auto kind = parts.get<std::uint32_t>();
    const auto length = parts.get<std::uint32_t>();
    const auto hash = parts.get<std::uint64_t>();
    if (kind < 1 || kind > static_cast<std::uint32_t>(FrameKind::Fault) || length > longestPayload)
        throw StreamFault("a frame of an unknown kind or an impossible length");
    frame.kind = static_cast<FrameKind>(kind);
    frame.payload.clear();
    while (frame.payload.size() < length) { // what is there, not what is claimed, takes memory
        const std::size_t old = frame.payload.size();
        const std::size_t part = std::min<std::size_t>(length - old, std::max(chunk, old));
        frame.payload.resize(old + part);
        read(std::span(frame.payload).subspan(old, part));
    }
    if (checksum(frame.payload) != hash)
        throw StreamFault("a frame that does not match its checksum");
}

} // namespace kelx::tools
