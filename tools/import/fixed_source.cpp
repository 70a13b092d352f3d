// SPDX-License-Identifier: Apache-2.0
#include "import/fixed_source.h"

#include "import/values.h"
#include "storage/error.h"

#include <algorithm>

namespace kelx::tools {

namespace {

constexpr std::size_t chunk = 1u << 18;

std::string_view trimmed(std::string_view text) {
    const std::size_t begin = text.find_first_not_of(' ');
    return begin == std::string_view::npos
               ? std::string_view()
               : text.substr(begin, text.find_last_not_of(' ') - begin + 1);
}

} // namespace

FixedSource::FixedSource(const std::filesystem::path& file, const TextLayout& layout,
                         const BytesRead& onRead)
    : layout_(layout), stream_(file, std::ios::binary), name_(file.string()), onRead_(onRead) {
    std::error_code ignored;
    if (!stream_ || std::filesystem::is_directory(file, ignored))
        throw storage::FileError(file, "cannot be opened");
}

bool FixedSource::next() {
    do {
        if (!readLine())
            return false;
    } while (line_.empty());
    checkLine();
    findShape();
    return true;
}

bool FixedSource::readLine() {
    std::size_t end = buffer_.find('\n', begin_);
    while (end == std::string::npos && stream_) {
        buffer_.erase(0, begin_);
        begin_ = 0;
        const std::size_t old = buffer_.size();
        if (old > longestLine)
            throw LocatedError(name_, {number_ + 1, 1},
                               "this line is longer than 1 MiB; is this really a text file?");
        buffer_.resize(old + chunk);
        stream_.read(buffer_.data() + old, chunk);
        buffer_.resize(old + static_cast<std::size_t>(stream_.gcount()));
        if (stream_.bad())
            throw storage::FileError(name_, "cannot be read");
        if (number_ == 0 && buffer_.starts_with("\xef\xbb\xbf"))
            buffer_.erase(0, 3);
        if (onRead_)
            onRead_(buffer_.size() - std::min(old, buffer_.size()));
        end = buffer_.find('\n', old);
    }
    if (end == std::string::npos && begin_ == buffer_.size())
        return false;
    const std::size_t stop = std::min(end, buffer_.size());
    line_ = std::string_view(buffer_).substr(begin_, stop - begin_);
    begin_ = std::min(stop + 1, buffer_.size());
    if (line_.ends_with('\r'))
        line_.remove_suffix(1);
    ++number_;
    return true;
}

void FixedSource::checkLine() {
    ascii_ = true;
    for (std::size_t i = 0; i < line_.size(); ++i) {
        ascii_ = ascii_ && static_cast<unsigned char>(line_[i]) < 0x80;
        if (line_[i] == '\0')
            throw LocatedError(name_, {number_, i + 1}, "a zero byte; is this really a text file?");
    }
    starts_.clear();
    if (ascii_)
        return;
    if (const auto fault = storage::firstInvalidUtf8(line_))
        throw LocatedError(name_, {number_, characterCount(line_.substr(0, *fault)) + 1},
                           "bytes that are no UTF-8");
    for (std::size_t i = 0; i < line_.size(); ++i)
        if (storage::beginsCharacter(line_[i]))
            starts_.push_back(i);
}

void FixedSource::findShape() {
    shape_ = 0;
    fault_.clear();
    if (layout_.recordType.width == 0)
        return;
    const std::string_view type = trimmed(part(layout_.recordType));
    const auto found = std::find(layout_.recordTypes.begin(), layout_.recordTypes.end(), type);
    if (found == layout_.recordTypes.end())
        fault_ = "unknown record type " + inQuotes(std::string(type));
    else
        shape_ = static_cast<std::size_t>(found - layout_.recordTypes.begin());
}

std::string_view FixedSource::part(const TextLayout::Part& part) const {
    const std::size_t length = ascii_ ? line_.size() : starts_.size();
    if (part.start >= length)
        return {};
    const std::size_t stop = std::min(length, part.start + part.width);
    if (ascii_)
        return line_.substr(part.start, stop - part.start);
    const std::size_t end = stop == length ? line_.size() : starts_[stop];
    return line_.substr(starts_[part.start], end - starts_[part.start]);
}

/// Numbers may stand anywhere in their place, texts begin where it begins.
SourceValue FixedSource::value(std::size_t field) const {
    const std::string_view text = part(layout_.parts[field]);
    const SourceField& described = layout_.fields[field];
    const bool isText = described.typeKnown && described.plan.type == storage::ValueType::String;
    const std::size_t last = text.find_last_not_of(' ');
    if (last == std::string_view::npos)
        return {};
    return SourceValue::ofText(isText ? text.substr(0, last + 1) : trimmed(text));
}

Place FixedSource::place(std::size_t field) const {
    if (field < layout_.parts.size())
        return {number_, layout_.parts[field].start + 1};
    return {number_, layout_.recordType.width > 0 ? layout_.recordType.start + 1 : 1};
}

} // namespace kelx::tools
