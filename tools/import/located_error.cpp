// SPDX-License-Identifier: Apache-2.0
#include "import/located_error.h"

#include "storage/utf8.h"

namespace kelx::tools {

LocatedError::LocatedError(const std::string& file, Place place, const std::string& text)
    : std::runtime_error(file + ":" + std::to_string(place.line) + ":" +
                         std::to_string(place.column) + ": error: " + text),
      file_(file), place_(place), text_(text) {}

std::string inQuotes(const std::string& text) {
    constexpr std::size_t longest = 60;
    std::string shown = "\"";
    std::size_t used = 0;
    for (const char c : text) {
        if (used >= longest && storage::beginsCharacter(c)) {
            shown += "...";
            break;
        }
        shown += static_cast<unsigned char>(c) < 0x20 ? ' ' : c;
        ++used;
    }
    return shown + "\"";
}

} // namespace kelx::tools
