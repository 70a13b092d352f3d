// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/OutputModel.h"

#include "TKelDataset.h"
#include "TKelOutput.h"
#include "TKelSession.h"
#include "TKelVariable.h"

#include <QLocale>

#include <algorithm>
#include <limits>

namespace {

constexpr int fieldsOfDimension = 3;  ///< code, label, kind
constexpr int columnsOfDimension = 2; ///< code and label
constexpr int usualDecimals = 2;

QString text(const std::string& words) {
    return QString::fromStdString(words);
}

/// The dimensions stand as code, label and kind.
bool hasTriples(const TKelOutput& output) {
    const bool table =
        output.type() == eOutputType::TABLE &&
        (output.method() == eTableMethod::FREQUENCY || output.method() == eTableMethod::AVERAGE);
    return output.dimension() > 0 &&
           (table || (output.type() == eOutputType::TABOP && output.dimension() > 1));
}

QString markerName(const QString& marker) {
    if (marker == QLatin1String("tot") || marker == QLatin1String("$tot$"))
        return OutputModel::tr("Total");
    if (marker == QLatin1String("mv") || marker == QLatin1String("$mv$"))
        return OutputModel::tr("Missing");
    if (marker == QLatin1String("na") || marker == QLatin1String("$na$"))
        return OutputModel::tr("Not applicable");
    return {};
}

} // namespace

QString selectedAreas(TKelSession& session) {
    const auto definition = session.runDefinition();
    return definition ? text(definition->selection()->label()) : QString();
}

QString OutputTable::name() const {
    return text(output->name());
}

QString OutputTable::title() const {
    const QString words = text(output->options().title.value_or(""));
    return words.isEmpty() ? name() : name() + " – " + words;
}

QString OutputTable::note() const {
    QStringList parts;
    const QString areas = selectedAreas(*session);
    if (!areas.isEmpty())
        parts += OutputModel::tr("Areas: %1").arg(areas);
    const TKelOutputConfig& options = output->options();
    if (options.weightVariable)
        parts += OutputModel::tr("Weight: %1").arg(text(*options.weightVariable));
    if (options.filter)
        parts += OutputModel::tr("Filter: %1").arg(text(*options.filter));
    if (output->suppressed() > 0)
        parts += OutputModel::tr("%n cell(s) hidden to protect persons", nullptr,
                                 static_cast<int>(output->suppressed()));
    return parts.join('\n');
}

void OutputModel::setTable(const OutputTable& table) {
    beginResetModel();
    table_ = table;
    columns_.clear();
    data_ = table.output != nullptr ? table.output->dataset() : nullptr;
    decimals_ = data_ != nullptr ? table.output->options().decimals.value_or(usualDecimals) : 0;
    if (data_ != nullptr) {
        int field = 0;
        if (hasTriples(*table.output)) {
            const auto variables = table.output->variables();
            const auto dimensions = static_cast<std::size_t>(table.output->dimension());
            // The measured variable stands before those that span the table.
            for (std::size_t i = variables.size() - dimensions; i < variables.size(); ++i)
                addDimension(text(variables[i]->name()));
            field = fieldsOfDimension * table.output->dimension();
        }
        for (; field < data_->numFields(); ++field)
            addField(field);
    }
    endResetModel();
}

void OutputModel::addDimension(const QString& heading) {
    const int code = fieldsOfDimension * static_cast<int>(columns_.size()) / columnsOfDimension;
    columns_ += Column{code, code + 2, true, true, true, heading};
    columns_ += Column{code + 1, code + 2, false, true, true, tr("Label")};
}

void OutputModel::addField(int field) {
    const auto told = data_->field(field);
    const QString label = text(told->label());
    const QString marker = markerName(label);
    const QString own = label.isEmpty() ? text(told->name()) : label;
    std::pair<double, double> range;
    data_->range(range, field);
    const bool isText = range.first == 0 && range.second == 0;
    // Those of variables bear their names; a code or a year is no figure to group.
    const bool isStored = table_.output->type() == eOutputType::AREALIST &&
                          QString::fromStdString(told->name()).contains(u'.');
    columns_ += Column{field, -1, false, isText, isStored, marker.isEmpty() ? own : marker};
}

int OutputModel::rowCount(const QModelIndex& parent) const {
    if (parent.isValid() || data_ == nullptr)
        return 0;
    return static_cast<int>(
        std::min<std::int64_t>(data_->recCount(), std::numeric_limits<int>::max()));
}

int OutputModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QString OutputModel::cell(int row, const Column& column) const {
    if (column.kindField >= 0) {
        const QString kind = text(data_->stringValue(row, column.kindField));
        if (!kind.isEmpty())
            return column.isCode ? QString() : markerName(kind);
    }
    return text(data_->stringValue(row, column.field));
}

QString OutputModel::shown(const QString& figure, bool isStored) const {
    bool isNumber = false;
    const double number = figure.toDouble(&isNumber);
    if (!isNumber || isStored)
        return figure;
    return QLocale().toString(number, 'f', figure.contains(u'.') ? decimals_ : 0);
}

QVariant OutputModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const Column& column = columns_[index.column()];
    if (role == Qt::DisplayRole)
        return column.isText ? cell(index.row(), column)
                             : shown(cell(index.row(), column), column.isStored);
    if (role == Qt::EditRole || role == Qt::ToolTipRole)
        return cell(index.row(), column);
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignVCenter | (column.isText ? Qt::AlignLeft : Qt::AlignRight));
    return {};
}

QVariant OutputModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::DisplayRole)
        return columns_.value(section).heading;
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignVCenter |
                   (columns_.value(section).isText ? Qt::AlignLeft : Qt::AlignRight));
    return {};
}
