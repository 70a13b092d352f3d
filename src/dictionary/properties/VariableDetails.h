// SPDX-License-Identifier: GPL-3.0-or-later
// The data file of a variable, to be seen and chosen anew. Who shows the form stores the choice.
#pragma once

#include "dictionary/properties/DataFileForm.h"

class TKpVariable;

class VariableDetails : public DataFileForm {
    Q_OBJECT

public:
    explicit VariableDetails(const TKpVariable& variable, QWidget* parent = nullptr);
};
