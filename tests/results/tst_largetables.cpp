// SPDX-License-Identifier: GPL-3.0-or-later
// Crosstabs that would have more cells than can be shown, of a database where each of the persons
// has codes of their own.
#include "catalog/reader.h"
#include "engine/TKelConfigImpl.h"
#include "kel.h"
#include "results/tables/CrossTable.h"
#include "results/tables/TableFrequency.h"
#include "storage/column_writer.h"

#include "TKelOutput.h"

#include <QTemporaryDir>
#include <QTest>

#include <map>

namespace {

using namespace kelx;

constexpr int persons = 8000;

// Codes of a person's A (7 is missing), B (3 is not applicable) and C.
int codeA(int person) {
    return person * 7 % 23;
}
int codeB(int person) {
    return person * person % 11;
}
int codeC(int person) {
    return person / 3 % 13;
}

/// FIRST runs up and SECOND down from one person to the next; SAME is 1.
class LargeDatabase {
public:
    explicit LargeDatabase(const std::filesystem::path& folder) : folder_(folder) {
        dictionary_.name = "LARGE";
        dictionary_.dataFolder = folder;
        dictionary_.file = folder / "large.kxdb";
        dictionary_.root = entity("COUNTRY");
        person_ = dictionary_.root->addChild(entity("PERSON"));
        person_->fileName = "person.kpt";
        storage::PointerWriter pointers(folder / person_->fileName);
        pointers.addParent(persons);
        pointers.commit();
        add("FIRST", [](int person) { return person + 1; });
        add("SECOND", [](int person) { return persons - person; });
        add("SAME", [](int) { return 1; });
        add("A", codeA)->missing = 7;
        add("B", codeB)->notapp = 3;
        add("C", codeC);
        catalog::saveDictionary(dictionary_, dictionary_.file);
    }

private:
    std::unique_ptr<catalog::Entity> entity(const std::string& name) {
        auto result = std::make_unique<catalog::Entity>();
        result->name = name;
        result->dictionary = &dictionary_;
        return result;
    }
    template <class Value>
    catalog::Variable* add(const std::string& name, const Value& value) {
        storage::ColumnPlan plan;
        plan.type = storage::ValueType::Integer;
        auto variable = std::make_unique<catalog::Variable>();
        variable->name = name;
        variable->type = plan.type;
        variable->size = 5;
        variable->fileName = name + ".kbf";
        const auto column = storage::ColumnWriter::create(folder_ / variable->fileName, plan);
        for (int person = 0; person < persons; ++person)
            column->addInteger(value(person));
        column->commit();
        return person_->addVariable(std::move(variable));
    }

    std::filesystem::path folder_;
    catalog::Dictionary dictionary_;
    catalog::Entity* person_ = nullptr;
};

/// The number of persons with each code and in each total, by "A,B,C" as they are shown.
std::map<QString, int> countedPersons() {
    const auto shown = [](const QString& valid) {
        return valid == "MV" || valid == "NA" ? QStringList{valid}
                                              : QStringList{valid, QStringLiteral("Total")};
    };
    std::map<QString, int> counts;
    for (int person = 0; person < persons; ++person) {
        const QString a = codeA(person) == 7 ? "MV" : QString::number(codeA(person));
        const QString b = codeB(person) == 3 ? "NA" : QString::number(codeB(person));
        const QString c = QStringLiteral("%1. %1").arg(codeC(person));
        for (const QString& ofA : shown(a))
            for (const QString& ofB : shown(b))
                for (const QString& ofC : shown(c))
                    ++counts[ofA + "," + ofB + "," + ofC];
    }
    return counts;
}

} // namespace

class TestLargeTables : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    std::shared_ptr<TKelDictionary> dictionary_;
    std::shared_ptr<TKelSession> session_;

    std::unique_ptr<TableBase> table(const std::string& program) {
        session_ = kel::makeDefaultSession(dictionary_);
        session_->executeText(program, nullptr);
        return std::make_unique<TableFrequency>(TableSource{session_->outputs().back(), {}, {}});
    }

private slots:
    void initTestCase();
    void cleanupTestCase();
    void agreesWithACountOfThePersons();
    void agreesWithTheMatrix();
    void tellsWhyATableIsNotShown();
    void showsASparseTableThatFits();
    void showsTheUsualLayoutForATooLargeMatrix();
};

void TestLargeTables::initTestCase() {
    const LargeDatabase database{std::filesystem::path(folder_.path().toStdString())};
    kel::init(std::make_shared<TKelConfigImpl>());
    dictionary_ = kel::readDictionary(folder_.filePath("large.kxdb").toStdString(), nullptr, true);
}

void TestLargeTables::cleanupTestCase() {
    session_.reset();
    dictionary_.reset();
    kel::destroy();
}

void TestLargeTables::agreesWithACountOfThePersons() {
    const auto made = table("FREQ PERSON.A BY PERSON.B BY PERSON.C");
    std::map<QString, int> counts;
    for (qsizetype row = 0; row < made->cells().size(); ++row)
        for (int column = 2; column < made->columnHeaders().size(); ++column)
            if (!made->cells().raw(row, column).isEmpty())
                counts[made->cells().display(row, 0) + "," + made->cells().display(row, 1) + "," +
                       made->columnHeaders()[column]] = made->cells().raw(row, column).toInt();
    QVERIFY(counts == countedPersons());
}

/// "A / C" in the columns, B in the rows.
void TestLargeTables::agreesWithTheMatrix() {
    const auto made = table("FREQ PERSON.A BY PERSON.B BY PERSON.C");
    TableViewConfig config;
    config.threeVarLayout = "matrixByFirstVar";
    made->applyViewConfig(config);
    std::map<QString, int> counts;
    for (qsizetype row = 0; row < made->cells().size(); ++row)
        for (int column = 1; column < made->columnHeaders().size(); ++column) {
            const QStringList heading = made->columnHeaders()[column].split(" / ");
            const QString block = heading[0].section(". ", 0, 0);
            if (!made->cells().raw(row, column).isEmpty())
                counts[block + "," + made->cells().display(row, 0) + "," + heading[1]] =
                    made->cells().raw(row, column).toInt();
        }
    QVERIFY(counts == countedPersons());
}

/// 8001 by 8001 and the row headings are 64 million cells.
void TestLargeTables::tellsWhyATableIsNotShown() {
    const auto made = table("FREQ PERSON.FIRST BY PERSON.SECOND");
    QVERIFY(made->cells().isEmpty());
    QVERIFY(made->reportCells().isEmpty());
    QCOMPARE(made->columnHeaders().size(), 8002);
    QCOMPARE(made->headerTexts().last().last(), "8000. 8000");
    QVERIFY2(made->layoutNote().contains("8,001 rows and 8,002 columns"),
             qPrintable(made->layoutNote()));
    // Without the columns of the variable it fits.
    made->setColumnOrder({columnkeys::total});
    made->rebuild();
    QVERIFY(made->layoutNote().isEmpty());
    QCOMPARE(made->cells().size(), 8001);
    QCOMPARE(made->cells().raw(0, 1), "8000");
}

void TestLargeTables::showsASparseTableThatFits() {
    const auto made = table("FREQ PERSON.FIRST BY PERSON.SECOND BY PERSON.SAME");
    // Each of both by itself, their pairs, and the total of all.
    QCOMPARE(made->cells().size(), 3 * persons + 1);
    QCOMPARE(made->cells().width(), 4);
    const auto row = made->cells()[persons + 1];
    QCOMPARE(QStringList({row.display(0), row.display(1), row.display(2), row.display(3)}),
             QStringList({"1", "Total", "1", "1"}));
}

void TestLargeTables::showsTheUsualLayoutForATooLargeMatrix() {
    const auto made = table("FREQ PERSON.FIRST BY PERSON.SECOND BY PERSON.SAME");
    TableViewConfig config;
    config.threeVarLayout = "matrixByFirstVar";
    made->applyViewConfig(config);
    QCOMPARE(made->headerTexts().size(), 2);
    QCOMPARE(made->cells().size(), 3 * persons + 1);
    QVERIFY(made->layoutNote().isEmpty());
}

QTEST_GUILESS_MAIN(TestLargeTables)
#include "tst_largetables.moc"
