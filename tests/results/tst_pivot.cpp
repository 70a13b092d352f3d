// SPDX-License-Identifier: GPL-3.0-or-later
// How the records of a crosstab come into rows and columns, and in what order these stand.
#include "MadeDataset.h"

#include "results/tables/CategoryReader.h"
#include "results/tables/CrossColumns.h"
#include "results/tables/CrossLayout.h"
#include "results/tables/Pivot.h"

#include <QTest>

#include <limits>

namespace {

using Rows = MadeDataset::Rows;

const std::string total = "__tot__";
const std::string missing = "__mv__";
const std::string notApplicable = "__na__";

std::vector<TableCategory> valid(const std::vector<std::string>& codes) {
    std::vector<TableCategory> categories;
    for (const std::string& code : codes)
        categories.push_back({code, "label of " + code, CategoryKind::Valid});
    return categories;
}

QStringList sortedCodes(const std::vector<std::string>& codes) {
    const std::vector<TableCategory> categories = valid(codes);
    QStringList result;
    for (const std::uint32_t number : sortedOrder(categories))
        result += QString::fromStdString(categories[number].code);
    return result;
}

MadeDataset dataset(std::size_t variables, Rows rows) {
    return {std::vector<MadeField>(3 * variables + 1), std::move(rows)};
}

/// The rows as "categories: figures", with "-" for what has no record.
QStringList rowsOf(const Pivot& pivot, MadeDataset& data) {
    QStringList result;
    std::vector<std::uint32_t> records;
    for (std::size_t row = 0; row < pivot.rows(); ++row) {
        QStringList categories;
        for (std::size_t variable = 0; variable < pivot.rowVariables(); ++variable)
            categories += QString::fromStdString(pivot.rowCategory(row, variable).rowText());
        pivot.findRecords(row, records);
        QStringList figures;
        for (const std::uint32_t record : records)
            figures += record == Pivot::none
                           ? QStringLiteral("-")
                           : QString::fromStdString(data.stringValue(record, data.numFields() - 1));
        result += categories.join(" & ") + ": " + figures.join(' ');
    }
    return result;
}

QStringList headings(const std::vector<CrossColumn>& columns) {
    QStringList result;
    for (const CrossColumn& column : columns)
        result += column.heading();
    return result;
}

const std::vector<TableCategory> withMissing{{"0", total, CategoryKind::Total},
                                             {"1", "Male", CategoryKind::Valid},
                                             {"2", "2", CategoryKind::Valid},
                                             {"0", missing, CategoryKind::Missing}};

CellTexts texts(const std::vector<std::vector<std::string>>& rows) {
    CellTexts result;
    for (const auto& row : rows) {
        result.startRow();
        for (const std::string& cell : row)
            result.add(std::string_view(cell));
    }
    return result;
}

QStringList lines(const CellTexts& rows) {
    QStringList result;
    for (qsizetype row = 0; row < rows.rows(); ++row) {
        QStringList cells;
        for (qsizetype column = 0; column < rows.columns(row); ++column)
            cells += QString::fromStdString(std::string(rows.at(row, column)));
        result += cells.join(',');
    }
    return result;
}

} // namespace

class TestPivot : public QObject {
    Q_OBJECT

private slots:
    static void readsTheNumberOfACode();
    static void sortsByNumberThenText();
    static void sortsByKindFirst();
    static void findsRowsInAnyOrderOfRecords();
    static void tellsMarkersFromCategoriesWithTheirCode();
    static void keepsTextsApart();
    static void readsALabelOnce();
    static void arrangesColumns();
    static void addsTheOtherMarker();
    static void tellsGroupsAboveTheirRows();
};

void TestPivot::readsTheNumberOfACode() {
    QCOMPARE(sortingNumber("12"), 12);
    QCOMPARE(sortingNumber("012"), 12);
    QCOMPARE(sortingNumber("-3.75"), -3);
    QCOMPARE(sortingNumber("4294967296.5"), 4294967296);
    QCOMPARE(sortingNumber(" 7 "), 7);
    for (const char* text : {"", "A", "12A", "A.12", "."})
        QCOMPARE(sortingNumber(text), 0);
    QCOMPARE(sortingNumber("99999999999999999999"), std::numeric_limits<std::int64_t>::max());
    QCOMPARE(sortingNumber("-99999999999999999999"), std::numeric_limits<std::int64_t>::min());
}

void TestPivot::sortsByNumberThenText() {
    QCOMPARE(sortedCodes({"10", "9", "3000000001", "3000000000", "-1", "2147483648"}),
             QStringList({"-1", "9", "10", "2147483648", "3000000000", "3000000001"}));
    QCOMPARE(sortedCodes({"B", "1", "1.5", "01", "A", "1.25"}),
             QStringList({"A", "B", "01", "1", "1.25", "1.5"}));
    // Compound codes of areas may be longer than any integer.
    QCOMPARE(sortedCodes({"20010100000000000002", "10010100000000000001", "20010100000000000001"}),
             QStringList({"10010100000000000001", "20010100000000000001", "20010100000000000002"}));
}

void TestPivot::sortsByKindFirst() {
    const std::vector<TableCategory> categories{{"0", notApplicable, CategoryKind::NotApplicable},
                                                {"0", missing, CategoryKind::Missing},
                                                {"-5", "Debt", CategoryKind::Valid},
                                                {"0", "None", CategoryKind::Valid},
                                                {"0", total, CategoryKind::Total}};
    QCOMPARE(sortedOrder(categories), std::vector<std::uint32_t>({4, 2, 3, 1, 0}));
}

/// Stretches of the same row need not lie together.
void TestPivot::findsRowsInAnyOrderOfRecords() {
    MadeDataset data = dataset(3, {{"2", "b", "", "7", "7", "", "2", "Two", "", "272"},
                                   {"1", "a", "", "7", "7", "", "1", "One", "", "171"},
                                   {"2", "b", "", "7", "7", "", "1", "One", "", "271"},
                                   {"1", "a", "", "8", "8", "", "2", "Two", "", "182"},
                                   {"0", total, "tot", "8", "8", "", "1", "One", "", "081"},
                                   {"1", "a", "", "7", "7", "", "2", "Two", "", "172"}});
    const Pivot pivot(&data, 3);
    QCOMPARE(rowsOf(pivot, data), QStringList({"0. __tot__ & 8: 081 -", "1. a & 7: 171 172",
                                               "1. a & 8: - 182", "2. b & 7: 271 272"}));
    QCOMPARE(Pivot(nullptr, 3).rows(), std::size_t(0));
}

void TestPivot::tellsMarkersFromCategoriesWithTheirCode() {
    MadeDataset data = dataset(2, {{"0", "None", "", "0", "Zero", "", "1"},
                                   {"0", "None", "", "0", total, "tot", "2"},
                                   {"0", total, "tot", "0", "Zero", "", "3"},
                                   {"0", total, "tot", "0", total, "tot", "4"},
                                   {"0", missing, "mv", "0", notApplicable, "na", "5"}});
    const Pivot pivot(&data, 2);
    QCOMPARE(rowsOf(pivot, data),
             QStringList({"0. __tot__: 4 3 -", "0. None: 2 1 -", "0. __mv__: - - 5"}));
}

/// What separates codes, labels and keys elsewhere may stand in any of them.
void TestPivot::keepsTextsApart() {
    MadeDataset data = dataset(3, {{"A|B", "x|y", "", "C", "z", "", "1", "m|n", "", "1"},
                                   {"A", "x|y", "", "B|C", "z", "", "1", "m|n", "", "2"}});
    const Pivot pivot(&data, 3);
    QCOMPARE(rowsOf(pivot, data), QStringList({"A. x|y & B|C. z: 2", "A|B. x|y & C. z: 1"}));
    QCOMPARE(pivot.columns().front().columnText(), std::string("1. m|n"));
}

void TestPivot::readsALabelOnce() {
    class Counting : public MadeDataset {
    public:
        using MadeDataset::MadeDataset;
        std::string stringValue(std::int64_t row, int column) override {
            labelsRead += column == 1 ? 1 : 0;
            return MadeDataset::stringValue(row, column);
        }
        int labelsRead = 0;
    };
    const Rows rows{{"1", "a", ""}, {"2", "b", ""}, {"1", "a", ""}, {"3", "c", ""},
                    {"1", "a", ""}, {"2", "b", ""}, {"2", "b", ""}, {"3", "c", ""}};
    Counting data(std::vector<MadeField>(3), rows);
    CategoryReader reader(data, 0);
    std::vector<std::uint32_t> numbers;
    for (std::int64_t record = 0; record < data.recCount(); ++record)
        numbers.push_back(reader.categoryOf(record));
    QCOMPARE(numbers, std::vector<std::uint32_t>({0, 1, 0, 2, 0, 1, 1, 2}));
    QCOMPARE(data.labelsRead, 3);
}

void TestPivot::arrangesColumns() {
    TableViewConfig options;
    QCOMPARE(headings(arrangedColumns(withMissing, options)),
             QStringList({"Total", "1. Male", "2. 2", "MV"}));
    options.columnOrder = {columnkeys::missing, columnkeys::variables, columnkeys::variables,
                           columnkeys::total, QStringLiteral("unknown")};
    QCOMPARE(headings(arrangedColumns(withMissing, options)),
             QStringList({"MV", "1. Male", "2. 2", "Total"}));
    options.columnOrder = QStringList{columnkeys::variables};
    QCOMPARE(headings(arrangedColumns(withMissing, options)), QStringList({"1. Male", "2. 2"}));
    options.columnOrder.clear();
    options.hideMv = true;
    options.hideTotal = true;
    QCOMPARE(headings(arrangedColumns(withMissing, options)), QStringList({"1. Male", "2. 2"}));
}

void TestPivot::addsTheOtherMarker() {
    TableViewConfig options;
    QCOMPARE(headings(crossColumns(withMissing, options)),
             QStringList({"Total", "1. Male", "2. 2", "MV", "NA"}));
    auto withNotApplicable = withMissing;
    withNotApplicable.back() = {"0", notApplicable, CategoryKind::NotApplicable};
    const auto columns = crossColumns(withNotApplicable, options);
    QCOMPARE(headings(columns), QStringList({"Total", "1. Male", "2. 2", "MV", "NA"}));
    QCOMPARE(columns[3].number, Pivot::none);
    QCOMPARE(columns[4].number, 3U);
    options.hideMv = true;
    QCOMPARE(headings(crossColumns(withMissing, options)),
             QStringList({"Total", "1. Male", "2. 2", "NA"}));
    const std::vector<TableCategory> plain(withMissing.begin(), withMissing.end() - 1);
    QCOMPARE(headings(crossColumns(plain, {})), QStringList({"Total", "1. Male", "2. 2"}));
}

void TestPivot::tellsGroupsAboveTheirRows() {
    const CellTexts rows = texts({{"A", "x", "1", "5"},
                                  {"A", "x", "2", "6"},
                                  {"A", "y", "1", "7"},
                                  {"B", "y", "1", "8"},
                                  {"B", "", "2", "9"}});
    // The y under B is another one than that under A.
    QCOMPARE(lines(groupedRows(rows, 2)), QStringList({"A,,,", ",x,,", ",,1,5", ",,2,6", ",y,,",
                                                       ",,1,7", "B,,,", ",y,,", ",,1,8", ",,2,9"}));
    QCOMPARE(lines(groupedRows(rows, 1)),
             QStringList({"A,,,", ",x,1,5", ",x,2,6", ",y,1,7", "B,,,", ",y,1,8", ",,2,9"}));
}

QTEST_GUILESS_MAIN(TestPivot)
#include "tst_pivot.moc"
