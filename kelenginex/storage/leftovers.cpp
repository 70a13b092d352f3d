// SPDX-License-Identifier: Apache-2.0
#include "storage/leftovers.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <fcntl.h>
#include <optional>
#include <string>
#include <sys/file.h>
#include <system_error>
#include <unistd.h>

namespace kelx::storage {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view prefix = ".kelx-";
constexpr std::string_view suffix = ".tmp";

struct TemporaryName {
    pid_t process;
    std::string base; ///< without what a description or a kept file has behind it
};

/// Of ".kelx-n-random.tmp", ".kelx-n-random.tmp.desc" and so on.
std::optional<TemporaryName> parse(std::string_view name) {
    const std::size_t end = name.find(suffix);
    if (!name.starts_with(prefix) || end == std::string_view::npos)
        return std::nullopt;
    const std::string_view rest = name.substr(end + suffix.size());
    const std::string_view inside = name.substr(prefix.size(), end - prefix.size());
    pid_t process = 0;
    const auto [stop, fault] =
        std::from_chars(inside.data(), inside.data() + inside.size(), process);
    const bool isNumbered = fault == std::errc() && process > 0 &&
                            stop != inside.data() + inside.size() && *stop == '-';
    if (!isNumbered || !(rest.empty() || rest == ".desc" || rest == ".old"))
        return std::nullopt;
    return TemporaryName{process, std::string(name.substr(0, end + suffix.size()))};
}

bool isGone(pid_t process) {
    return process != ::getpid() && ::kill(process, 0) != 0 && errno == ESRCH;
}

/// The lock tells of processes of other machines, whose numbers mean nothing here.
bool isHeld(const fs::path& file) {
    const int descriptor = ::open(file.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const bool held = ::flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    ::close(descriptor);
    return held;
}

} // namespace

bool isTemporaryName(std::string_view name) {
    return parse(name).has_value();
}

std::vector<fs::path> leftoversIn(const fs::path& folder) {
    std::vector<fs::path> found;
    std::error_code fault;
    for (fs::directory_iterator at(folder, fault), end; !fault && at != end; at.increment(fault)) {
        const auto name = parse(at->path().filename().string());
        std::error_code ignored;
        if (name && fs::is_regular_file(at->symlink_status(ignored)) && isGone(name->process) &&
            !isHeld(folder / name->base))
            found.push_back(at->path());
    }
    std::sort(found.begin(), found.end());
    return found;
}

void removeLeftovers(const fs::path& folder) {
    for (const fs::path& file : leftoversIn(folder)) {
        std::error_code ignored;
        fs::remove(file, ignored);
    }
}

} // namespace kelx::storage
