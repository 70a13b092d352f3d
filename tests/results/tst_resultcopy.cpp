// SPDX-License-Identifier: GPL-3.0-or-later
// Copying results, by keys and by menus, for spreadsheets and for editors of text.
#include "MadeTable.h"
#include "ResultsFixture.h"
#include "results/ResultClipboard.h"
#include "results/ResultPages.h"
#include "results/ResultTableView.h"
#include "support/OwnSettings.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QMimeData>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTextDocument>
#include <QTextTable>
#include <QTreeView>

namespace {

QString text() {
    return QGuiApplication::clipboard()->text();
}

QString html() {
    return QGuiApplication::clipboard()->mimeData()->html();
}

/// The cells of the copied HTML as a reader of HTML sees them.
QStringList htmlRows() {
    QTextDocument document;
    document.setHtml(html());
    QStringList rows;
    for (QTextFrame* frame : document.rootFrame()->childFrames())
        if (auto* table = qobject_cast<QTextTable*>(frame))
            for (int row = 0; row < table->rows(); ++row) {
                QStringList cells;
                for (int column = 0; column < table->columns(); ++column)
                    cells += table->cellAt(row, column).firstCursorPosition().block().text();
                rows += cells.join('|');
            }
    return rows;
}

void clickCell(QTableView& view, int row, int column, Qt::KeyboardModifiers keys = {}) {
    const QModelIndex cell = view.model()->index(row, column);
    view.scrollTo(cell);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, keys, view.visualRect(cell).center());
}

} // namespace

class TestResultCopy : public QObject {
    Q_OBJECT

    std::unique_ptr<ResultsFixture> results_;

private slots:
    void initTestCase() { takeOwnSettings(); }
    void init() {
        results_ = std::make_unique<ResultsFixture>();
        QGuiApplication::clipboard()->setText("before");
        results_->run("FREQ PERSON.SEX\nFREQ PERSON.SEX BY HOUSEHOLD.ROOMS");
    }
    void cleanup() { results_.reset(); }

    void selectedCellsGoAsTextAndAsHtml() {
        QTableView& grid = results_->grid();
        clickCell(grid, 0, 0);
        clickCell(grid, 2, 2, Qt::ShiftModifier);
        QCOMPARE(text(), "before"); // a selection alone copies nothing
        QTest::keyClick(&grid, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(text().section('\n', 0, 0), "PERSON.SEX (Sex of the person)\tCount\t%");
        QVERIFY2(text().section('\n', 1, 1).startsWith("1. Male\t2.500000\t26.3157"),
                 qPrintable(text()));
        QCOMPARE(text().count('\n'), 3); // behind the last row too
        QVERIFY(text().endsWith('\n'));
        QCOMPARE(htmlRows().first(), "PERSON.SEX (Sex of the person)|Count|%");
        QVERIFY(htmlRows().at(1).startsWith("1. Male|2.500000|26.3157"));
        QVERIFY(html().contains("sdval=\"2.500000\""));
        QCOMPARE(results_->status(), "Copied to clipboard");
    }

    void scatteredCellsGiveTheirBounds() {
        QTableView& grid = results_->grid();
        clickCell(grid, 2, 1);
        clickCell(grid, 1, 0, Qt::ControlModifier);
        QTest::keyClick(&grid, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(text(), "1. Male\t2.500000\n2. Female\t7.000000\n");
    }

    void menusOfBothGridsCopy() {
        QTableView& grid = results_->grid();
        clickCell(grid, 1, 1);
        QMenu* menu =
            results_->menu(*grid.viewport(), grid.visualRect(grid.currentIndex()).center());
        QVERIFY(menu != nullptr);
        QCOMPARE(menu->actions().size(), 3); // a separator, and the options
        QCOMPARE(menu->actions()[0]->text(), "Copy");
        QCOMPARE(menu->actions()[0]->shortcut(), QKeySequence(QKeySequence::Copy));
        QTest::mouseClick(menu, Qt::LeftButton, {},
                          menu->actionGeometry(menu->actions()[0]).center());
        QCOMPARE(text(), "2.500000\n");

        results_->find<QTabWidget>("tabWidget")->setCurrentIndex(1);
        QTableView& report = results_->report();
        clickCell(report, 1, 0);
        menu =
            results_->menu(*report.viewport(), report.visualRect(report.currentIndex()).center());
        QVERIFY(menu != nullptr);
        QTest::mouseClick(menu, Qt::LeftButton, {},
                          menu->actionGeometry(menu->actions()[0]).center());
        QCOMPARE(text().trimmed(), "FREQ_1");
    }

    void nothingSelectedKeepsTheClipboard() {
        results_->grid().setFocus();
        QTest::keyClick(&results_->grid(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(text(), "before");
        clickCell(results_->grid(), 1, 1);
        results_->click(results_->place(0, 1)); // the selection goes with its table
        results_->grid().setFocus();
        QTest::keyClick(&results_->grid(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(text(), "before");
    }

    void treeCopiesAWholeTable() {
        QTreeView& tree = results_->tree();
        const QPoint place = tree.visualRect(results_->place(0, 0)).center();
        QMenu* menu = results_->menu(*tree.viewport(), place);
        QVERIFY(menu != nullptr);
        results_->choose(*menu, "actionCopyTable");
        QCOMPARE(text().section('\n', 0, 0), "PERSON.SEX (Sex of the person)\tCount\t%\tCumul%");
        QVERIFY2(text().contains("\n0. __tot__\t9.5"), qPrintable(text()));
        QVERIFY2(text().endsWith("0. __mv__\t1\t\t"), qPrintable(text()));
        QCOMPARE(htmlRows().size(), 5);
    }

    void treeMenuFitsTheSelection() {
        QTreeView& tree = results_->tree();
        const auto entries = [&] {
            QMenu* menu =
                results_->menu(*tree.viewport(), tree.visualRect(results_->place(0, 0)).center());
            QStringList texts;
            for (const QAction* action : menu->actions())
                texts += action->text();
            menu->close();
            return texts;
        };
        QCOMPARE(entries(), QStringList({"Select all", "Deselect all", "Copy", "Export selected",
                                         "", "Options"}));
        QMenu* menu =
            results_->menu(*tree.viewport(), tree.visualRect(results_->place(0, 0)).center());
        results_->choose(*menu, "actionSelectAll");
        QCOMPARE(results_->selected(), QStringList({"FREQ_1", "FREQ_2", "PROC-001"}));
        QCOMPARE(entries(), QStringList({"Select all", "Deselect all", "Export selected"}));
        menu = results_->menu(*tree.viewport(), tree.visualRect(results_->place(0, 0)).center());
        results_->choose(*menu, "actionDeselectAll");
        QCOMPARE(results_->selected(), QStringList());
        QCOMPARE(results_->place(0, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
        results_->click(results_->place(0));
        QVERIFY(!entries().contains("Copy"));
    }

    void codesKeepTheirZerosAndTabsTheirPlace() {
        const MadeTable table(
            madeLayout({"Area", "Name", "n"}, {{"0102", "North\tand <South>", "1234567.5"}}, 2),
            madeFacts(tablekind::areaList, "AREALIST"));
        QVERIFY(ResultClipboard::copy(table));
        QCOMPARE(text(), "Area\tName\tn\n0102\tNorth and <South>\t1234567.5");
        QVERIFY(html().contains("mso-number-format:'\\@'\">0102</td>"));
        QVERIFY(html().contains("x:num=\"1234567.5\""));
        QCOMPARE(htmlRows().at(1), "0102|North and <South>|1234567.5");
    }

    void manyCellsGoAsTextAlone() {
        const auto table = madeLargeTable(10'000, 30);
        ResultListPage page;
        page.showTable(*table);
        page.view()->selectAll();
        QVERIFY(ResultClipboard::copy(*page.view()->model(), page.view()->selectedBounds()));
        QVERIFY(!QGuiApplication::clipboard()->mimeData()->hasHtml());
        QCOMPARE(text().count('\n'), 10'001);
        QVERIFY(text().endsWith("\t" + QString::number(9'999 * 7 + 29) + "\n"));
    }
};

QTEST_MAIN(TestResultCopy)
#include "tst_resultcopy.moc"
