// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/VariableHeading.h"

#include "TKelDataset.h"
#include "TKelEntity.h"
#include "TKelOutput.h"
#include "TKelVariable.h"

#include <algorithm>

namespace {

QString withLabel(const QString& name, const QString& label) {
    return label.isEmpty() || label == name ? name : name + " (" + label + ")";
}

QString orPath(const std::string& text, const QString& path) {
    return text.empty() ? path : QString::fromStdString(text);
}

} // namespace

QString variablePath(const TKelVariable& variable) {
    const TKelEntity* entity = variable.entity(false);
    QString name = QString::fromStdString(variable.name());
    if (entity == nullptr || entity->name().empty())
        return name;
    return QString::fromStdString(entity->name()) + "." + name;
}

QString variableHeading(const TKelVariable& variable, const QString& preference) {
    QString path = variablePath(variable);
    const QString label = QString::fromStdString(variable.label());
    if (preference == QLatin1String("Name"))
        return path;
    if (preference == QLatin1String("Label"))
        return label.isEmpty() ? path : label;
    if (preference == QLatin1String("Alias"))
        return orPath(variable.alias(), path);
    if (preference == QLatin1String("AliasAndLabel"))
        return withLabel(orPath(variable.alias(), path), label);
    return withLabel(path, label);
}

std::vector<TKelVariable*> spanningVariables(TKelOutput& output) {
    std::vector<TKelVariable*> variables = output.variables();
    const auto dimension = static_cast<std::size_t>(std::max(0, output.dimension()));
    if (variables.size() > dimension)
        variables.erase(variables.begin(),
                        variables.end() - static_cast<std::ptrdiff_t>(dimension));
    return variables;
}

// The words are not translated: charts and maps leave columns out by them.
QString fieldMarker(const TKelField& field) {
    const std::string label = field.label();
    if (label.starts_with("$tot$"))
        return QStringLiteral("Total");
    if (label.starts_with("$mv$"))
        return QStringLiteral("MV");
    return label.starts_with("$na$") ? QStringLiteral("NA") : QString();
}

QString fieldDisplayName(const TKelField& field) {
    QString marker = fieldMarker(field);
    if (!marker.isEmpty() && field.label().ends_with('$'))
        return marker;
    if (!field.name().empty())
        return QString::fromStdString(field.name());
    return field.format().empty() ? QStringLiteral("??????")
                                  : QString::fromStdString(field.format());
}

std::string categoryText(std::string_view code, std::string_view label) {
    std::string text(code);
    if (label.empty() || label == code)
        return text;
    return text.append(". ").append(label);
}
