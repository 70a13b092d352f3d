// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/FrequencyTable.h"

#include "TKelDataset.h"
#include "TKelEntity.h"
#include "TKelOutput.h"
#include "TKelVariable.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

#include <algorithm>

namespace {

enum Field { CodeField, LabelField, KindField, ValueField, FieldCount };

FrequencyRow::Kind kindOf(const std::string& word) {
    if (word == "tot")
        return FrequencyRow::Kind::Total;
    if (word == "mv")
        return FrequencyRow::Kind::Missing;
    return word == "na" ? FrequencyRow::Kind::NotApplicable : FrequencyRow::Kind::Category;
}

FrequencyRow readRow(TKelDataset& data, std::int64_t row) {
    FrequencyRow result;
    result.kind = kindOf(data.stringValue(row, KindField));
    result.count = QString::fromStdString(data.stringValue(row, ValueField));
    if (result.kind == FrequencyRow::Kind::Category) {
        result.code = QString::fromStdString(data.stringValue(row, CodeField));
        result.label = QString::fromStdString(data.stringValue(row, LabelField));
        if (result.label == result.code)
            result.label.clear();
    }
    return result;
}

void addPercents(QList<FrequencyRow>& rows) {
    double total = 0;
    for (const FrequencyRow& row : rows)
        if (row.kind == FrequencyRow::Kind::Total)
            total = row.count.toDouble();
    for (FrequencyRow& row : rows)
        if ((row.kind == FrequencyRow::Kind::Category || row.kind == FrequencyRow::Kind::Total) &&
            total > 0 && !row.count.isEmpty())
            row.percent = 100 * row.count.toDouble() / total;
}

QString countedUnit(const TKelOutput& output, const TKelVariable& variable) {
    const QJsonObject object =
        QJsonDocument::fromJson(QByteArray::fromStdString(output.asJson())).object();
    const QString unit = object.value(QStringLiteral("unit")).toString();
    const TKelEntity* entity = variable.entity(true);
    return unit.isEmpty() && entity != nullptr ? QString::fromStdString(entity->name()) : unit;
}

} // namespace

std::optional<FrequencyTable> FrequencyTable::fromOutput(TKelOutput& output, const QString& areas) {
    TKelDataset* data = output.dataset();
    const auto variables = output.variables();
    if (output.type() != eOutputType::TABLE || output.method() != eTableMethod::FREQUENCY ||
        variables.size() != 1 || data == nullptr || data->numFields() != FieldCount)
        return std::nullopt;
    FrequencyTable table;
    const TKelVariable& variable = *variables.front();
    const TKelEntity* entity = variable.entity(false);
    table.variable_ = QString::fromStdString(
        (entity != nullptr ? entity->name() + '.' : std::string()) + variable.name());
    table.variableLabel_ = QString::fromStdString(variable.label());
    table.unit_ = countedUnit(output, variable);
    table.weight_ = QString::fromStdString(output.options().weightVariable.value_or(""));
    table.filter_ = QString::fromStdString(output.options().filter.value_or(""));
    table.programTitle_ = QString::fromStdString(output.options().title.value_or(""));
    table.areas_ = areas;
    table.decimals_ = output.options().decimals.value_or(2);
    table.suppressed_ = output.suppressed();
    for (std::int64_t row = 0; row < data->recCount(); ++row)
        table.rows_.append(readRow(*data, row));
    addPercents(table.rows_);
    table.fractions_ = std::any_of(table.rows_.begin(), table.rows_.end(),
                                   [](const FrequencyRow& row) { return row.count.contains('.'); });
    return table;
}

QString FrequencyTable::title() const {
    if (!programTitle_.isEmpty())
        return programTitle_;
    return variableLabel_.isEmpty() ? variable_ : variable_ + " – " + variableLabel_;
}

QString FrequencyTable::note() const {
    QStringList parts{tr("Unit of count: %1").arg(unit_)};
    parts += weight_.isEmpty() ? tr("Not weighted") : tr("Weight: %1").arg(weight_);
    if (!areas_.isEmpty())
        parts += tr("Areas: %1").arg(areas_);
    if (!filter_.isEmpty())
        parts += tr("Filter: %1").arg(filter_);
    if (suppressed_ > 0)
        parts += tr("%n cell(s) hidden to protect persons", nullptr, static_cast<int>(suppressed_));
    return parts.join('\n');
}

QString FrequencyTable::labelOf(const FrequencyRow& row) const {
    switch (row.kind) {
    case FrequencyRow::Kind::Total:
        return tr("Total");
    case FrequencyRow::Kind::Missing:
        return tr("Missing");
    case FrequencyRow::Kind::NotApplicable:
        return tr("Not applicable");
    case FrequencyRow::Kind::Category:
        break;
    }
    return row.label;
}

QStringList FrequencyTable::headings() const {
    return {tr("Code"), tr("Label"), weight_.isEmpty() ? tr("Count") : tr("Weighted count"),
            tr("Percent")};
}

QString FrequencyTable::shownCount(const FrequencyRow& row) const {
    return row.count.isEmpty()
               ? QString()
               : QLocale().toString(row.count.toDouble(), 'f', fractions_ ? decimals_ : 0);
}

QString FrequencyTable::shownPercent(const FrequencyRow& row) {
    return row.percent ? QLocale().toString(*row.percent, 'f', 1) : QString();
}

QString FrequencyTable::toText() const {
    QStringList lines{title(), note(), headings().join('\t')};
    for (const FrequencyRow& row : rows_)
        lines += QStringList{row.code, labelOf(row), row.count,
                             row.percent ? QString::number(*row.percent, 'g', 17) : QString()}
                     .join('\t');
    return lines.join('\n') + '\n';
}
