// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/VariableInfo.h"

#include "dictionary/mirror/TKpVariable.h"
#include "dictionary/properties/Documentation.h"
#include "dictionary/properties/TagText.h"

VariableInfo VariableInfo::of(const TKpVariable& variable) {
    VariableInfo info;
    info.fullName = variable.fullName;
    info.label = variable.label;
    info.alias = variable.alias;
    info.group = variable.group;
    info.tag = TagText::of(variable.tag);
    info.technical = TechnicalFacts::of(variable);
    if (variable.valueLabels)
        info.categories = *variable.valueLabels;
    info.documentation = Documentation::shown(variable.documentation);
    return info;
}
