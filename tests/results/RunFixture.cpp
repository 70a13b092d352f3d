// SPDX-License-Identifier: GPL-3.0-or-later
#include "RunFixture.h"

#include "engine/TKelConfigImpl.h"
#include "kel.h"
#include "results/tables/TableFactory.h"
#include "support/SmallDatabase.h"

RunFixture::RunFixture() {
    kel::init(std::make_shared<TKelConfigImpl>());
    writeSmallDatabase(folder_.path());
    dictionary_ = kel::readDictionary(path().toStdString(), nullptr, true);
}

RunFixture::~RunFixture() {
    session_.reset();
    dictionary_.reset();
    kel::destroy();
}

std::vector<TKelOutput*> RunFixture::run(const QString& program) {
    session_ = kel::makeDefaultSession(dictionary_);
    const QString head = program.startsWith(QLatin1String("RUNDEF"))
                             ? QString()
                             : QStringLiteral("RUNDEF r NOWEIGHT\n");
    session_->executeText((head + program).toStdString(), nullptr);
    return session_->outputs();
}

TableMetadata RunFixture::metadata(TKelOutput& output) const {
    return {output, *dictionary_, path()};
}

std::unique_ptr<TableBase> RunFixture::table(const QString& program,
                                             const TablePreferences& preferences) {
    TKelOutput& output = *run(program).back();
    return makeResultTable({&output, preferences, metadata(output)});
}

std::unique_ptr<TableBase> RunFixture::table(const QString& program) {
    return table(program, {});
}

QStringList RunFixture::displays(const ResultRows& rows, QChar separator) {
    QStringList texts;
    for (qsizetype row = 0; row < rows.size(); ++row) {
        QStringList cells;
        for (qsizetype column = 0; column < rows.columns(row); ++column)
            cells += rows.display(row, column);
        texts += cells.join(separator);
    }
    return texts;
}

QStringList RunFixture::raws(const CellTexts& texts) {
    return raws(ResultRows(std::make_shared<const CellTexts>(texts), {}, {}));
}

QStringList RunFixture::raws(const ResultRows& rows) {
    QStringList texts;
    for (qsizetype row = 0; row < rows.size(); ++row) {
        QStringList cells;
        for (qsizetype column = 0; column < rows.columns(row); ++column)
            cells += rows.raw(row, column);
        texts += cells.join('|');
    }
    return texts;
}

QStringList RunFixture::header(const QList<QStringList>& texts,
                               const QList<QList<std::pair<int, int>>>& positions,
                               const QList<QList<std::pair<int, int>>>& spans) {
    QStringList rows;
    for (qsizetype row = 0; row < texts.size(); ++row) {
        QStringList items;
        for (qsizetype i = 0; i < texts[row].size(); ++i) {
            const auto [column, line] = positions[row][i];
            const auto [columns, lines] = spans[row][i];
            items += QStringLiteral("%1@%2,%3+%4x%5")
                         .arg(texts[row][i])
                         .arg(column)
                         .arg(line)
                         .arg(columns)
                         .arg(lines);
        }
        rows += items.join('|');
    }
    return rows;
}
