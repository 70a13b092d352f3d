// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/TableBase.h"

#include "results/tables/VariableHeading.h"

#include "TKelOutput.h"

#include <memory>

TableBase::TableBase(TableSource source)
    : source_(std::move(source)), decimals_(source_.preferences.decimals),
      separator_(source_.preferences.thousandSep) {
    Q_ASSERT(source_.output != nullptr);
    config_.decimals = decimals_;
    config_.thousandSep = separator_;
}

TableBase::~TableBase() = default;

TableBase::Built TableBase::build() const {
    Built made;
    made.layout = layOut();
    const auto rowsOf = [&](CellTexts&& texts) {
        ResultRows rows(std::make_shared<const CellTexts>(std::move(texts)), cellFormat(),
                        made.layout.textColumns);
        if (!hasValues())
            rows.setValueless();
        return rows;
    };
    made.cells = rowsOf(std::move(made.layout.cells));
    made.report = made.layout.report ? rowsOf(std::move(*made.layout.report)) : made.cells;
    made.layout.report.reset();
    return made;
}

const TableBase::Built& TableBase::built() const {
    if (!built_)
        built_ = build();
    return *built_;
}

const ResultRows& TableBase::cells() const {
    return built().cells;
}

QList<int> TableBase::columnAlignments() const {
    return built().cells.alignments();
}

QList<quint8> TableBase::totalRows() const {
    return built().cells.totalRows();
}

const ResultRows& TableBase::reportCells() const {
    return built().report;
}

QList<int> TableBase::reportColumnAlignments() const {
    return built().report.alignments();
}

QList<quint8> TableBase::reportTotalRows() const {
    return built().report.totalRows();
}

QStringList TableBase::columnHeaders() const {
    return built().layout.columnHeaders;
}

QStringList TableBase::columnNames() const {
    return built().layout.columnNames;
}

QStringList TableBase::columnLabels() const {
    return built().layout.columnLabels;
}

QList<QStringList> TableBase::headerTexts() const {
    return built().layout.header.texts;
}

QList<QStringList> TableBase::headerColors() const {
    return built().layout.header.colors;
}

QList<QList<std::pair<int, int>>> TableBase::headerSpans() const {
    return built().layout.header.spans;
}

QList<QList<std::pair<int, int>>> TableBase::headerPositions() const {
    return built().layout.header.positions;
}

QString TableBase::layoutNote() const {
    return built().layout.note;
}

QString TableBase::outputName() const {
    return QString::fromStdString(output().name());
}

QString TableBase::title() const {
    return source_.metadata.title;
}

QString TableBase::database() const {
    return source_.metadata.database;
}

QString TableBase::geographicArea() const {
    return source_.metadata.geographicArea();
}

QString TableBase::tableName() const {
    return outputName();
}

std::string TableBase::asJson() const {
    return output().asJson();
}

bool TableBase::exportedDirectly() const {
    return output().options().direct;
}

int TableBase::kind() const {
    return source_.metadata.kind;
}

QString TableBase::dictionaryVariableName() const {
    const std::vector<TKelVariable*> variables = spanningVariables(output());
    return variables.empty() ? QString() : variablePath(*variables.front());
}

int TableBase::rowsOrder() const {
    return config_.rowsOrder;
}

void TableBase::setRowsOrder(int order) {
    config_.rowsOrder = order;
}

QStringList TableBase::columnOrder() const {
    return config_.columnOrder;
}

void TableBase::setColumnOrder(const QStringList& keys) {
    config_.columnOrder = keys;
}

bool TableBase::hideNa() const {
    return config_.hideNa;
}

void TableBase::setHideNa(bool hide) {
    config_.hideNa = hide;
}

bool TableBase::hideMv() const {
    return config_.hideMv;
}

void TableBase::setHideMv(bool hide) {
    config_.hideMv = hide;
}

bool TableBase::hideTotal() const {
    return config_.hideTotal;
}

void TableBase::setHideTotal(bool hide) {
    config_.hideTotal = hide;
}

bool TableBase::showTotalsRow() const {
    return config_.showTotalsRow;
}

void TableBase::setShowTotalsRow(bool show) {
    config_.showTotalsRow = show;
}

void TableBase::headerClicked(int /*column*/) {}

QStringList TableBase::columnGroupLabels() const {
    return config_.columnGroupLabels;
}

void TableBase::rebuild() {
    built_.reset();
}

void TableBase::applyViewConfig(const TableViewConfig& config) {
    config_ = config;
    setHideNa(config.hideNa);
    setHideMv(config.hideMv);
    setHideTotal(config.hideTotal);
    setShowTotalsRow(config.showTotalsRow);
    setRowsOrder(config.rowsOrder);
    setColumnOrder(config.columnOrder);
    rebuild();
}

TableViewConfig TableBase::viewConfig() const {
    return config_;
}

QList<double> TableBase::columnValues(int column) const {
    const ResultRows& rows = cells();
    QList<double> values;
    for (qsizetype row = 0; row < rows.size(); ++row)
        if (column < rows.columns(row))
            values += rows.value(row, column);
    return values;
}

QStringList TableBase::columnDisplays(int column) const {
    const ResultRows& rows = cells();
    QStringList displays;
    for (qsizetype row = 0; row < rows.size(); ++row)
        if (column < rows.columns(row))
            displays += rows.display(row, column);
    return displays;
}

CellFormat TableBase::cellFormat() const {
    return {output().options().decimals.value_or(decimals_), separator_, true};
}

void TableBase::takeFormat(const TableViewConfig& config) {
    decimals_ = config.decimals;
    separator_ = config.thousandSep;
}
