// SPDX-License-Identifier: Apache-2.0
// A fault at a place in a text file.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace kelx::tools {

/// 1-based; columns count characters, not bytes.
struct Place {
    std::uint64_t line = 1;
    std::uint64_t column = 1;
};

/// what() reads "file:line:column: error: text".
class LocatedError : public std::runtime_error {
public:
    LocatedError(const std::string& file, Place place, const std::string& text);
    const std::string& file() const { return file_; }
    Place place() const { return place_; }
    const std::string& text() const { return text_; }

private:
    std::string file_;
    Place place_;
    std::string text_;
};

/// The text in quotes, shortened and without control characters, for messages.
std::string inQuotes(const std::string& text);

} // namespace kelx::tools
