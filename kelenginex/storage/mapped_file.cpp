// SPDX-License-Identifier: Apache-2.0
#include "storage/mapped_file.h"

#include "storage/posix_io.h"

#include <cerrno>
#include <fcntl.h>
#include <string>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#include <xxhash.h>

namespace kelx::storage {

std::uint64_t hash64(std::span<const std::byte> bytes) {
    return XXH3_64bits(bytes.data(), bytes.size());
}

MappedFile::MappedFile(const std::filesystem::path& file) : file_(file) {
    // A named pipe must not stop us, so the opening does not wait.
    const int descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0)
        failWithErrno(file, "cannot be opened");
    struct stat status {};
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        ::close(descriptor);
        throw FileError(file, "is not a regular file");
    }
    size_ = static_cast<std::size_t>(status.st_size);
    identity_ = {status.st_dev, status.st_ino, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
    if (size_ > 0) {
        void* data = ::mmap(nullptr, size_, PROT_READ, MAP_SHARED, descriptor, 0);
        const int problem = errno;
        ::close(descriptor);
        errno = problem;
        if (data == MAP_FAILED)
            failWithErrno(file, "cannot be mapped");
        data_ = static_cast<const std::byte*>(data);
    } else {
        ::close(descriptor);
    }
}

MappedFile::~MappedFile() {
    if (data_ != nullptr)
        ::munmap(const_cast<std::byte*>(data_), size_);
}

std::span<const std::byte> MappedFile::part(std::uint64_t offset, std::uint64_t length,
                                            const char* what) const {
    if (offset > size_ || length > size_ - offset)
        throw FileError(file_, std::string("is damaged: ") + what + " lies outside the file");
    return bytes().subspan(static_cast<std::size_t>(offset), static_cast<std::size_t>(length));
}

std::uint64_t headerHash(std::span<const std::byte> header) {
    return hash64(header.first(header.size() - sizeof(std::uint64_t)));
}

void checkPreamble(const MappedFile& map, const Magic& magic, std::size_t headerSize,
                   const char* kind) {
    const auto bytes = map.bytes();
    const auto& file = map.file();
    if (bytes.size() < sizeof(Preamble) ||
        std::memcmp(bytes.data(), magic.data(), magic.size()) != 0)
        throw FileError(file, std::string("is not a ") + kind);
    const auto preamble = load<Preamble>(bytes.data());
    if (preamble.major != 1)
        throw FileError(file, std::string("is a ") + kind + " of format " +
                                  std::to_string(preamble.major) +
                                  ", which this version does not read");
    if (preamble.headerSize != headerSize || bytes.size() < headerSize)
        throw FileError(file, "is damaged: its header is incomplete");
    const auto header = bytes.first(headerSize);
    if (load<std::uint64_t>(header.last(8).data()) != headerHash(header))
        throw FileError(file, "is damaged: its header does not match its checksum");
    if (preamble.fileSize != bytes.size())
        throw FileError(file, "is damaged: it has " + std::to_string(bytes.size()) +
                                  " bytes in place of " + std::to_string(preamble.fileSize));
}

} // namespace kelx::storage
