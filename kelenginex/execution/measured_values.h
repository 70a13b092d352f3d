// SPDX-License-Identifier: Apache-2.0
// The measured values of a step's records.
#pragma once

#include "execution/node.h"
#include "execution/value_lists.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace kelx::execution {

/// One for each table and thread.
class MeasuredValues {
public:
    MeasuredValues(const language::Expression& measure, const Entity& unit, NodePool& nodes);

    /// True where the values are those of a column of reals of the unit.
    bool isColumn() const { return column_ != nullptr; }
    const std::shared_ptr<const storage::Column>& column() const { return column_; }
    const Exclusions& exclusions() const { return exclusions_; }
    bool mayExclude() const { return mayExclude_; }

    /// To be called first in a step; the values stay until the next one.
    void read(Frames& frames);
    /// The column's values where they lie, which they do as long as the column; null where they
    /// were copied.
    const double* inPlace() const { return inPlace_ ? reals_ : nullptr; }
    /// The mask without records that have no value; null takes all.
    const std::uint8_t* mask(const std::uint8_t* mask, std::size_t count);
    const double* reals() const { return reals_; }
    /// Null where the values are reals.
    const std::int64_t* wholes() const { return wholes_; }

private:
    void readColumn(const Frame& frame);
    void readNode(const Vector& vector, std::size_t count);

    std::shared_ptr<const storage::Column> column_;
    storage::ColumnScratch scratch_;
    Exclusions exclusions_;
    bool mayExclude_ = true;
    bool inPlace_ = false;
    Node* node_ = nullptr;
    const Vector* vector_ = nullptr;
    NumberView view_;
    const double* reals_ = nullptr;
    const std::int64_t* wholes_ = nullptr;
    std::vector<double> spreadReals_;
    std::vector<std::int64_t> spreadWholes_;
    std::vector<std::uint8_t> mask_;
};

} // namespace kelx::execution
