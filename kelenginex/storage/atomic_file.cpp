// SPDX-License-Identifier: Apache-2.0
#include "storage/atomic_file.h"

#include "storage/error.h"
#include "storage/posix_io.h"

#include <sys/stat.h>
#include <unistd.h>

namespace kelx::storage {

namespace {

constexpr std::size_t bufferSize = 256 * 1024;

} // namespace

AtomicFile::AtomicFile(const std::filesystem::path& file) : file_(targetOf(file)) {
    requireReplaceable(file_);
    auto created = createTemporaryBeside(file_);
    temporary_ = std::move(created.name);
    descriptor_ = created.descriptor;
    struct stat old {};
    if (::stat(file_.c_str(), &old) == 0 && S_ISREG(old.st_mode))
        static_cast<void>(::fchmod(descriptor_, old.st_mode & 07777));
}

AtomicFile::~AtomicFile() {
    if (descriptor_ >= 0)
        ::close(descriptor_);
    if (!temporary_.empty())
        ::unlink(temporary_.c_str());
}

void AtomicFile::write(std::span<const std::byte> bytes) {
    if (buffer_.size() + bytes.size() > bufferSize)
        flush();
    if (bytes.size() >= bufferSize)
        writeFully(descriptor_, size_, bytes, file_);
    else
        buffer_.append(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    size_ += bytes.size();
}

void AtomicFile::write(std::string_view text) {
    write(std::as_bytes(std::span(text)));
}

void AtomicFile::writeAt(std::uint64_t offset, std::span<const std::byte> bytes) {
    if (offset > size_ || bytes.size() > size_ - offset)
        throw FileError(file_, "written beyond its end");
    flush();
    writeFully(descriptor_, offset, bytes, file_);
}

void AtomicFile::flush() {
    if (buffer_.empty())
        return;
    writeFully(descriptor_, size_ - buffer_.size(), std::as_bytes(std::span(buffer_)), file_);
    buffer_.clear();
}

std::uint64_t AtomicFile::size() const {
    return size_;
}

const std::filesystem::path& AtomicFile::temporaryName() const {
    return temporary_;
}

void AtomicFile::commit() {
    flush();
    if (::fsync(descriptor_) != 0)
        failWithErrno(file_, "cannot be synced");
    const int closing = descriptor_;
    descriptor_ = -1;
    if (::close(closing) != 0)
        failWithErrno(file_, "cannot be closed");
    if (::rename(temporary_.c_str(), file_.c_str()) != 0)
        failWithErrno(file_, "cannot be replaced");
    temporary_.clear();
    syncFolderOf(file_);
}

} // namespace kelx::storage
