// SPDX-License-Identifier: Apache-2.0
#include "import/sav_file.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <limits>
#include <unistd.h>

namespace kelx::tools {

namespace {

// Offsets in the header; all are numbers of four bytes.
constexpr std::size_t layoutAt = 64, compressionAt = 72, casesAt = 80, casesEnd = 84;
constexpr std::int32_t plain = 0, byCodes = 1;

std::int32_t numberAt(const char* bytes, bool swapped) {
    std::array<char, 4> own{};
    std::copy_n(bytes, own.size(), own.begin());
    if (swapped)
        std::reverse(own.begin(), own.end());
    return std::bit_cast<std::int32_t>(own);
}

} // namespace

SavFile::~SavFile() {
    if (file_ >= 0)
        ::close(file_);
}

void SavFile::serve(readstat_parser_t* parser) {
    readstat_set_open_handler(
        parser, [](const char* path, void* context) { return of(context).open(path); });
    readstat_set_close_handler(parser, [](void* /*context*/) { return 0; });
    readstat_set_seek_handler(
        parser,
        [](readstat_off_t offset, readstat_io_flags_t whence, void* context) -> readstat_off_t {
            const int from = whence == READSTAT_SEEK_SET   ? SEEK_SET
                             : whence == READSTAT_SEEK_CUR ? SEEK_CUR
                                                           : SEEK_END;
            const off_t position = ::lseek(of(context).file_, offset, from);
            if (position >= 0)
                of(context).position_ = position;
            return position;
        });
    readstat_set_read_handler(parser, [](void* bytes, std::size_t count, void* context) {
        return of(context).read(static_cast<char*>(bytes), count);
    });
    readstat_set_update_handler(parser,
                                [](long /*size*/, readstat_progress_handler /*told*/,
                                   void* /*user*/, void* /*context*/) { return READSTAT_OK; });
    readstat_set_io_ctx(parser, this);
    readstat_set_row_limit(parser, std::numeric_limits<int>::max());
}

int SavFile::open(const char* path) {
    file_ = ::open(path, O_RDONLY | O_CLOEXEC);
    if (file_ < 0)
        return -1;
    readHeader();
    return file_;
}

void SavFile::readHeader() {
    std::array<char, casesEnd> header{};
    if (::pread(file_, header.data(), header.size(), 0) != ssize_t{casesEnd})
        return; // too short for anything; the reader will say so
    const std::int32_t layout = numberAt(header.data() + layoutAt, false);
    const bool swapped = layout != 2 && layout != 3;
    compression_ = numberAt(header.data() + compressionAt, swapped);
    cases_ = std::max(-1, numberAt(header.data() + casesAt, swapped));
}

ssize_t SavFile::read(char* bytes, std::size_t count) {
    std::size_t done = 0;
    while (done < count) {
        const ssize_t part = ::read(file_, bytes + done, count - done);
        if (part < 0 && errno == EINTR)
            continue;
        if (part < 0)
            return -1;
        if (part == 0)
            break;
        done += static_cast<std::size_t>(part);
    }
    const auto begin = static_cast<std::size_t>(position_);
    for (std::size_t at = std::max(begin, casesAt); at < std::min(begin + done, casesEnd); ++at)
        bytes[at - begin] = '\xff'; // -1 in either byte order
    position_ += static_cast<std::int64_t>(done);
    const bool isCut = compression_ == plain || (compression_ == byCodes && done % 8 != 0);
    endsWithinRow_ = endsWithinRow_ || (done > 0 && done < count && isCut);
    return static_cast<ssize_t>(done);
}

} // namespace kelx::tools
