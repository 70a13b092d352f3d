// SPDX-License-Identifier: Apache-2.0
#include "language/program_caller.h"

#include "language/files.h"
#include "language/parser.h"
#include "language/program_text.h"
#include "language/text.h"

#include <algorithm>
#include <set>
#include <stdexcept>

namespace kelx::language {

namespace {

constexpr std::size_t deepest = 20;
constexpr std::size_t mostCalls = 10000;
constexpr std::size_t mostBytes = 16 * longestProgram;

} // namespace

bool ProgramCaller::mayCall(const ast::Execute& command, const std::filesystem::path& file) {
    if (std::find(open_.begin(), open_.end(), file) != open_.end()) {
        context_.report(Error::ProgramCycle, command.filePosition, {inQuotes(command.file)});
        return false;
    }
    if (open_.size() >= deepest) {
        context_.report(Error::CallsTooDeep, command.filePosition, {std::to_string(deepest)});
        return false;
    }
    const bool wasFull = isFull_;
    isFull_ = isFull_ || ++calls_ > mostCalls || bytes_ > mostBytes;
    if (isFull_ && !wasFull)
        context_.report(Error::TooManyCalls, command.filePosition,
                        {std::to_string(mostCalls), std::to_string(mostBytes)});
    return !isFull_;
}

bool ProgramCaller::read(const ast::Execute& command, const std::filesystem::path& file,
                         std::string& text) {
    try {
        text = contentOf(file, longestProgram, "is larger than any program can be");
    } catch (const std::runtime_error& fault) {
        context_.report(Error::ProgramFile, command.filePosition,
                        {inQuotes(command.file), fault.what()});
        return false;
    }
    context_.files().read(file);
    return true;
}

CalledText ProgramCaller::putValues(const ast::Execute& command, const std::string& text,
                                    std::size_t source) {
    CallValues values;
    std::vector<std::string> names;
    for (const auto& [name, value, position] : command.values) {
        values.emplace_back(name, value);
        names.push_back(name);
    }
    CalledText called = language::putValues(text, values);
    for (CalledText::Unknown& unknown : called.unknown) {
        unknown.position.source = source;
        context_.report(Error::UnknownValue, unknown.position,
                        {unknown.name, hint(unknown.name, names), unknown.inWords()});
    }
    tellUnused(command, called);
    return called;
}

void ProgramCaller::tellUnused(const ast::Execute& command, const CalledText& called) {
    const std::set<std::string> unused(called.unused.begin(), called.unused.end());
    std::vector<std::string> wanted;
    for (const auto& unknown : called.unknown)
        wanted.push_back(unknown.name);
    for (const auto& [name, value, position] : command.values) {
        if (unused.contains(name))
            context_.report(Warning::UnusedValue, position,
                            {inQuotes(command.file), name, hint(name, wanted)});
    }
}

std::string ProgramCaller::hint(const std::string& name,
                                const std::vector<std::string>& known) const {
    return context_.wantsHints() ? didYouMean(nearest(name, known)) : "";
}

void ProgramCaller::call(const ast::Execute& command,
                         const std::function<void(const ast::Program&)>& take) {
    const std::filesystem::path named = resolvedFile(command.file, context_.options().baseFolder);
    const std::filesystem::path file = catalog::realFile(named);
    std::string text;
    if (!mayCall(command, file) || !read(command, named, text))
        return;
    Messages& messages = context_.messages();
    const std::size_t source = messages.addSource(command.file, command.position);
    if (!isReadable(text, messages, source))
        return;
    const CalledText called = putValues(command, text, source);
    bytes_ += std::max(text.size(), called.text.size());
    if (called.tooLong)
        context_.report(Error::ValuesTooLong, command.filePosition,
                        {inQuotes(command.file), std::to_string(longestProgram)});
    if (called.tooLong || !called.unknown.empty())
        return;
    const auto tokens = tokenize(called.text, context_.names().oddNames(), messages, source);
    const ast::Program program = parse(tokens, messages);
    open_.push_back(file);
    CheckerContext::Place caller = context_.moveTo({called.text, named.parent_path()});
    take(program);
    context_.moveTo(std::move(caller));
    open_.pop_back();
}

} // namespace kelx::language
