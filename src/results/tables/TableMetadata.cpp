// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/TableMetadata.h"

#include "results/tables/FieldColumns.h"
#include "results/tables/VariableHeading.h"

#include "TKelDataset.h"
#include "TKelDictionary.h"
#include "TKelEntity.h"
#include "TKelOutput.h"
#include "TKelSession.h"
#include "TKelVariable.h"

#include <QFileInfo>

#include <algorithm>
#include <limits>

namespace {

struct Kind {
    int number;
    QString name;
};

Kind kindOf(const TKelOutput& output) {
    if (output.type() == eOutputType::TABOP)
        return {tablekind::tabop, QStringLiteral("TABOP")};
    if (output.type() == eOutputType::TABLIST)
        return {tablekind::tablist, QStringLiteral("TABLIST")};
    if (output.type() == eOutputType::AREALIST)
        return {tablekind::areaList, QStringLiteral("AREALIST")};
    switch (output.method()) {
    case eTableMethod::NONE:
        return {tablekind::areaList, QStringLiteral("AREALIST")};
    case eTableMethod::FREQUENCY:
        return {tablekind::frequency, QStringLiteral("FREQUENCY")};
    case eTableMethod::AVERAGE:
        return {tablekind::average, QStringLiteral("AVERAGE")};
    case eTableMethod::MAXIMUM:
        return {tablekind::maximum, QStringLiteral("MAXIMUM")};
    case eTableMethod::MINIMUM:
        return {tablekind::minimum, QStringLiteral("MINIMUM")};
    case eTableMethod::MEDIAN:
        return {tablekind::median, QStringLiteral("MEDIAN")};
    case eTableMethod::SUM:
        return {tablekind::sum, QString::fromStdString(output.methodName())};
    case eTableMethod::STATS:
        return {tablekind::stats, QString::fromStdString(output.methodName())};
    case eTableMethod::GINI:
        return {tablekind::gini, QString::fromStdString(output.methodName())};
    case eTableMethod::QUANTILE:
        return {tablekind::quantile, QString::fromStdString(output.methodName())};
    }
    return {tablekind::frequency, QStringLiteral("UNKNOWN")};
}

QString databaseName(TKelDictionary& dictionary, const QString& path) {
    QString label = QString::fromStdString(dictionary.label());
    if (!label.isEmpty())
        return label;
    return QFileInfo(path.isEmpty() ? QString::fromStdString(dictionary.fileName()) : path)
        .fileName();
}

std::optional<QString> optionalText(const std::optional<std::string>& text) {
    return text ? std::optional(QString::fromStdString(*text)) : std::nullopt;
}

std::optional<TableSort> sortOf(const TKelOutputConfig& options) {
    if (!options.sort)
        return std::nullopt;
    return TableSort{QString::fromStdString(options.sort->variable),
                     options.sort->limit.value_or(-1),
                     options.sort->order == TKelOutputSortConfig::Order::ASCENDING};
}

int countOf(double low, double high) {
    constexpr double most = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(high - low, 0.0, most));
}

/// Of a variable without value labels: how far its codes reach. A measured variable, which comes
/// before those of the columns, has no codes.
int codesOf(TKelDataset* data, qsizetype dimension) {
    constexpr int fieldsOfDimension = 3;
    if (data == nullptr || dimension < 0 || data->recCount() <= 1)
        return 0;
    std::pair<double, double> range;
    data->range(range, static_cast<int>(dimension) * fieldsOfDimension);
    return countOf(range.first, range.second);
}

QList<int> categoryCountsOf(TKelOutput& output, int kind) {
    if (kind == tablekind::areaList)
        return output.type() == eOutputType::AREALIST && output.dataset() != nullptr
                   ? groupSizes(*output.dataset(), 1)
                   : QList<int>();
    const auto variables = output.variables();
    const auto measured = static_cast<qsizetype>(variables.size()) - output.dimension();
    QList<int> counts;
    for (const TKelVariable* variable : variables) {
        const auto labels = static_cast<int>(variable->valueLabels().size());
        counts += labels > 0 ? labels : codesOf(output.dataset(), counts.size() - measured);
    }
    return counts;
}

} // namespace

TableMetadata::TableMetadata(TKelOutput& output, TKelDictionary& dictionary,
                             const QString& databasePath)
    : name(QString::fromStdString(output.name())),
      title(optionalText(output.options().title).value_or(name)),
      database(databaseName(dictionary, databasePath)), kind(kindOf(output).number),
      kindName(kindOf(output).name), filter(optionalText(output.options().filter)),
      sort(sortOf(output.options())), categoryCounts(categoryCountsOf(output, kind)),
      suppressed(output.suppressed()) {
    readRun(output);
    if (kind == tablekind::areaList)
        readEntity(output);
    const TKelOutputConfig& options = output.options();
    constexpr int ofTally = 2;
    (options.weightKind == ofTally ? tally : weight) = optionalText(options.weightVariable);
    for (const TKelVariable* variable : output.variables()) {
        variablePaths += variablePath(*variable);
        variableLabels += QString::fromStdString(variable->label());
    }
}

void TableMetadata::readRun(const TKelOutput& output) {
    const auto run = output.runDefinition();
    area = QString::fromStdString(run->selection()->label());
    universalFilter = optionalText(run->universalFilter());
}

void TableMetadata::readEntity(TKelOutput& output) {
    if (const TKelEntity* entity = output.entity()) {
        entityLabel = QString::fromStdString(entity->label());
        entityName = QString::fromStdString(entity->name());
    }
    key = QStringLiteral("KELCODE");
}

QString TableMetadata::variableTitle(qsizetype index) const {
    const QString label = variableLabels.value(index);
    return label.isEmpty() ? variablePaths.value(index) : label;
}

QString TableMetadata::geographicArea() const {
    return area.isEmpty() ? tr("All Database") : area;
}

QString TableMetadata::suppressedNote() const {
    if (suppressed <= 0)
        return {};
    constexpr qint64 most = std::numeric_limits<int>::max();
    return tr("%n cell(s) hidden to protect persons", nullptr,
              static_cast<int>(std::min(suppressed, most)));
}
