// SPDX-License-Identifier: Apache-2.0
#include "output/run.h"

#include <utility>

namespace kelx::output {

TablesOfRun runTables(const language::BoundProgram& program, const catalog::Dictionary& dictionary,
                      const execution::RunOptions& options, language::Messages& messages) {
    TablesOfRun run;
    run.tables.resize(program.tables.size());
    const auto layOut = [&](std::size_t index, const execution::TableResult& result,
                            execution::Progress& progress) {
        run.tables[index] = makeTable(result, dictionary, progress);
    };
    if (!execution::run(program, options, messages, layOut))
        return {{}, true};
    return run;
}

} // namespace kelx::output
