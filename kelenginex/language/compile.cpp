// SPDX-License-Identifier: Apache-2.0
#include "language/compile.h"

#include "language/checker.h"
#include "language/parser.h"
#include "language/text.h"

namespace kelx::language {

namespace {

constexpr std::size_t longestProgram = 1u << 20;

Position positionOf(std::string_view before) {
    Position position;
    for (std::size_t i = 0; i < before.size(); ++i) {
        const char c = before[i];
        if (c == '\n' || (c == '\r' && (i + 1 == before.size() || before[i + 1] != '\n')))
            position = {position.line + 1, 1};
        else if ((static_cast<unsigned char>(c) & 0xc0) != 0x80)
            ++position.column;
    }
    return position;
}

/// What must hold before a text is read as a program.
bool isReadable(const std::string& program, Messages& messages) {
    if (program.size() > longestProgram) {
        messages.add(makeMessage(Error::ProgramTooLarge, {}, {std::to_string(longestProgram)}));
        return false;
    }
    const std::optional<std::size_t> fault = firstInvalidUtf8(program);
    if (fault)
        messages.add(
            makeMessage(Error::NotUtf8, positionOf(std::string_view(program).substr(0, *fault))));
    return !fault;
}

} // namespace

BoundProgram compile(const std::string& program, catalog::Dictionary& dictionary,
                     const CompileOptions& options, Messages& messages) {
    Names names(dictionary);
    CheckerContext context(program, dictionary, names, options, messages);
    ast::Program commands;
    if (isReadable(program, messages))
        commands = parse(tokenize(program, names.oddNames(), messages), messages);
    return check(commands, context);
}

} // namespace kelx::language
