// SPDX-License-Identifier: GPL-3.0-or-later
// Runs a program and prints what its result tables show, as JSON: show_tables DATABASE PROGRAM
#include "engine/TKelConfigImpl.h"
#include "results/tables/TableFactory.h"

#include "TKelDictionary.h"
#include "TKelOutput.h"
#include "TKelSession.h"
#include "kel.h"

#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>
#include <exception>

namespace {

using TextOf = QString (ResultRows::*)(qsizetype row, qsizetype column) const;

QJsonArray texts(const ResultRows& rows, TextOf textOf) {
    QJsonArray result;
    for (qsizetype row = 0; row < rows.size(); ++row) {
        QJsonArray cells;
        for (qsizetype column = 0; column < rows.columns(row); ++column)
            cells += (rows.*textOf)(row, column);
        result += cells;
    }
    return result;
}

QJsonArray isText(const ResultRows& rows) {
    QJsonArray result;
    for (qsizetype column = 0; column < rows.width(); ++column)
        result += rows.isTextColumn(column);
    return result;
}

QJsonObject described(TableBase& table) {
    // As the dataset has them, so that columns of an area list are found by their place.
    TableViewConfig config = table.viewConfig();
    config.thousandSep = TablePreferences().thousandSep;
    config.columnOrder = {columnkeys::variables, columnkeys::total, columnkeys::missing,
                          columnkeys::notApplicable};
    table.applyViewConfig(config);
    return {{"name", table.tableName()},
            {"headers", QJsonArray::fromStringList(table.columnHeaders())},
            {"texts", isText(table.cells())},
            {"cells", texts(table.cells(), &ResultRows::raw)},
            {"shown", texts(table.cells(), &ResultRows::display)},
            {"report", texts(table.reportCells(), &ResultRows::raw)}};
}

QByteArray tablesOf(const QString& database, const QString& program) {
    const auto dictionary = kel::readDictionary(database.toStdString(), nullptr, true);
    const auto session = kel::makeDefaultSession(dictionary);
    session->executeText(program.toStdString(), nullptr);
    QJsonArray tables;
    for (TKelOutput* output : session->outputs()) {
        const auto table =
            makeResultTable({output, {}, TableMetadata(*output, *dictionary, database)});
        tables += described(*table);
    }
    return QJsonDocument(tables).toJson(QJsonDocument::Compact);
}

} // namespace

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (argc != 3) {
        std::fputs("show_tables DATABASE PROGRAM\n", stderr);
        return 2;
    }
    int result = 0;
    kel::init(std::make_shared<TKelConfigImpl>());
    try {
        std::puts(tablesOf(argv[1], QString::fromUtf8(argv[2])).constData());
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "%s\n", fault.what());
        result = 1;
    }
    kel::destroy();
    return result;
}
