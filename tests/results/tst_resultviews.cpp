// SPDX-License-Identifier: GPL-3.0-or-later
// What the grid and the report show of result tables, and how they look.
#include "MadeTable.h"
#include "ResultsFixture.h"
#include "app/widgets/ElidedLabel.h"
#include "results/ResultFacts.h"
#include "results/ResultPages.h"
#include "results/ResultTableView.h"
#include "support/Contrast.h"
#include "support/OwnSettings.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QScopeGuard>
#include <QScrollBar>
#include <QStyleOptionViewItem>
#include <QStyledItemDelegate>
#include <QTabWidget>
#include <QTest>
#include <QTextDocumentFragment>

namespace {

/// The option that a delegate paints with.
class OpenDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::initStyleOption;
};

} // namespace

class TestResultViews : public QObject {
    Q_OBJECT

    std::unique_ptr<ResultsFixture> results_;

    QStringList grid() const { return ResultsFixture::rows(results_->grid()); }
    QStringList report() const {
        results_->find<QTabWidget>("tabWidget")->setCurrentIndex(1);
        return ResultsFixture::rows(results_->report());
    }
    /// "label: value", as the user reads them.
    QStringList facts() const {
        auto* form = results_->find<QFormLayout>("formLayout");
        QStringList lines;
        for (int row = 0; row < form->rowCount(); ++row) {
            const auto text = [&](QFormLayout::ItemRole role) {
                return qobject_cast<QLabel*>(form->itemAt(row, role)->widget())->text();
            };
            lines += QTextDocumentFragment::fromHtml(text(QFormLayout::LabelRole)).toPlainText() +
                     ": " + text(QFormLayout::FieldRole);
        }
        return lines;
    }

private slots:
    void initTestCase() { takeOwnSettings(); }
    void init() { results_ = std::make_unique<ResultsFixture>(); }
    void cleanup() { results_.reset(); }

    void frequencyShowsItsFactsAndFigures() {
        results_->run("FREQ PERSON.SEX TITLE \"Who <lives> here\" FILTER PERSON.AGE > 1");
        QCOMPARE(facts(), QStringList({"Title: Who <lives> here", "Database: A small country",
                                       "Weight: HOUSEHOLD.WEIGHT", "Filter: PERSON.AGE > 1",
                                       "FREQUENCY:    of Sex of the person"}));
        QCOMPARE(grid(), QStringList({"PERSON.SEX (Sex of the person)|Count|%|Cumul%",
                                      "1. Male|2.50|26.32|26.32", "2. Female|7|73.68|100",
                                      "Total|9.50|100|", "MV|1||"}));
        // Full precision stands behind each cell.
        QVERIFY(results_->grid()
                    .model()
                    ->index(1, 2)
                    .data(Qt::UserRole)
                    .toString()
                    .startsWith("26.3157"));
        QCOMPARE(results_->grid().model()->index(3, 0).data(Qt::UserRole).toString(), "0. __tot__");
    }

    void reportOpensWithItsFacts() {
        results_->run("FREQ PERSON.SEX BY HOUSEHOLD.ROOMS");
        const QStringList rows = report();
        QStringList head;
        for (const QString& row : rows)
            head += row.left(row.indexOf('|'));
        QCOMPARE(head.mid(0, 12),
                 QStringList({"Title", "  FREQ_1", "Database", "  A small country",
                              "Geographic Area", "  All Database", "Weight", "  HOUSEHOLD.WEIGHT",
                              "Crosstab", "  of Sex of the person", "  by R-label", ""}));
        // 8, the weight, the kind with two variables, two headers and the rows of the grid.
        const int cells = results_->grid().model()->rowCount() - 2;
        QCOMPARE(rows.size(), 8 + 2 + 4 + 2 * 2 + cells);
        QCOMPARE(results_->report().columnSpan(1, 0), results_->report().model()->columnCount());
        QCOMPARE(results_->report().columnWidth(0), 10);
        QCOMPARE(results_->report().rowHeight(14), 30);
        // The table begins one column and a blank row further on.
        QCOMPARE(rows.mid(12, 2 + cells),
                 grid().replaceInStrings(QRegularExpression("^(.*)$"), "|\\1|"));
    }

    void listsTellTheirEntity() {
        results_->run("TABLE T AS FREQUENCY OF PERSON.SEX\nAREALIST DISTRICT, DISTRICT.ZONE, T");
        QVERIFY(facts().contains("Entity: District"));
        QVERIFY(facts().contains("Key: KELCODE"));
        QCOMPARE(grid(), QStringList({"District|N-label|Z-label|T Sex of the person|||",
                                      "DISTRICT.CMPCODE|DISTRICT.NAME|DISTRICT.ZONE|Total|1. Male|"
                                      "2. Female|MV",
                                      "01|North|1|8.50|1.50|7|0", "02|South|1|1|1|0|1"}));
        const QStringList rows = report();
        QVERIFY(rows.contains("Entity" + QString("|").repeated(rows[0].count('|'))));
        QCOMPARE(rows.filter("Key").size(), 0);
    }

    void headersRepeatNoCode() {
        TableLayout layout = madeLayout({"7. 7", "7. Seven", "Total"}, {{"a", "b", "c"}});
        ResultListPage page;
        const MadeTable table(std::move(layout), madeFacts(tablekind::tablist, "TABLIST"));
        page.showTable(table);
        QCOMPARE(ResultsFixture::rows(*page.view()).first(), "7|7. Seven|Total");
        QCOMPARE(ResultsFixture::rows(*page.view(), Qt::UserRole).first(), "7. 7|7. Seven|Total");
    }

    void spansStandOverTheirColumns() {
        ResultListPage page;
        page.showTable(*madeCrosstab());
        QCOMPARE(page.view()->rowSpan(0, 0), 2);
        QCOMPARE(page.view()->columnSpan(0, 1), 3);
        QCOMPARE(page.view()->columnSpan(2, 1), 1);
        QCOMPARE(page.view()->model()->headerData(2, Qt::Vertical).toString(), "1");
        QCOMPARE(page.view()->model()->headerData(1, Qt::Vertical).toString(), "");
        page.showTable(*madeFrequency());
        QCOMPARE(page.view()->rowSpan(0, 0), 1); // nothing of the table before
    }

    void wideHeadingsStandWhereTheyAreSeen() {
        results_->run("FREQ PERSON.SEX BY PERSON.AGE");
        QTableView& grid = results_->grid();
        for (int column = 1; column < grid.model()->columnCount(); ++column)
            grid.setColumnWidth(column, grid.viewport()->width());
        const QModelIndex heading = grid.model()->index(0, 1);
        QCOMPARE(grid.columnSpan(0, 1), grid.model()->columnCount() - 1);
        const auto words = [&] { // counts what is drawn on the heading's ground
            const QRect seen = grid.visualRect(heading) & grid.viewport()->rect();
            const QImage image = grid.viewport()->grab(seen.adjusted(2, 2, -2, -2)).toImage();
            int dark = 0;
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x)
                    dark += qGray(image.pixel(x, y)) < 40 ? 1 : 0;
            return dark;
        };
        QVERIFY(words() > 50);
        grid.horizontalScrollBar()->setValue(grid.horizontalScrollBar()->maximum());
        QVERIFY(words() > 50);
    }

    void textsCanBeReadOnTheirColours_data() {
        QTest::addColumn<QColor>("base");
        QTest::newRow("light") << QColor(Qt::white);
        QTest::newRow("dark") << QColor(0x2b2b2f);
    }

    void textsCanBeReadOnTheirColours() {
        QFETCH(QColor, base);
        QPalette palette;
        palette.setColor(QPalette::Base, base);
        palette.setColor(QPalette::Text, base.lightness() < 128 ? Qt::white : Qt::black);
        ResultListPage list;
        ResultReportPage report;
        for (ResultPage* page : std::initializer_list<ResultPage*>{&list, &report}) {
            page->setPalette(palette);
            page->showTable(*madeCrosstab());
            const QAbstractItemModel& model = *page->view()->model();
            for (int row = 0; row < model.rowCount(); ++row)
                for (int column = 0; column < model.columnCount(); ++column) {
                    QStyleOptionViewItem option;
                    option.palette = palette;
                    OpenDelegate().initStyleOption(&option, model.index(row, column));
                    const QColor ground = option.backgroundBrush.style() == Qt::NoBrush
                                              ? base
                                              : option.backgroundBrush.color();
                    if (!option.text.isEmpty())
                        QVERIFY(contrast(option.palette.color(QPalette::Text), ground) >= 4.5);
                }
        }
        const QAbstractItemModel& model = *report.view()->model();
        const int header = 10;
        QCOMPARE(model.index(header, 1).data(1).toString(), "header");
        QCOMPARE(model.index(header, 1).data(Qt::BackgroundRole).value<QColor>(),
                 QColor("#7B7B7B"));
        QCOMPARE(model.index(header + 2, 1).data(1).toString(), "data");
        QCOMPARE(model.index(header + 2, 1).data(Qt::BackgroundRole).value<QColor>(),
                 QColor(192, 192, 192)); // a row of totals
        QCOMPARE(model.index(header + 3, 1).data(Qt::BackgroundRole).value<QColor>(),
                 QColor(Qt::white));
    }

    void reportIsPaperUnderADarkPalette() {
        const QPalette before = QApplication::palette();
        const auto restore = qScopeGuard([&] { QApplication::setPalette(before); });
        QPalette dark = before;
        dark.setColor(QPalette::Base, Qt::black);
        dark.setColor(QPalette::Text, Qt::white);
        QApplication::setPalette(dark);
        ResultReportPage page;
        page.resize(900, 700);
        page.showTable(*madeFrequency());
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        const QWidget* area = page.view()->viewport();
        const QImage shown = page.view()->viewport()->grab().toImage();
        QCOMPARE(shown.pixelColor(area->width() - 3, 3), QColor(Qt::white));
        QCOMPARE(shown.pixelColor(3, area->height() - 3), QColor(Qt::white));
    }

    void outerLinesOfTheReportStay_data() {
        QTest::addColumn<bool>("selected");
        QTest::newRow("plain") << false;
        QTest::newRow("selected") << true;
    }

    void outerLinesOfTheReportStay() {
        QFETCH(bool, selected);
        ResultReportPage page;
        page.resize(900, 900);
        page.showTable(*madeCrosstab());
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        ResultTableView& view = *page.view();
        if (selected)
            view.selectAll();
        const QAbstractItemModel& model = *view.model();
        const auto framed = [&](int row, int column) {
            return model.index(row, column).data(1).toString();
        };
        int top = 0;
        while (framed(top, 1).isEmpty())
            ++top;
        int bottom = top;
        while (!framed(bottom + 1, 1).isEmpty())
            ++bottom;
        const int last = model.columnCount() - 2;
        QVERIFY(framed(bottom, last + 1).isEmpty());
        const QRect table(view.visualRect(model.index(top, 1)).topLeft(),
                          view.visualRect(model.index(bottom, last)).bottomRight());
        QImage image = view.viewport()->grab().toImage();
        const auto isBlack = [&](int x, int y) { return image.pixelColor(x, y) == Qt::black; };
        const auto linesStand = [&] {
            for (int y = table.top(); y <= table.bottom(); ++y)
                QVERIFY(isBlack(table.left(), y) && isBlack(table.right(), y));
            for (int x = table.left(); x <= table.right(); ++x)
                QVERIFY(isBlack(x, table.top() + 2) && isBlack(x, table.bottom()));
            QVERIFY(!isBlack(table.right() + 1, table.bottom()));
            QVERIFY(!isBlack(table.right(), table.bottom() + 1));
        };
        linesStand();
        // What is beside and below the table alone.
        for (const QRect& beside :
             {QRect(table.right() + 1, 0, 200, 900), QRect(0, table.bottom() + 1, 900, 100)}) {
            const QRect seen = beside & view.viewport()->rect();
            view.viewport()->render(&image, seen.topLeft(), QRegion(seen));
            linesStand();
        }
        // One line between two cells, the thick one below the headers.
        const QRect cell = view.visualRect(model.index(bottom, 2));
        const int middle = cell.center().y();
        QVERIFY(isBlack(cell.left(), middle) && !isBlack(cell.left() - 1, middle) &&
                !isBlack(cell.left() + 1, middle));
        int first = top;
        while (framed(first, 2) == "header")
            ++first;
        const QRect below = view.visualRect(model.index(first, 2));
        for (int line = 1; line <= 3; ++line)
            QVERIFY(isBlack(below.left() + 3, below.top() - line));
        QVERIFY(!isBlack(below.left() + 3, below.top()));
    }

    void headersTakeTheirSheet() {
        const QString sheet =
            "QHeaderView::section {\n\tfont-weight:600;\n\tcolor: #FFFFFF;\n\tbackground-color: "
            "#3399FF;\n\tpadding: 4px;\n\tfont-size: 10pt;\n\tborder-style: "
            "none;\n\tborder-bottom: 1px solid #fffff8;\n\tborder-right: 1px solid "
            "#fffff8;\n}\nQHeaderView::section:horizontal {\n\tborder-top: 1px solid "
            "#fffff8;\n}\nQHeaderView::section:vertical {\n\tborder-left: 1px solid "
            "#fffff8;\n}\nQTableWidget::item {\n\tbackground-color: #99CCFF;\n}\n";
        QCOMPARE(results_->grid().styleSheet(), sheet);
        QCOMPARE(results_->report().styleSheet(), sheet);
        results_->run("FREQ PERSON.SEX");
        QHeaderView* header = results_->grid().verticalHeader();
        const QImage shown = header->viewport()->grab().toImage();
        QCOMPARE(shown.pixelColor(3, 3), QColor("#3399FF"));
    }

    void framesMakeNoRoomForIcons() {
        ResultReportPage page;
        page.showTable(*madeFrequency());
        const int row = page.view()->model()->rowCount() - 6;
        const QModelIndex cell = page.view()->model()->index(row, 1);
        QVERIFY(!cell.data(1).toString().isEmpty());
        QStyledItemDelegate plain;
        QStyleOptionViewItem option;
        option.initFrom(page.view());
        option.font = page.view()->font();
        option.decorationSize = {16, 16};
        QVERIFY(page.view()->itemDelegate()->sizeHint(option, cell).width() <
                plain.sizeHint(option, cell).width());
    }

    void suppressedCellsAreTold() {
        TableMetadata facts = madeFacts(tablekind::frequency, "FREQUENCY", {"Sex"});
        facts.suppressed = 3;
        const MadeTable table(madeLayout({"Sex", "Count"}, {{"1. Male", ""}}), facts);
        ResultListPage list;
        ResultReportPage report;
        list.showTable(table);
        report.showTable(table);
        for (const char* name : {"labelTableInfo", "labelReportInfo"}) {
            auto* label = list.findChild<QLabel*>(name);
            label = label != nullptr ? label : report.findChild<QLabel*>(name);
            QVERIFY(!label->isHidden());
            QVERIFY2(label->text().contains('3'), qPrintable(label->text()));
        }
        list.showTable(*madeFrequency());
        QVERIFY(list.findChild<QLabel*>("labelTableInfo")->isHidden());
    }

    void longTitlesLeaveRoomForTheTable() {
        TableMetadata facts = madeFacts(tablekind::frequency, "FREQUENCY", {"Sex"});
        facts.title = QString("A title that goes on ").repeated(40);
        facts.filter = QString("PERSON.AGE > 3 AND ").repeated(40);
        ResultListPage page;
        page.resize(500, 400);
        page.show();
        page.showTable(MadeTable(madeLayout({"Sex", "Count"}, {{"1. Male", "2"}}), facts));
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        QCOMPARE(page.width(), 500);
        QVERIFY(page.view()->height() > 150);
        const auto* title = page.findChild<ElidedLabel*>();
        QVERIFY(title->shownText().size() < 100);
        QVERIFY(title->toolTip().contains("goes on"));
    }

    void columnsAreNamedOnceTheirHeadersAreGone() {
        ResultListPage page;
        page.resize(600, 400);
        page.show();
        page.showTable(*madeLargeTable(200, 5));
        const auto name = [&] {
            return page.view()->model()->headerData(1, Qt::Horizontal).toString();
        };
        QCOMPARE(name(), "2");
        page.view()->verticalScrollBar()->setValue(50);
        QCOMPARE(name(), "C1");
        page.view()->verticalScrollBar()->setValue(0);
        QCOMPARE(name(), "2");
    }

    void widthsFollowTheLongestTextsOfASample() {
        MadeRows rows(50, {"a", "1"});
        rows[30][0] = "the longest of all the labels here";
        rows.push_back({"Total", "123456789012345"});
        ResultListPage page;
        page.showTable(MadeTable(madeLayout({"A", "B"}, rows), madeFacts(0, "FREQUENCY")));
        const QFontMetrics metrics(page.view()->font());
        QVERIFY(page.view()->columnWidth(0) >
                metrics.horizontalAdvance("the longest of all the labels here"));
        QVERIFY(page.view()->columnWidth(1) > metrics.horizontalAdvance("123 456 789 012 345"));
        QVERIFY(page.view()->columnWidth(1) < page.view()->columnWidth(0));
    }

    void largeTablesShowAtOnce_data() {
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("columns");
        QTest::newRow("area list") << 100'000 << 30;
        QTest::newRow("crosstab") << 2'000 << 2'000;
    }

    void largeTablesShowAtOnce() {
        QFETCH(int, rows);
        QFETCH(int, columns);
        const auto table = madeLargeTable(rows, columns);
        QCOMPARE(table->cells().size(), rows); // laid out
        ResultListPage list;
        ResultReportPage report;
        QElapsedTimer time;
        for (ResultPage* page : std::initializer_list<ResultPage*>{&list, &report}) {
            page->resize(1200, 800);
            page->show();
            QVERIFY(QTest::qWaitForWindowExposed(page));
            time.start();
            page->showTable(*table);
            page->grab();
            const qint64 shown = time.restart();
            for (int step = 1; step <= 20; ++step) {
                QScrollBar* bar = page->view()->verticalScrollBar();
                bar->setValue(bar->maximum() * step / 20);
                page->view()->grab();
            }
            const qint64 scrolled = time.elapsed() / 20;
            qInfo("%lld ms to show, %lld ms a step", shown, scrolled);
            QVERIFY2(shown < 2000, qPrintable(QString::number(shown)));
            QVERIFY2(scrolled < 250, qPrintable(QString::number(scrolled)));
        }
        const QAbstractItemModel& model = *list.view()->model();
        QCOMPARE(model.index(rows, columns - 1).data(Qt::UserRole).toInt(),
                 (rows - 1) * 7 + columns - 1);
    }
};

QTEST_MAIN(TestResultViews)
#include "tst_resultviews.moc"
