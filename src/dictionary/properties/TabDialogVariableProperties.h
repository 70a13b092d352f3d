// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog about a variable, for whoever wants more than the dock beside the dictionary.
#pragma once

#include "dictionary/properties/AppProperties.h"
#include "dictionary/properties/VariableDraft.h"

#include <memory>

class DataSourceVariableTab;
class TKpEntity;
class TKpVariable;

class TabDialogVariableProperties : public AppProperties {
    Q_OBJECT

public:
    /// The variable is one of the tree.
    TabDialogVariableProperties(std::shared_ptr<TKpEntity> root, TKpVariable& variable,
                                QWidget* parent = nullptr);

signals:
    void variablechanged(bool value); ///< the dictionary was changed

protected:
    bool isModified() const override;
    QString question() const override;
    bool store() override;

private:
    std::shared_ptr<TKpEntity> root_; ///< keeps the variable alive
    TKpVariable& variable_;
    VariableDraft stored_;
    VariableDraft pending_;
    DataSourceVariableTab* source_;
};
