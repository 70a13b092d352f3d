// SPDX-License-Identifier: Apache-2.0
// One result of a run.
#pragma once

#include "KelTypes.h"

#include <memory>
#include <string>
#include <vector>

class TKelDataset;
class TKelEntity;
class TKelRunDefinition;
class TKelVariable;

/// Belongs to the session that made it.
class KEL_EXPORT TKelOutput {
public:
    TKelOutput();
    TKelOutput(const TKelOutput&) = delete;
    TKelOutput& operator=(const TKelOutput&) = delete;
    virtual ~TKelOutput();

    std::string name() const;
    eOutputType type() const;
    int dimension() const; ///< number of variables that span the table
    eTableMethod method() const;
    std::string typeName() const;
    std::string methodName() const;
    TKelOutputConfig& options();

    /// What is measured comes first, where there is such. An expression, and a table that is a
    /// column of a list, stand as a variable without entity whose name is their text.
    virtual const std::vector<TKelVariable*> variables();
    virtual TKelDataset* dataset(); ///< null where the output holds no figures
    virtual TKelEntity* entity();   ///< the listed or counted entity, else null

    // Additions of this engine.
    /// The output as one JSON object, UTF-8, its rows in triples for every dimension.
    std::string asJson() const;
    std::int64_t suppressed() const; ///< number of cells hidden for disclosure control
    /// The settings that this output was made under; a program may change them as it goes on. Never
    /// null.
    std::shared_ptr<TKelRunDefinition> runDefinition() const;

private:
    friend struct KelBoundaryAccess;
    struct Data;
    std::unique_ptr<Data> d;
};
