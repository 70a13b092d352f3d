// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a program: compiled or refused with messages, the same at every time.
#include "fixture.h"
#include "language/text.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

using namespace kelx::language;

void promise(bool kept, const char* what) {
    if (kept)
        return;
    std::fprintf(stderr, "the compiler broke its promise: %s\n", what);
    std::abort();
}

void check(const Messages& messages) {
    for (const Message& message : messages.all()) {
        promise(message.position.line >= 1 && message.position.column >= 1, "places exist");
        promise(!message.text.empty() && !firstInvalidUtf8(message.text), "texts can be read");
    }
}

void check(const BoundProgram& program) {
    for (const Definition& definition : program.definitions) {
        promise(definition.variable != nullptr && definition.variable->entity != nullptr,
                "a definition has its variable");
        promise((definition.value != nullptr) != definition.numerator.has_value(),
                "a definition has one kind of values");
        promise(!shape(definition).empty(), "a definition can be shown");
    }
    for (const TableCommand& table : program.tables)
        promise(table.settings != nullptr, "a table has its settings");
    promise(program.lastSettings != nullptr, "there are settings");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static Census census;
    const std::string text(reinterpret_cast<const char*>(bytes), size);
    const BoundProgram program = census.compile(text);
    const std::string first = told(census.messages);
    check(census.messages);
    if (!census.messages.hasErrors())
        check(program);
    census.compile(text);
    promise(told(census.messages) == first, "messages are the same again");
    return 0;
}
