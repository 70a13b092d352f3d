// SPDX-License-Identifier: Apache-2.0
// Texts of old files, which are no UTF-8.
#pragma once

#include <iconv.h>
#include <string>
#include <string_view>

namespace kelx::tools {

/// True for the name of an encoding that texts can be converted from.
bool isEncoding(const std::string& name);

/// From one encoding to UTF-8.
class TextConverter {
public:
    /// Throws std::runtime_error where there is no such encoding.
    explicit TextConverter(const std::string& encoding);
    ~TextConverter();
    TextConverter(const TextConverter&) = delete;
    TextConverter& operator=(const TextConverter&) = delete;

    /// Throws std::runtime_error where the bytes are no text of the encoding. Valid until the next
    /// call.
    const std::string& convert(std::string_view bytes);

private:
    std::string encoding_, text_;
    iconv_t converter_;
};

} // namespace kelx::tools
