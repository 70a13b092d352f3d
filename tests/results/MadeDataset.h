// SPDX-License-Identifier: GPL-3.0-or-later
// A dataset of made fields and rows, and an output that has it: for figures that no small database
// brings forth.
#pragma once

#include "TKelDataset.h"
#include "TKelEntity.h"
#include "TKelOutput.h"
#include "TKelVariable.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

struct MadeField {
    std::string name, label, group;
};

class MadeDataset : public TKelDataset {
public:
    using Rows = std::vector<std::vector<std::string>>;

    MadeDataset(std::vector<MadeField> fields, Rows rows)
        : fields_(std::move(fields)), rows_(std::move(rows)) {}

    int numFields() override { return static_cast<int>(fields_.size()); }
    std::int64_t recCount() override { return static_cast<std::int64_t>(rows_.size()); }
    std::shared_ptr<TKelField> field(int index) override {
        const MadeField& made = fields_.at(static_cast<std::size_t>(index));
        return std::make_shared<TKelField>(made.name, made.label, made.group);
    }
    void range(std::pair<double, double>& out, int /*column*/) override { out = {0, 0}; }
    double doubleValue(std::int64_t row, int column) override {
        const std::string text = stringValue(row, column);
        return text.empty() ? 0 : std::stod(text);
    }
    std::string stringValue(std::int64_t row, int column) override {
        return rows_.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(column));
    }
    TKelVariant value(const std::string& /*name*/) override { return {}; }

private:
    std::vector<std::string> listValueNames() const override { return {}; }

    std::vector<MadeField> fields_;
    Rows rows_;
};

/// Of type 0 and method 0, whatever its dataset is like.
class MadeDatasetOutput : public TKelOutput {
public:
    MadeDatasetOutput() = default;
    MadeDatasetOutput(std::vector<MadeField> fields, MadeDataset::Rows rows)
        : data_(std::make_unique<MadeDataset>(std::move(fields), std::move(rows))) {}

    /// Of an entity that lives no shorter.
    void addVariable(TKelEntity& entity, const std::string& name, eVarType type) {
        made_.push_back(std::make_unique<TKelVariable>(&entity));
        made_.back()->setName(name);
        made_.back()->setType(type);
    }
    const std::vector<TKelVariable*> variables() override {
        std::vector<TKelVariable*> result;
        for (const auto& variable : made_)
            result.push_back(variable.get());
        return result;
    }
    TKelDataset* dataset() override { return data_.get(); }

private:
    std::unique_ptr<MadeDataset> data_;
    std::vector<std::unique_ptr<TKelVariable>> made_;
};
