// SPDX-License-Identifier: Apache-2.0
// Databases for tests, made with the writers in a folder that goes away.
#pragma once

#include "catalog/model.h"
#include "execution/run.h"
#include "language/compile.h"
#include "storage/column_writer.h"
#include "support/temporary_folder.h"

#include <cstdint>
#include <filesystem>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kelx::test {

/// A database that is written entity by entity and variable by variable.
class TestDatabase {
public:
    explicit TestDatabase(const std::string& rootName = "COUNTRY");
    TestDatabase(const TestDatabase&) = delete;
    TestDatabase& operator=(const TestDatabase&) = delete;

    /// An entity below another; children[i] records under parent record i.
    catalog::Entity& entity(const std::string& parent, const std::string& name,
                            const std::vector<std::uint64_t>& children);
    using Integers = std::vector<std::optional<std::int64_t>>; ///< blank: no value
    catalog::Variable& integers(const std::string& entity, const std::string& name,
                                const Integers& values);
    catalog::Variable& booleans(const std::string& entity, const std::string& name,
                                const Integers& values);
    catalog::Variable& reals(const std::string& entity, const std::string& name,
                             const std::vector<double>& values); ///< blank: NaN
    catalog::Variable& texts(const std::string& entity, const std::string& name,
                             const std::vector<std::optional<std::string>>& values);

    catalog::Dictionary dictionary;

private:
    catalog::Variable& add(const std::string& entity, const std::string& name,
                           storage::ValueType type);
    TemporaryFolder folder_;
};

/// Three provinces with 2, 1 and 2 households of 2, 1, 3, 0 and 2 persons:
///
///     province  household  TYPE  WT    person: SEX  AGE    JOB   INCOME  NAME
///     01 North  0          1     1.5   1 34 true 100.5 Ana / 2 99 (MV) false 0 "Béa"
///               1          2     2     2 98 (NA) blank blank Cid
///     02 South  2          1     0.5   1 7 false 0 "Dan" / 1 7 false blank Eva / 2 70 true 20
///     blank 03 Sud-O  3          9 MV  4     -
///               4          2     1     2 blank true 100.5 Ana / 1 15 false -3 Zoë
class SmallCountry : public TestDatabase {
public:
    SmallCountry();
};

/// Compiles without automatic weights (unless told); throws the first error message.
language::BoundProgram compiled(catalog::Dictionary& dictionary, const std::string& program,
                                bool autoWeight = false);

/// A program with its result, which points into it.
struct Outcome {
    std::unique_ptr<language::BoundProgram> program;
    language::Messages messages;
    execution::RunResult result;
};
Outcome runWith(catalog::Dictionary& dictionary, const std::string& program,
                const execution::RunOptions& options, bool autoWeight = false);
/// Runs with 1 and 2 threads and small and large blocks; fails the test where results differ.
Outcome runAll(catalog::Dictionary& dictionary, const std::string& program,
               bool autoWeight = false);

/// Cells by their categories, "1|2"; MV and NA for the markers.
using Figures = std::map<std::string, double>;
Figures figures(const execution::TableResult& table);
Figures recordCounts(const execution::TableResult& table);

constexpr double blankReal = std::numeric_limits<double>::quiet_NaN();

} // namespace kelx::test
