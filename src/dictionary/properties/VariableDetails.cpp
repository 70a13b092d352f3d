// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/VariableDetails.h"

#include "dictionary/mirror/TKpVariable.h"

VariableDetails::VariableDetails(const TKpVariable& variable, QWidget* parent)
    : DataFileForm(parent) {
    setPath(variable.path);
}
