// SPDX-License-Identifier: Apache-2.0
#include "program_text.h"

#include "language/message_table.h"
#include "storage/error.h"

#include <fstream>
#include <iostream>

namespace kelx::tool {

std::string readProgram(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    std::error_code ignored;
    if (!stream || std::filesystem::is_directory(file, ignored))
        throw storage::FileError(file, "cannot be opened");
    std::string text((std::istreambuf_iterator<char>(stream)), std::istreambuf_iterator<char>());
    if (text.starts_with("\xef\xbb\xbf"))
        text.erase(0, 3);
    return text;
}

void printMessages(const language::Messages& messages, const std::string& name) {
    for (const language::Message& message : messages.forDisplay()) {
        const bool isError = message.severity == language::Severity::Error;
        std::cerr << name << ':' << message.position.line << ':' << message.position.column << ": "
                  << (isError ? "error: " : "warning: ") << message.text << " ["
                  << language::codeName(message.severity, message.code) << "]\n";
    }
}

} // namespace kelx::tool
