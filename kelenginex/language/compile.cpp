// SPDX-License-Identifier: Apache-2.0
#include "language/compile.h"

#include "language/checker.h"
#include "language/parser.h"
#include "language/program_text.h"

namespace kelx::language {

BoundProgram compile(const std::string& program, catalog::Dictionary& dictionary,
                     const CompileOptions& options, Messages& messages) {
    Names names(dictionary);
    CheckerContext context(program, dictionary, names, options, messages);
    if (!options.programFile.empty())
        context.files().read(options.programFile);
    ast::Program commands;
    if (isReadable(program, messages))
        commands = parse(tokenize(program, names.oddNames(), messages), messages);
    return check(commands, context);
}

} // namespace kelx::language
