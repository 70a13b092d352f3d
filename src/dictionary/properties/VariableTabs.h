// SPDX-License-Identifier: GPL-3.0-or-later
// The pages of the dialog about a variable.
// What belongs to the stored data is shown only: another type or size would misread them.
#pragma once

#include "dictionary/properties/BaseTab.h"
#include "dictionary/properties/VariableDraft.h"

class TKpVariable;
class VariableDetails;

/// Label, alias, group, tag and mark.
class GeneralVariablelTab : public BaseTab {
    Q_OBJECT

public:
    explicit GeneralVariablelTab(VariableDraft& draft, QWidget* parent = nullptr);
    QString title() const override { return tr("General"); }
};

/// Type, size and special codes.
class TecnicalVariableTab : public BaseTab {
    Q_OBJECT

public:
    explicit TecnicalVariableTab(const TKpVariable& variable, QWidget* parent = nullptr);
    QString title() const override { return tr("Thecnical specification"); }
};

/// Where the values are stored; the file can be chosen anew.
class DataSourceVariableTab : public BaseTab {
    Q_OBJECT

public:
    explicit DataSourceVariableTab(const TKpVariable& variable, QWidget* parent = nullptr);
    QString title() const override { return tr("Data Source"); }
    QString path() const; ///< of the data file, as chosen now

private:
    VariableDetails* details_;
};

/// Serves entities as well.
class DocumentationVariableTab : public BaseTab {
    Q_OBJECT

public:
    explicit DocumentationVariableTab(QString& documentation, QWidget* parent = nullptr);
    QString title() const override { return tr("Documentation"); }
};
