// SPDX-License-Identifier: Apache-2.0
// The findings about a database as a dataset.
#pragma once

#include "TKelDataset.h"

#include "catalog/consistency.h"
#include "catalog/reader.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace kelx::boundary {

/// When and on what a check ran.
struct CheckTimes {
    std::string database;
    std::int64_t start = 0; ///< seconds since 1970
    std::int64_t end = 0;
    double duration = 0; ///< seconds
};

/// One row for each finding.
class ConsistencyDataset : public TKelDataset {
public:
    ConsistencyDataset(catalog::ConsistencyReport report, CheckTimes times);

    int numFields() override;
    std::int64_t recCount() override;
    std::shared_ptr<TKelField> field(int index) override;
    void range(std::pair<double, double>& out, int column) override;
    double doubleValue(std::int64_t row, int column) override;
    std::string stringValue(std::int64_t row, int column) override;
    TKelVariant value(const std::string& name) override;

private:
    std::vector<std::string> listValueNames() const override;

    catalog::ConsistencyReport report_;
    std::vector<std::pair<std::string, TKelVariant>> values_;
};

/// Opens a database, asking the configuration's provider where needed, and checks it.
std::shared_ptr<TKelDataset> checkDatabase(const std::string& path,
                                           const catalog::Questions& questions);

} // namespace kelx::boundary
