// SPDX-License-Identifier: GPL-3.0-or-later
// What the quick view tells about a variable: a copy, so that it may outlive the dictionary.
#pragma once

#include "dictionary/mirror/ValueLabelElement.h"
#include "dictionary/properties/TechnicalFacts.h"

#include <QList>
#include <QString>

class TKpVariable;

struct VariableInfo {
    QString fullName; ///< ENTITY.VARIABLE
    QString label;
    QString alias;
    QString group;
    QString tag; ///< empty where it is not set
    TechnicalFacts technical;
    QList<ValueLabelElement> categories;
    QString documentation; ///< with line breaks

    static VariableInfo of(const TKpVariable& variable);
};
