// SPDX-License-Identifier: GPL-3.0-or-later
// What variables, fields and categories are called in a result table.
#pragma once

#include <QString>

#include <string>
#include <string_view>
#include <vector>

class TKelField;
class TKelOutput;
class TKelVariable;

/// ENTITY.VARIABLE; the name alone where there is no entity.
QString variablePath(const TKelVariable& variable);
/// By the preference's word, see TablePreferences. What has no label or alias goes by its path.
QString variableHeading(const TKelVariable& variable, const QString& preference);
/// Those whose categories make the rows and columns: without a measured variable before them.
std::vector<TKelVariable*> spanningVariables(TKelOutput& output);

/// "Total", "MV", "NA" of a field labelled "$tot$", "$mv$", "$na$", or so with the name of one of
/// several figures behind it; empty for others.
QString fieldMarker(const TKelField& field);
/// The marker where that is all its label says, else its name, else its group.
QString fieldDisplayName(const TKelField& field);

/// "1. Male"; the code alone where the label is the same or there is none.
std::string categoryText(std::string_view code, std::string_view label);
