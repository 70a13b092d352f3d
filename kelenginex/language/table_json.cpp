// SPDX-License-Identifier: Apache-2.0
#include "language/table_json.h"

#include <fstream>
#include <string>

namespace kelx::language {
namespace {

/// Names and titles may be long, but not without end.
constexpr std::size_t mostHead = std::size_t{1} << 20;

bool take(std::string_view& text, std::string_view expected) {
    if (!text.starts_with(expected))
        return false;
    text.remove_prefix(expected.size());
    return true;
}

bool takeString(std::string_view& text) {
    if (!take(text, "\""))
        return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '"') {
            text.remove_prefix(i + 1);
            return true;
        }
        i += text[i] == '\\' ? 1 : 0;
    }
    return false;
}

} // namespace

bool beginsAsTableJson(std::string_view text) {
    take(text, "[\n"); // several tables
    return take(text, "{\"name\":") && takeString(text) && take(text, ",\"title\":") &&
           (take(text, "null") || takeString(text)) && take(text, ",\"kind\":") &&
           takeString(text) && take(text, ",\"method\":\"");
}

bool isTableJson(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::string head(mostHead, '\0');
    in.read(head.data(), static_cast<std::streamsize>(head.size()));
    head.resize(static_cast<std::size_t>(in.gcount()));
    return beginsAsTableJson(head);
}

} // namespace kelx::language
