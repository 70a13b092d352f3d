// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/exports/PdfWriter.h"

#include "results/exports/ExportFile.h"
#include "results/exports/HtmlReport.h"
#include "results/exports/PdfColumns.h"
#include "results/exports/PdfPages.h"
#include "results/exports/PrintedFile.h"
#include "results/tables/TableBase.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPrinter>
#include <QScreen>

#include <algorithm>

namespace {

constexpr qreal margin = 10; // mm
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
    void choosePage(const PdfColumns& columns);
    qreal paperWidth() const; ///< in units of the screen
    bool printSlices();
    bool goOn(qsizetype rows);

    const TableBase& table_;
    const WriteProgress& progress_;
    HtmlReport html_;
    QFont font_;
    PdfLayout layout_;
    QSizeF paper_; ///< of what is laid out for a page, in units of the screen
    QPrinter printer_{QPrinter::PrinterResolution};
    QPainter painter_;
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
/// drawn smaller.
void PdfReport::choosePage(const PdfColumns& columns) {
    if (columns.width() > paperWidth())
        printer_.setPageOrientation(QPageLayout::Landscape);
    const QRectF paper = printer_.pageLayout().paintRect(QPageLayout::Inch);
    const qreal width = std::max(paperWidth(), columns.width());
    paper_ = QSizeF(width, width * paper.height() / paper.width());
    layout_.width = width;
    layout_.columns = columns.filling(width);
}

bool PdfReport::print(const QString& path) {
    setUp(path);
    const PdfColumns columns(table_, font_, paperWidth() / 3, progress_);
    cancelled_ = columns.cancelled();
    if (cancelled_)
        return false;
    choosePage(columns);
    return painter_.begin(&printer_) && printSlices() && painter_.end();
}

bool PdfReport::printSlices() {
    PdfPages pages(printer_, painter_, paper_);
    const qsizetype rows = html_.rows();
    const qsizetype columns = std::max<qsizetype>(layout_.columns.size(), 1);
    const qsizetype rowsOfSlice = std::max(cellsOfSlice / columns, fewestRows);
    qsizetype first = 0;
    do {
        const qsizetype end = std::min(rows, first + rowsOfSlice);
        pages.add(PdfSlice(html_, layout_, first, end));
        first = end;
    } while (goOn(first) && first < rows);
    return !cancelled_;
}

bool PdfReport::goOn(qsizetype rows) {
    const qint64 width = table_.reportCells().width();
    cancelled_ = progress_ && !progress_(rows * width, html_.rows() * width);
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
