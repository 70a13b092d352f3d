// SPDX-License-Identifier: Apache-2.0
#include "output/run.h"

#include "output/workshop.h"

#include <utility>

namespace kelx::output {

TablesOfRun runTables(const language::BoundProgram& program, const catalog::Dictionary& dictionary,
                      const execution::RunOptions& options, language::Messages& messages,
                      const TablesEnd& end) {
    Workshop workshop(program, dictionary);
    const auto take = [&](std::size_t index, execution::TableResult result,
                          execution::Progress& progress) {
        workshop.take(index, std::move(result), progress);
    };
    std::vector<Table> tables;
    const auto finish = [&](storage::StagedFiles& files, execution::Progress& progress) {
        tables = workshop.finish(progress);
        if (end)
            end(tables, files, progress);
    };
    try {
        if (!execution::run(program, options, messages, take, finish))
            return {{}, true};
        return {std::move(tables), false};
    } catch (const SortFault& fault) {
        messages.add(fault.message());
        return {};
    }
}

} // namespace kelx::output
