// SPDX-License-Identifier: Apache-2.0
// How long the table of variables takes to answer a user, with one entity of many variables.
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"
#include "dictionary/views/KelVariablesTableView.h"
#include "dictionary/views/VariableDiccionaryModel.h"
#include "dictionary/views/VariablesPane.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QLocale>
#include <QMimeData>
#include <QRandomGenerator>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

namespace {

constexpr int rounds = 9;

QString label(QRandomGenerator& random) {
    static const QStringList words{"age",      "of",    "the",     "person", "household",
                                   "income",   "main",  "year",    "census", "education",
                                   "province", "birth", "dwelling"};
    QString text;
    for (int i = 0; i < 6; ++i)
        text += words[random.bounded(int(words.size()))] + ' ';
    return text + QString::number(random.bounded(10000));
}

std::shared_ptr<TKpEntity> makeEntity(int variables) {
    auto entity = std::make_shared<TKpEntity>(nullptr);
    entity->name = "PERSON";
    QRandomGenerator random(7);
    for (int i = 0; i < variables; ++i) {
        auto* variable = new TKpVariable(static_cast<TKelEntity*>(nullptr));
        variable->name = QStringLiteral("V%1").arg(random.generate() % 1000000, 6, 10, QChar('0'));
        variable->alias = i % 3 == 0 ? "ALIAS" + QString::number(variables - i) : QString();
        variable->group = "GROUP_" + QString::number(random.bounded(40));
        variable->label = label(random);
        variable->tag = random.bounded(10000);
        variable->typeName = "INTEGER";
        variable->entityName = entity->name;
        variable->fullName = entity->name + '.' + variable->name;
        variable->owner = entity.get();
        entity->variables.append(variable);
    }
    return entity;
}

/// The median over the rounds, in milliseconds, with all that is painted in consequence.
void measure(
    const char* what, const std::function<void()>& act, const std::function<void()>& undo = [] {}) {
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round) {
        undo();
        QApplication::processEvents();
        QElapsedTimer timer;
        timer.start();
        act();
        QApplication::processEvents();
        times.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    std::printf("%-28s %8.1f ms, slowest %.1f\n", what, times[rounds / 2], times.back());
}

void measureFilter(VariablesPane& pane) {
    auto* filter = pane.findChild<QLineEdit*>("variableFilter");
    for (const char* typed : {"e", "er", "erso", "v0012", "age|income", "^v.*7$", "[aeiou]{2}\\w"})
        measure(
            qPrintable("filter " + QString(typed)), [&] { filter->setText(QLatin1String(typed)); },
            [&] { filter->clear(); });
    measure(
        "filter cleared", [&] { filter->clear(); }, [&] { filter->setText("erso"); });
}

void measureSort(KelVariablesTableView& table, const std::function<void()>& refill) {
    for (int column = 0; column < VariableDiccionaryModel::ColumnCount; ++column) {
        const QString title = table.model()->headerData(column, Qt::Horizontal).toString();
        measure(
            qPrintable("sort " + title + ", first time"),
            [&] { table.sortByColumn(column, Qt::AscendingOrder); },
            [&] {
                table.sortByColumn(-1, Qt::AscendingOrder);
                refill();
            });
        measure(
            qPrintable("sort " + title + ", the other way"),
            [&] { table.sortByColumn(column, Qt::DescendingOrder); },
            [&] { table.sortByColumn(column, Qt::AscendingOrder); });
    }
}

} // namespace

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QLocale::setDefault(QLocale(QLocale::Spanish)); // whose order costs more than that of bytes
    const int variables = argc > 1 ? std::max(1, std::atoi(argv[1])) : 20000;
    const std::shared_ptr<TKpEntity> entity = makeEntity(variables);
    std::printf("%d variables, median of %d rounds\n", variables, rounds);
    VariablesPane pane;
    pane.resize(900, 700);
    pane.show();
    const auto fill = [&] { pane.setEntity(entity, entity.get()); };
    const auto empty = [&] { pane.setEntity({}, nullptr); };
    measure("show the entity", fill, empty);
    measureFilter(pane);
    KelVariablesTableView& table = *pane.table();
    measureSort(table, [&] {
        empty();
        fill();
    });
    measure(
        "select all", [&] { table.selectAll(); }, [&] { table.clearSelection(); });
    measure(
        "filter with all selected",
        [&] { pane.findChild<QLineEdit*>("variableFilter")->setText("erso"); },
        [&] {
            pane.clearFilter();
            table.selectAll();
        });
    pane.clearFilter();
    table.selectAll();
    measure("begin to drag all",
            [&] { delete table.model()->mimeData(table.selectionModel()->selectedIndexes()); });
    measure("edit a label", [&] {
        const QModelIndex cell =
            table.variableModel()->index(5, VariableDiccionaryModel::LabelColumn);
        table.variableModel()->setData(cell, "x" + cell.data().toString(), Qt::EditRole);
    });
    TKpVariable& first = *entity->variables.first();
    measure("check a name",
            [&] { Validate::check(entity.get(), first, Validate::Field::Alias, "NOT_THERE"); });
    return 0;
}
