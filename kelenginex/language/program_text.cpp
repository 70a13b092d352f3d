// SPDX-License-Identifier: Apache-2.0
#include "language/program_text.h"

#include "language/message_table.h"
#include "language/text.h"

namespace kelx::language {

namespace {

Position positionOf(std::string_view before, std::size_t source) {
    Position position{1, 1, source};
    for (std::size_t i = 0; i < before.size(); ++i) {
        const char c = before[i];
        if (c == '\n' || (c == '\r' && (i + 1 == before.size() || before[i + 1] != '\n')))
            position = {position.line + 1, 1, source};
        else if ((static_cast<unsigned char>(c) & 0xc0) != 0x80)
            ++position.column;
    }
    return position;
}

} // namespace

bool isReadable(std::string_view program, Messages& messages, std::size_t source) {
    if (program.size() > longestProgram) {
        messages.add(
            makeMessage(Error::ProgramTooLarge, {1, 1, source}, {std::to_string(longestProgram)}));
        return false;
    }
    const std::optional<std::size_t> fault = firstInvalidUtf8(program);
    if (fault)
        messages.add(makeMessage(Error::NotUtf8, positionOf(program.substr(0, *fault), source)));
    return !fault;
}

} // namespace kelx::language
