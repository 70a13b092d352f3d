// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/exports/PdfWriter.h"

#include "results/exports/ExportFile.h"
#include "results/exports/HtmlReport.h"
#include "results/exports/PdfColumns.h"
#include "results/exports/PdfPages.h"
#include "results/exports/PrintedFile.h"
#include "results/tables/TableBase.h"

#include <QFontInfo>
#include <QGuiApplication>
#include <QPainter>
#include <QPrinter>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace {

constexpr qreal margin = 10;      // mm
constexpr qreal smallestFont = 5; ///< points
constexpr qsizetype cellsOfSlice = 4000;
constexpr qsizetype fewestRows = 12; ///< that make up for the header of a slice

class PdfReport {
public:
    PdfReport(const TableBase& table, const WriteProgress& progress);

    /// False where it was cancelled or the file cannot be written.
    bool print(const QString& path);
    bool cancelled() const { return cancelled_; }

private:
    void setUp(const QString& path);
    void choosePage(PdfColumns& columns);
    qreal paperWidth() const; ///< in units of the screen
    bool printBlocks(const PdfColumns& columns);
    bool printSlices(PdfPages& pages);
    bool goOn(qint64 cells);

    const TableBase& table_;
    const WriteProgress& progress_;
    HtmlReport html_;
    QFont font_;
    PdfLayout layout_;
    QList<ColumnBlock> blocks_;
    QSizeF paper_; ///< of what is laid out for a page, in units of the screen
    QPrinter printer_{QPrinter::PrinterResolution};
    QPainter painter_;
    qint64 done_ = 0; ///< cells
    bool cancelled_ = false;
};

PdfReport::PdfReport(const TableBase& table, const WriteProgress& progress)
    : table_(table), progress_(progress), html_(table) {
    // Hinted letters have other widths on paper than they were laid out with.
    font_.setHintingPreference(QFont::PreferNoHinting);
    layout_.font = font_;
}

void PdfReport::setUp(const QString& path) {
    printer_.setOutputFormat(QPrinter::PdfFormat);
    printer_.setPageSize(QPageSize(QPageSize::A4));
    printer_.setOutputFileName(path);
    printer_.setPageMargins(QMarginsF(margin, margin, margin, margin), QPageLayout::Millimeter);
    printer_.setDocName(table_.metadata().title);
}

qreal PdfReport::paperWidth() const {
    const qreal inches = printer_.pageLayout().paintRect(QPageLayout::Inch).width();
    const QScreen* const screen = QGuiApplication::primaryScreen();
    return inches * (screen != nullptr ? screen->logicalDotsPerInch() : 96);
}

/// Across where the table needs it; what is wider still is laid out on a larger sheet, which is
/// drawn smaller as long as that can be read, and else in blocks of columns.
void PdfReport::choosePage(PdfColumns& columns) {
    if (columns.width(columns.all()) > paperWidth())
        printer_.setPageOrientation(QPageLayout::Landscape);
    const QRectF paper = printer_.pageLayout().paintRect(QPageLayout::Inch);
    const qreal smaller = std::max(1.0, QFontInfo(font_).pointSizeF() / smallestFont);
    blocks_ = columns.blocks(paperWidth() * smaller);
    qreal width = paperWidth();
    for (const ColumnBlock& block : blocks_)
        width = std::max(width, columns.width(block));
    paper_ = QSizeF(width, width * paper.height() / paper.width());
    layout_.width = width;
}

bool PdfReport::print(const QString& path) {
    setUp(path);
    PdfColumns columns(table_, font_, paperWidth() / 3, progress_);
    cancelled_ = columns.cancelled();
    if (cancelled_)
        return false;
    choosePage(columns);
    return painter_.begin(&printer_) && printBlocks(columns) && painter_.end();
}

bool PdfReport::printBlocks(const PdfColumns& columns) {
    PdfPages pages(printer_, painter_, paper_);
    for (const ColumnBlock& block : std::as_const(blocks_)) {
        layout_.block = block;
        // The last few columns are no wider than those before.
        layout_.columns = columns.filling(block, block.opens() || block.end < html_.columns()
                                                     ? layout_.width
                                                     : columns.width(block));
        pages.endPage();
        if (!printSlices(pages))
            return false;
    }
    return true;
}

bool PdfReport::printSlices(PdfPages& pages) {
    const qsizetype rows = html_.rows();
    const qsizetype columns = std::max<qsizetype>(layout_.columns.size(), 1);
    const qsizetype rowsOfSlice = std::max(cellsOfSlice / columns, fewestRows);
    qsizetype first = 0;
    do {
        const qsizetype end = std::min(rows, first + rowsOfSlice);
        pages.add(PdfSlice(html_, layout_, first, end));
        done_ += (end - first) * (layout_.block.end - layout_.block.first);
        first = end;
    } while (goOn(done_) && first < rows);
    return !cancelled_;
}

bool PdfReport::goOn(qint64 cells) {
    cancelled_ = progress_ && !progress_(cells, html_.rows() * html_.columns());
    return !cancelled_;
}

} // namespace

WriteOutcome writePdfReport(const TableBase& table, const QString& path,
                            const WriteProgress& progress) {
    const QString target = withSuffix(path, QStringLiteral("pdf"));
    PrintedFile file(target);
    if (!file.fault().isEmpty())
        return exportFault(target, file.fault());
    PdfReport report(table, progress);
    const bool printed = report.print(file.printPath());
    if (report.cancelled())
        return {true, target, {}};
    return file.takePlace(printed);
}
