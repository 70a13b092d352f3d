// SPDX-License-Identifier: Apache-2.0
// An output table as a dataset.
#pragma once

#include "TKelDataset.h"

#include "output/table.h"

#include <memory>
#include <string>
#include <vector>

namespace kelx::boundary {

/// Shows a table that lives as long as it does.
class TableDataset : public TKelDataset {
public:
    explicit TableDataset(const output::Table& table);

    int numFields() override;
    std::int64_t recCount() override;
    std::shared_ptr<TKelField> field(int index) override;
    void range(std::pair<double, double>& out, int column) override;
    double doubleValue(std::int64_t row, int column) override;
    std::string stringValue(std::int64_t row, int column) override;
    TKelVariant value(const std::string& name) override;

private:
    std::vector<std::string> listValueNames() const override;
    const output::Column* columnOf(std::int64_t row, int column) const; ///< null out of range

    const output::Table& table_;
    std::vector<std::shared_ptr<TKelField>> fields_;
};

} // namespace kelx::boundary
