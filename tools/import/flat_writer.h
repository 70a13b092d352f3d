// SPDX-License-Identifier: Apache-2.0
// The second reading of a flat file: the data of all its levels are written at once.
#pragma once

#include "catalog/model.h"
#include "catalog/value_rule.h"
#include "import/column_output.h"
#include "import/flat_scan.h"
#include "import/import_report.h"
#include "import/row_splitter.h"
#include "storage/pointer_file.h"

#include <filesystem>
#include <memory>
#include <vector>

namespace kelx::tools {

/// Writes into a folder what the entities name, one for each level, their variables in the order
/// of the levels' fields.
class FlatWriter {
public:
    FlatWriter(const FlatPlan& plan, const FlatScan& scan,
               const std::vector<catalog::Entity*>& entities, const std::filesystem::path& folder,
               const std::shared_ptr<const storage::Secret>& key);

    /// Reads the source to its end; the faults are muted.
    void write(RowSource& source, Faults& faults);
    /// Levels, as they were written; after write().
    const std::vector<ImportReport::Level>& report() const { return report_; }

private:
    struct Target {
        std::size_t field;
        const FieldPlan* plan;
        catalog::ValueRule rule;
        std::unique_ptr<storage::ColumnWriter> writer;
        ImportReport::Variable told;
    };
    struct Level {
        std::vector<Target> targets;
        std::vector<std::size_t> children;
        std::unique_ptr<storage::PointerWriter> pointers;
        std::uint64_t records = 0;
        std::uint64_t inParent = 0; ///< records under the parent's current record
    };

    void begin(std::size_t level, const RowSource& source);
    static void add(Target& target, const SourceValue& value);
    void finish(const RowSplitter& splitter);

    const FlatPlan& plan_;
    std::uint64_t rows_; ///< of the first reading
    std::vector<Level> levels_;
    std::vector<ImportReport::Level> report_;
};

} // namespace kelx::tools
