// SPDX-License-Identifier: Apache-2.0
// Reads the programs that EXECUTE calls, as if their texts stood in the calling one.
#pragma once

#include "language/ast.h"
#include "language/called_text.h"
#include "language/checker_context.h"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace kelx::language {

class ProgramCaller {
public:
    explicit ProgramCaller(CheckerContext& context) : context_(context) {}

    /// Hands the commands of the called program to `take`; while it runs, the context is in the
    /// called text and its folder. Faults are reported.
    void call(const ast::Execute& command, const std::function<void(const ast::Program&)>& take);

private:
    bool mayCall(const ast::Execute& command, const std::filesystem::path& file);
    bool read(const ast::Execute& command, const std::filesystem::path& file, std::string& text);
    void tellUnused(const ast::Execute& command, const CalledText& called);
    std::string hint(const std::string& name, const std::vector<std::string>& known) const;
    CalledText putValues(const ast::Execute& command, const std::string& text, std::size_t source);

    CheckerContext& context_;
    std::vector<std::filesystem::path> open_; ///< the programs that lead to this place
    std::size_t calls_ = 0, bytes_ = 0;
    bool isFull_ = false;
};

} // namespace kelx::language
