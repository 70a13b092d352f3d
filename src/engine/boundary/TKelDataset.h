// SPDX-License-Identifier: Apache-2.0
// The figures of a result as rows and fields.
#pragma once

#include "KelTypes.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

/// A column of a dataset.
class KEL_EXPORT TKelField {
public:
    TKelField(std::string name, std::string label, std::string format);
    virtual ~TKelField();
    virtual std::string name() const;
    virtual std::string label() const;
    virtual std::string format() const; ///< heading of the group of columns it belongs to

private:
    std::string name_, label_, format_;
};

/// Rows and columns count from 0. Out of range reads give an empty text or 0, never a fault.
class KEL_EXPORT TKelDataset {
public:
    virtual ~TKelDataset();
    virtual int numFields() = 0;
    virtual std::int64_t recCount() = 0;
    virtual std::shared_ptr<TKelField> field(int index) = 0; ///< null out of range
    /// Smallest and largest value of a column; (0, 0) over text and beyond the fields.
    virtual void range(std::pair<double, double>& out, int column) = 0;
    virtual double doubleValue(std::int64_t row, int column) = 0;
    /// Integers plain, doubles in their shortest round-trip form in fixed notation with ".",
    /// blank and suppressed values empty.
    virtual std::string stringValue(std::int64_t row, int column) = 0;
    virtual TKelVariant value(const std::string& name) = 0; ///< a named value beside the rows

    // Additions of this engine.
    std::vector<std::string> valueNames() const; ///< what value() can be asked for

private:
    virtual std::vector<std::string> listValueNames() const = 0;
};
