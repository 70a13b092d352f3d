// SPDX-License-Identifier: Apache-2.0
#include "language/execute_calls.h"

#include "language/called_text.h"
#include "language/execute_parser.h"
#include "language/files.h"
#include "language/program_text.h"
#include "language/text.h"

#include <stdexcept>

namespace kelx::language {

namespace {

constexpr const char* tooLarge = "is larger than any program can be";

std::string contentOf(const ExecuteCall& call) {
    return language::contentOf(call.file, longestProgram, tooLarge);
}

ExecuteCall callOf(const ast::Execute& execute, const CompileOptions& options, Messages& messages) {
    ExecuteCall call{
        resolvedFile(execute.file, options.baseFolder), execute.file, {}, execute.position};
    for (const auto& [name, value, position] : execute.values)
        call.values.emplace_back(name, value);
    try {
        const CalledText called = putValues(contentOf(call), call.values);
        for (const std::string& name : called.unused)
            messages.add(makeMessage(Warning::UnusedValue, execute.position,
                                     {inQuotes(execute.file), name, ""}));
    } catch (const std::runtime_error& fault) {
        messages.add(makeMessage(Error::ProgramFile, execute.filePosition,
                                 {inQuotes(execute.file), fault.what()}));
    }
    return call;
}

/// As tools write it: DEFINE alone, then the style of all tables.
bool atStyle(const TokenCursor& cursor) {
    const std::size_t ahead = cursor.peek().is(Keyword::Define) ? 1 : 0;
    return cursor.peek(ahead).is(Keyword::Tablestyle);
}

bool readStyle(TokenCursor& cursor, const CompileOptions& options,
               std::optional<std::string>& style) {
    cursor.takeKeyword(Keyword::Define);
    cursor.take();
    std::string file;
    if (!cursor.takeFileName(file, "the name of a style file in quotes"))
        return false;
    style = resolvedFile(file, options.baseFolder).string();
    return true;
}

[[noreturn]] void refuse(const ExecuteCall& call, const Message& message) {
    throw std::runtime_error(call.fileName + ":" + std::to_string(message.position.line) + ": " +
                             message.text);
}

} // namespace

std::vector<ExecuteCall> readExecuteCalls(const std::string& text, const CompileOptions& options,
                                          Messages& messages) {
    std::vector<ExecuteCall> calls;
    if (!isReadable(text, messages))
        return calls;
    const std::vector<Token> tokens = tokenize(text, {}, messages);
    TokenCursor cursor(tokens, messages);
    std::optional<std::string> style;
    while (!cursor.atEnd()) {
        if (atStyle(cursor)) {
            if (readStyle(cursor, options, style))
                continue;
        } else if (!cursor.peek().is(Keyword::Execute)) {
            cursor.unexpected("EXECUTE and the file name of a program", {"EXECUTE"});
            cursor.take();
        } else if (const std::optional<ast::Execute> execute = parseExecute(cursor)) {
            calls.push_back(callOf(*execute, options, messages));
            calls.back().tableStyle = style;
            continue;
        }
        while (!cursor.atEnd() && !cursor.peek().is(Keyword::Execute))
            cursor.take();
    }
    return calls;
}

std::string programOf(const ExecuteCall& call) {
    std::string content;
    try {
        content = contentOf(call);
    } catch (const std::runtime_error& fault) {
        throw std::runtime_error("The program " + inQuotes(call.fileName) + " " + fault.what() +
                                 ".");
    }
    Messages faults;
    if (!isReadable(content, faults))
        refuse(call, faults.all().front());
    CalledText called = putValues(content, call.values);
    if (called.tooLong)
        refuse(call, makeMessage(Error::ValuesTooLong, {},
                                 {inQuotes(call.fileName), std::to_string(longestProgram)}));
    if (!called.unknown.empty()) {
        const CalledText::Unknown& first = called.unknown.front();
        refuse(call,
               makeMessage(Error::UnknownValue, first.position, {first.name, "", first.inWords()}));
    }
    return std::move(called.text);
}

} // namespace kelx::language
