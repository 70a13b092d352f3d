// SPDX-License-Identifier: GPL-3.0-or-later
// What is told of an output beside its figures, and the class of table that it gets.
#include "RunFixture.h"
#include "boundary/output_data.h"
#include "boundary/state.h"
#include "kel.h"
#include "results/tables/Table.h"
#include "results/tables/TableArealist.h"
#include "results/tables/TableAverage.h"
#include "results/tables/TableFrequency.h"
#include "results/tables/TableTablist.h"

#include <QTest>
#include <QTranslator>

#include <optional>
#include <typeinfo>

namespace {

/// Puts what it is asked for in brackets.
class WordsTranslator : public QTranslator {
public:
    QString translate(const char* /*context*/, const char* text, const char* /*comment*/,
                      int /*n*/) const override {
        return QStringLiteral("<%1>").arg(QLatin1String(text));
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class TestTableMetadata : public QObject {
    Q_OBJECT

    std::optional<RunFixture> run_;

    TableMetadata of(const QString& program) { return run_->metadata(*run_->run(program).back()); }

private slots:
    void init() { run_.emplace(); }
    void cleanup() { run_.reset(); }

    void sortsOutputsIntoKinds_data() {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QString>("kindName");
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("type");
        QTest::addColumn<int>("tableKind");
        const QString tables = "TABLE A AS FREQ PERSON.SEX\nTABLE B AS FREQ PERSON.SEX\n";
        const QString crosses = "TABLE A AS FREQ PERSON.SEX BY HOUSEHOLD.ROOMS\n";
        const auto row = [](const QString& program, const char* kindName, int kind,
                            const std::type_info& type, std::optional<int> tableKind = {}) {
            QTest::newRow(qPrintable(program.section('\n', -1)))
                << program << QString(kindName) << kind << QString(type.name())
                << tableKind.value_or(kind);
        };
        row("FREQ PERSON.SEX", "FREQUENCY", 0, typeid(TableFrequency));
        row("FREQ PERSON.SEX BY HOUSEHOLD.ROOMS", "FREQUENCY", 0, typeid(TableFrequency));
        row("AVERAGE PERSON.AGE", "AVERAGE", 1, typeid(TableAverage));
        row("MAX PERSON.AGE", "MAXIMUM", 2, typeid(Table));
        row("MIN PERSON.AGE", "MINIMUM", 3, typeid(Table));
        row("MEDIAN PERSON.AGE", "MEDIAN", 4, typeid(Table));
        row("AREALIST DISTRICT, DISTRICT.ZONE", "AREALIST", 5, typeid(TableArealist));
        row("VIEW PERSON, PERSON.AGE", "AREALIST", 5, typeid(TableArealist));
        row("COUNT PERSON", "AREALIST", 5, typeid(Table));
        row(tables + "TABLE C AS TABOP OF A + B", "TABOP", 6, typeid(Table));
        // Charts and dialogs know it as a crosstab, titles and exports by what it is.
        row(crosses + "TABLE C AS TABOP OF A + A", "TABOP", 6, typeid(TableFrequency), 0);
        row(tables + "TABLE C AS TABLIST A, B", "TABLIST", 7, typeid(TableTablist));
        row("SUM PERSON.AGE", "SUM", 8, typeid(Table));
        row("STATS OF PERSON.AGE", "STATS", 9, typeid(Table));
        row("GINI PERSON.AGE", "GINI", 10, typeid(Table));
        row("QUANTILE 4 OF PERSON.AGE", "QUANTILE", 11, typeid(Table));
    }
    void sortsOutputsIntoKinds() {
        QFETCH(QString, program);
        const auto table = run_->table(program);
        QTEST(table->metadata().kindName, "kindName");
        QTEST(table->metadata().kind, "kind");
        const TableBase& made = *table;
        QTEST(QString(typeid(made).name()), "type");
        QTEST(table->kind(), "tableKind");
    }

    void tellsOfAFrequency() {
        const TableMetadata facts = of("RUNDEF r NOWEIGHT FILTER PERSON.AGE > 3\n"
                                       "TABLE T AS FREQ PERSON.SEX FILTER PERSON.AGE < 80 "
                                       "WEIGHT HOUSEHOLD.WEIGHT TITLE \"Men & women\" "
                                       "SORT DESC T 2");
        QCOMPARE(facts.name, "T");
        QCOMPARE(facts.title, "Men & women");
        QCOMPARE(facts.database, "A small country");
        QCOMPARE(facts.geographicArea(), "All Database");
        QCOMPARE(facts.universalFilter, QString("PERSON.AGE > 3"));
        QCOMPARE(facts.filter, QString("PERSON.AGE < 80"));
        QCOMPARE(facts.weight, QString("HOUSEHOLD.WEIGHT"));
        QVERIFY(!facts.tally);
        QVERIFY(facts.sort);
        QVERIFY(!facts.sort->ascending);
        QCOMPARE(facts.sort->limit, 2);
        QCOMPARE(facts.variablePaths, QStringList("PERSON.SEX"));
        QCOMPARE(facts.variableLabels, QStringList("Sex of the person"));
        QVERIFY(!facts.isCrosstab());
        QVERIFY(facts.entityName.isEmpty() && facts.key.isEmpty());
        const auto table = run_->table("FREQ PERSON.SEX TITLE \"Sexes\"");
        QCOMPARE(table->title(), "Sexes");
        QCOMPARE(table->outputName(), "FREQ_1");
        QCOMPARE(table->tableName(), "FREQ_1");
        QCOMPARE(table->database(), "A small country");
        QCOMPARE(table->geographicArea(), "All Database");
        QVERIFY(!table->exportedDirectly());
    }

    void knowsWhatGoesToAFile() {
        const auto table = run_->table("FREQ PERSON.SEX OUTFILE csv \"sexes.csv\" OVERWRITE");
        QVERIFY(table->exportedDirectly());
        QCOMPARE(table->cells().size(), 4);
        QVERIFY(table->asJson().starts_with('{'));
        QVERIFY(table->asJson().find("FREQ_1") != std::string::npos);
    }

    void leavesOutWhatWasNotAsked() {
        const TableMetadata facts = of("FREQ PERSON.SEX BY HOUSEHOLD.ROOMS");
        QCOMPARE(facts.title, "FREQ_1");
        QVERIFY(!facts.filter && !facts.weight && !facts.tally && !facts.universalFilter);
        QVERIFY(!facts.sort);
        QVERIFY(facts.isCrosstab());
        QCOMPARE(facts.suppressed, 0);
        QCOMPARE(facts.suppressedNote(), QString());
    }

    void tellsOfTheRunThatMadeIt() {
        const TableMetadata facts =
            of("RUNDEF r NOWEIGHT SELECTION INLINE DISTRICT \"02\" SELECTIONLABEL The south\n"
               "FREQ PERSON.SEX TALLY HOUSEHOLD.ROOMS");
        QCOMPARE(facts.geographicArea(), "The south");
        QCOMPARE(facts.tally, QString("HOUSEHOLD.ROOMS"));
        QVERIFY(!facts.weight);
        const auto outputs = run_->run("RUNDEF a NOWEIGHT SELECTION INLINE DISTRICT \"02\" "
                                       "SELECTIONLABEL The south\nFREQ PERSON.SEX\n"
                                       "RUNDEF b NOWEIGHT FILTER PERSON.SEX = 1 FILTERLABEL Men\n"
                                       "FREQ PERSON.AGE");
        QCOMPARE(outputs.size(), 2U);
        QCOMPARE(run_->metadata(*outputs[0]).geographicArea(), "The south");
        QVERIFY(!run_->metadata(*outputs[0]).universalFilter);
        QCOMPARE(run_->metadata(*outputs[1]).geographicArea(), "All Database");
        QCOMPARE(run_->metadata(*outputs[1]).universalFilter, QString("Men"));
    }

    void tellsOfAnAreaList() {
        const TableMetadata facts = of("TABLE T1 AS FREQ PERSON.SEX\n"
                                       "AREALIST DISTRICT, DISTRICT.ZONE, T1 SORT DISTRICT.ZONE");
        QCOMPARE(facts.entityName, "DISTRICT");
        QCOMPARE(facts.entityLabel, "District");
        QCOMPARE(facts.key, "KELCODE");
        // The name, the zone, then male, female, total and not stated.
        QCOMPARE(facts.categoryCounts, (QList<int>{1, 1, 4}));
        QCOMPARE(facts.variablePaths,
                 QStringList({"DISTRICT.NAME", "DISTRICT.ZONE", "PERSON.SEX"}));
        QVERIFY(facts.sort && facts.sort->ascending);
        QCOMPARE(facts.sort->limit, -1);
        const TableMetadata count = of("COUNT HOUSEHOLD");
        QCOMPARE(count.entityName, "HOUSEHOLD");
        QVERIFY(count.categoryCounts.isEmpty());
    }

    void countsCategories() {
        // Four labels; rooms reach from 2 to 3 and have none.
        QCOMPARE(of("FREQ PERSON.SEX BY HOUSEHOLD.ROOMS").categoryCounts, (QList<int>{4, 1}));
        QCOMPARE(of("FREQ HOUSEHOLD.ROOMS FILTER HOUSEHOLD.ROOMS = 3").categoryCounts,
                 QList<int>{0});
        // What is measured comes first and has no codes.
        QCOMPARE(of("AVERAGE PERSON.AGE BY HOUSEHOLD.ROOMS").categoryCounts, (QList<int>{0, 1}));
        QCOMPARE(of("MAX PERSON.AGE BY HOUSEHOLD.ROOMS").categoryCounts, (QList<int>{0, 0}));
    }

    void whatIsOfNoKindIsUnknown() {
        TKelOutput& output = *run_->run("FREQ PERSON.SEX").back();
        KelBoundaryAccess::data(output).table.method = 42;
        QCOMPARE(run_->metadata(output).kindName, "UNKNOWN");
        QCOMPARE(run_->metadata(output).kind, tablekind::frequency);
    }

    /// Its words are those of the language when they are asked for.
    void followsTheLanguage() {
        const TableMetadata facts = of("FREQ PERSON.SEX SENSITIVE 3");
        const auto table = run_->table("FREQ PERSON.SEX");
        WordsTranslator translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        QCOMPARE(facts.geographicArea(), "<All Database>");
        QCOMPARE(table->geographicArea(), "<All Database>");
        QCOMPARE(facts.suppressedNote(),
                 QString("<%1 cell(s) hidden to protect persons>").arg(facts.suppressed));
        QCoreApplication::removeTranslator(&translator);
        QCOMPARE(table->geographicArea(), "All Database");
    }

    void namesTheDatabaseByItsFile() {
        const auto outputs = run_->run("FREQ PERSON.SEX");
        const auto unlabelled = TableMetadata(*outputs.front(), run_->dictionary(), run_->path());
        QCOMPARE(unlabelled.database, "A small country");
        TKelDictionary nameless;
        QCOMPARE(TableMetadata(*outputs.front(), nameless, "/data/some.kxdb").database,
                 "some.kxdb");
    }

    void namesVariablesWithoutLabelByTheirPath() {
        const TableMetadata facts =
            of("DEFINE PERSON.OLD AS PERSON.AGE > 40 TYPE INTEGER\nFREQ PERSON.OLD BY PERSON.SEX");
        QCOMPARE(facts.variableTitle(0), "PERSON.OLD");
        QCOMPARE(facts.variableTitle(1), "Sex of the person");
        QCOMPARE(facts.variableTitle(2), QString());
    }

    void tellsHowMuchIsHidden() {
        const TableMetadata facts = of("FREQ PERSON.SEX SENSITIVE 3");
        QVERIFY(facts.suppressed > 0);
        QCOMPARE(facts.suppressedNote(),
                 QString("%1 cell(s) hidden to protect persons").arg(facts.suppressed));
        const auto table = run_->table("FREQ PERSON.SEX SENSITIVE 3");
        QCOMPARE(table->cells().raw(0, 1), QString());
        QCOMPARE(table->cells().raw(0, 2), QString());
    }
};

QTEST_GUILESS_MAIN(TestTableMetadata)
#include "tst_tablemetadata.moc"
