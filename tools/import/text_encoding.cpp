// SPDX-License-Identifier: Apache-2.0
#include "import/text_encoding.h"

#include "import/located_error.h"

#include <algorithm>
#include <cerrno>
#include <stdexcept>

namespace kelx::tools {

namespace {

constexpr std::size_t leastRoom = 64;

/// A name with "/" would ask for more than a conversion; an empty one means the machine's own.
iconv_t openConverter(const std::string& name) {
    if (name.empty() || name.find('/') != std::string::npos)
        return reinterpret_cast<iconv_t>(-1);
    return ::iconv_open("UTF-8", name.c_str());
}

bool isOpen(iconv_t converter) {
    return converter != reinterpret_cast<iconv_t>(-1);
}

} // namespace

bool isEncoding(const std::string& name) {
    const iconv_t converter = openConverter(name);
    if (!isOpen(converter))
        return false;
    ::iconv_close(converter);
    return true;
}

TextConverter::TextConverter(const std::string& encoding)
    : encoding_(encoding), converter_(openConverter(encoding)) {
    if (!isOpen(converter_))
        throw std::runtime_error("There is no encoding " + inQuotes(encoding) + ".");
}

TextConverter::~TextConverter() {
    ::iconv_close(converter_);
}

const std::string& TextConverter::convert(std::string_view bytes) {
    ::iconv(converter_, nullptr, nullptr, nullptr, nullptr);
    text_.resize(std::max(leastRoom, 2 * bytes.size()));
    char* in = const_cast<char*>(bytes.data()); // which iconv reads only
    std::size_t left = bytes.size();
    std::size_t used = 0;
    for (;;) {
        char* out = text_.data() + used;
        std::size_t room = text_.size() - used;
        const std::size_t result = ::iconv(converter_, &in, &left, &out, &room);
        used = text_.size() - room;
        if (result != static_cast<std::size_t>(-1))
            break;
        if (errno != E2BIG)
            throw std::runtime_error("a text is not written in " + encoding_);
        text_.resize(2 * text_.size());
    }
    text_.resize(used);
    return text_;
}

} // namespace kelx::tools
