// SPDX-License-Identifier: Apache-2.0
#include "import/csv_reader.h"

#include "storage/error.h"
#include "storage/utf8.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace kelx::tools {

namespace {

constexpr std::size_t chunk = 1u << 18;

} // namespace

CsvReader::CsvReader(const std::filesystem::path& file, BytesRead onRead, char separator)
    : stream_(file, std::ios::binary), name_(file.string()), onRead_(std::move(onRead)),
      separator_(separator) {
    std::error_code ignored;
    if (!stream_ || std::filesystem::is_directory(file, ignored))
        throw storage::FileError(file, "cannot be opened");
    fill();
    if (buffer_.starts_with("\xef\xbb\xbf"))
        buffer_.erase(0, 3);
}

bool CsvReader::fill() {
    if (endReached_)
        return false;
    const std::size_t old = buffer_.size();
    const std::size_t wanted = std::min(std::max(chunk, old), longestRecord + chunk - old);
    buffer_.resize(old + wanted);
    stream_.read(buffer_.data() + old, static_cast<std::streamsize>(wanted));
    buffer_.resize(old + static_cast<std::size_t>(stream_.gcount()));
    if (stream_.bad())
        throw storage::FileError(name_, "cannot be read");
    endReached_ = buffer_.size() < old + wanted;
    if (onRead_)
        onRead_(buffer_.size() - old);
    return buffer_.size() > old;
}

bool CsvReader::next() {
    const auto begin = buffer_.begin() + static_cast<std::ptrdiff_t>(recordBegin_);
    const auto end = buffer_.begin() + static_cast<std::ptrdiff_t>(recordEnd_);
    line_ += static_cast<std::uint64_t>(std::count(begin, end, '\n'));
    recordBegin_ = recordEnd_;
    for (;;) {
        if (split(endReached_) == Split::Complete) {
            if (recordBegin_ == buffer_.size())
                return false;
            if (recordLength_ > 0) {
                checkUtf8(recordLength_);
                return true;
            }
            recordBegin_ = recordEnd_; // an empty line
            ++line_;
            continue;
        }
        buffer_.erase(0, recordBegin_);
        recordBegin_ = recordEnd_ = 0;
        if (buffer_.size() > longestRecord)
            failAt(0, "this record is longer than 16 MiB; is a quote left open?");
        fill();
    }
}

CsvReader::Split CsvReader::split(bool atEnd) {
    fields_.clear();
    unescaped_.clear();
    std::size_t at = recordBegin_;
    for (;;) {
        const std::size_t begin = at;
        if (at < buffer_.size() && buffer_[at] == '"') {
            if (!splitQuoted(at, begin, atEnd))
                return Split::NeedsMore;
        } else {
            while (at < buffer_.size() && buffer_[at] != separator_ && buffer_[at] != '\n' &&
                   buffer_[at] != '"' && buffer_[at] != '\r')
                ++at;
            fields_.push_back({begin, begin, at - begin, false});
        }
        if (at + 1 >= buffer_.size() && !atEnd)
            return Split::NeedsMore;
        if (at < buffer_.size() && buffer_[at] == separator_) {
            ++at;
            continue;
        }
        recordLength_ = at - recordBegin_;
        recordEnd_ = at;
        if (at == buffer_.size())
            return Split::Complete;
        if (buffer_[at] == '\r' && at + 1 < buffer_.size() && buffer_[at + 1] == '\n')
            ++recordEnd_;
        else if (buffer_[at] == '"')
            failAt(at, "a quote inside a field that does not begin with one");
        else if (buffer_[at] != '\n')
            failAt(at, buffer_[begin] == '"' ? "text behind the closing quote of a field"
                                             : "a carriage return without a line feed");
        ++recordEnd_;
        return Split::Complete;
    }
}

/// Leaves `at` behind the closing quote; false where more bytes are needed to find it.
bool CsvReader::splitQuoted(std::size_t& at, std::size_t rawBegin, bool atEnd) {
    const std::size_t content = rawBegin + 1;
    const std::size_t stored = unescaped_.size();
    bool doubled = false;
    std::size_t piece = content;
    for (;;) {
        const std::size_t quote = buffer_.find('"', piece);
        if (quote == std::string::npos || (quote + 1 == buffer_.size() && !atEnd)) {
            if (atEnd)
                failAt(rawBegin, "this quote is never closed");
            return false;
        }
        const bool another = quote + 1 < buffer_.size() && buffer_[quote + 1] == '"';
        if (doubled || another)
            unescaped_.append(buffer_, piece, quote - piece + (another ? 1 : 0));
        if (!another) {
            at = quote + 1;
            const std::size_t length = doubled ? unescaped_.size() - stored : quote - content;
            fields_.push_back({rawBegin, doubled ? stored : content, length, doubled});
            return true;
        }
        doubled = true;
        piece = quote + 2;
    }
}

std::string_view CsvReader::field(std::size_t index) const {
    const Extent& extent = fields_[index];
    const std::string& holder = extent.unescaped ? unescaped_ : buffer_;
    return std::string_view(holder).substr(extent.begin, extent.length);
}

Place CsvReader::place(std::size_t index) const {
    return placeOf(index < fields_.size() ? fields_[index].rawBegin : recordBegin_ + recordLength_);
}

Place CsvReader::placeOf(std::size_t offset) const {
    Place place{line_, 1};
    for (std::size_t i = recordBegin_; i < offset; ++i) {
        if (buffer_[i] == '\n') {
            ++place.line;
            place.column = 1;
        } else if (storage::beginsCharacter(buffer_[i])) {
            ++place.column;
        }
    }
    return place;
}

void CsvReader::checkUtf8(std::size_t length) const {
    const std::string_view record = std::string_view(buffer_).substr(recordBegin_, length);
    if (record.find('\0') != std::string_view::npos)
        failAt(recordBegin_ + record.find('\0'), "a zero byte; is this really a text file?");
    if (const auto fault = storage::firstInvalidUtf8(record))
        failAt(recordBegin_ + *fault, "bytes that are no UTF-8");
}

void CsvReader::fail(std::size_t index, const std::string& text) const {
    throw LocatedError(name_, place(index), text);
}

void CsvReader::failAt(std::size_t offset, const std::string& text) const {
    throw LocatedError(name_, placeOf(offset), text);
}

} // namespace kelx::tools
