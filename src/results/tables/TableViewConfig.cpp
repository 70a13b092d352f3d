// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/TableViewConfig.h"

#include "results/tables/StyleFile.h"

#include <QDebug>
#include <QJsonObject>

namespace {

QJsonValue valueOf(const QJsonObject& object, const char* key) {
    return object.value(QLatin1String(key));
}

/// Stays as it is where the file has nothing of the kind.
void readFlag(const QJsonObject& object, const char* key, bool& flag) {
    flag = valueOf(object, key).toBool(flag);
}

/// A key that says what shows, for a flag that says what hides, or the other way round.
void readInverse(const QJsonObject& object, const char* key, bool& flag) {
    flag = !valueOf(object, key).toBool(!flag);
}

void readFigures(const QJsonObject& object, TableViewConfig& config) {
    config.decimals = stylevalues::decimals(valueOf(object, "decimals"), config.decimals);
    config.thousandSep = stylevalues::separator(valueOf(object, "thousandSep"), config.thousandSep);
}

int rowsOrderOf(const QString& word) {
    if (word == QLatin1String("ascending"))
        return TableViewConfig::Ascending;
    return word == QLatin1String("descending") ? TableViewConfig::Descending
                                               : TableViewConfig::Default;
}

/// As a word, or as the number that it stands for.
void readRowsOrder(const QJsonObject& object, TableViewConfig& config) {
    const QJsonValue value = valueOf(object, "rowsOrder");
    const int number = value.toInt(TableViewConfig::Default);
    if (value.isString())
        config.rowsOrder = rowsOrderOf(value.toString());
    else if (number >= TableViewConfig::Default && number <= TableViewConfig::Descending)
        config.rowsOrder = number;
}

void readOneVariable(const QJsonObject& section, TableViewConfig& config) {
    readFlag(section, "showPercent", config.showPercent);
    readFlag(section, "showCumulPercent", config.showCumulPercent);
    readInverse(section, "showTotal", config.hideTotal);
    readFlag(section, "showNa", config.showNaOneVariable);
    readFlag(section, "showMv", config.showMvOneVariable);
    config.rowsOrder = rowsOrderOf(valueOf(section, "rowsOrder").toString());
}

void readSeveralVariables(const QJsonObject& section, TableViewConfig& config) {
    readFlag(section, "showNa", config.showNaSeveralVariables);
    readFlag(section, "showMv", config.showMvSeveralVariables);
    config.threeVarLayout = valueOf(section, "threeVarLayout").toString(config.threeVarLayout);
}

void readSections(const QJsonObject& object, TableViewConfig& config) {
    const QJsonObject one = valueOf(object, "frequency1Var").toObject();
    readFigures(valueOf(object, "general").toObject(), config);
    readOneVariable(one, config);
    if (object.contains(QLatin1String("frequencyMultiVar"))) {
        readSeveralVariables(valueOf(object, "frequencyMultiVar").toObject(), config);
    } else {
        readFlag(one, "showNa", config.showNaSeveralVariables);
        readFlag(one, "showMv", config.showMvSeveralVariables);
    }
}

void readFlat(const QJsonObject& object, TableViewConfig& config) {
    readFlag(object, "hideNa", config.hideNa);
    readFlag(object, "hideMv", config.hideMv);
    readFlag(object, "hideTotal", config.hideTotal);
    readFlag(object, "showTotalsRow", config.showTotalsRow);
    readInverse(object, "hideNa", config.showNaOneVariable);
    readInverse(object, "hideNa", config.showNaSeveralVariables);
    readInverse(object, "hideMv", config.showMvOneVariable);
    readInverse(object, "hideMv", config.showMvSeveralVariables);
    readFlag(object, "showPercent", config.showPercent);
    readFlag(object, "showCumulPercent", config.showCumulPercent);
    readFigures(object, config);
    readRowsOrder(object, config);
}

} // namespace

TableViewConfig::TableViewConfig(const TablePreferences& preferences)
    : decimals(preferences.decimals), thousandSep(preferences.thousandSep) {}

TableViewConfig::TableViewConfig(const QString& path, const TablePreferences& preferences)
    : TableViewConfig(preferences) {
    const StyleFile file = StyleFile::read(path);
    if (file.state == StyleFile::State::NotOpened)
        qWarning() << "TableViewConfig: cannot open style file:" << path;
    else if (file.state == StyleFile::State::NotParsed)
        qWarning() << "TableViewConfig: JSON parse error in" << path << ":" << file.fault;
    else if (file.isSectioned())
        readSections(file.object, *this);
    else
        readFlat(file.object, *this);
}
