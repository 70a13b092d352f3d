// SPDX-License-Identifier: Apache-2.0
#include "language/message_reference.h"

#include "language/text.h"

namespace kelx::language {

namespace {

/// Hints stand directly behind a sentence, and not always: they are left out.
std::string readable(std::string_view pattern) {
    std::string text;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const bool value = pattern[i] == '%' && i + 1 < pattern.size();
        const bool hint = value && i > 0 && pattern[i - 1] == '.';
        if (value)
            ++i;
        if (!hint)
            text += value ? std::string("...") : std::string(1, pattern[i]);
    }
    return text;
}

/// As Markdown shows it unchanged.
std::string escaped(const std::string& text) {
    std::string result;
    for (const char c : text) {
        if (c == '*' || c == '<' || c == '\\' || c == '_')
            result += '\\';
        result += c;
    }
    return result;
}

std::string section(Severity severity) {
    std::string text;
    for (const MessageEntry& entry : messageTable()) {
        if (entry.severity == severity)
            text += std::string("### ") + entry.name + "\n\n> " + escaped(readable(entry.pattern)) +
                    "\n\n" + escaped(entry.documentation) + "\n\n";
    }
    text.pop_back();
    return text;
}

} // namespace

std::string messageReference() {
    return "# Messages of the command language\n\n"
           "What the checker tells of a program, each with its name, its text and what it means. "
           "Dots stand\nfor what the message names. `kelx messages` prints this page, "
           "`kelx messages NAME` one entry of it.\nHow programs are written is told in "
           "[language.md](language.md).\n\n"
           "## Errors\n\n" +
           section(Severity::Error) + "\n## Warnings\n\n" + section(Severity::Warning);
}

std::string describe(const MessageEntry& entry) {
    return std::string(entry.name) + "\n  " + readable(entry.pattern) + "\n  " +
           entry.documentation + "\n";
}

const MessageEntry* findMessage(const std::string& name) {
    const std::string wanted = upperCase(name);
    for (const MessageEntry& entry : messageTable()) {
        if (wanted == entry.name || "KEL_" + wanted == entry.name)
            return &entry;
    }
    return nullptr;
}

} // namespace kelx::language
