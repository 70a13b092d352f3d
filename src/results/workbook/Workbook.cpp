// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/workbook/Workbook.h"

#include "results/workbook/WorkbookError.h"
#include "results/workbook/WorkbookText.h"
#include "results/workbook/ZipPackage.h"

#include <QFile>

#include <chrono>
#include <clocale>
#include <cstdint>
#include <cstdlib>
#include <future>
#include <limits>

#include <xlsxwriter.h>

namespace {

/// From this size on the archive may pass 4 GB.
constexpr qint64 largeFile = 10'000'000;
constexpr std::uint8_t a4 = 9;
constexpr std::chrono::milliseconds betweenQuestions{50};

void check(lxw_error error) {
    if (error != LXW_NO_ERROR)
        throw WorkbookError::notWritten(QString::fromUtf8(lxw_strerror(error)));
}

/// The library writes numbers with the decimal sign of the language that is set, which no reader
/// of workbooks understands.
class PointDecimals {
public:
    PointDecimals() : before_(uselocale(plain())) {}
    ~PointDecimals() { uselocale(before_); }
    PointDecimals(const PointDecimals&) = delete;
    PointDecimals& operator=(const PointDecimals&) = delete;

private:
    static locale_t plain() {
        static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
        return locale;
    }
    locale_t before_;
};

lxw_workbook* newBook(const QString& path, qint64 expectedCells) {
    lxw_workbook_options options{};
    options.constant_memory = LXW_TRUE;
    options.use_zip64 = expectedCells > largeFile ? LXW_TRUE : LXW_FALSE;
    lxw_workbook* const book = workbook_new_opt(QFile::encodeName(path).constData(), &options);
    if (book == nullptr)
        throw WorkbookError::notWritten(
            QString::fromUtf8(lxw_strerror(LXW_ERROR_CREATING_TMPFILE)));
    return book;
}

} // namespace

struct Workbook::Library {
    explicit Library(lxw_workbook* newBook) : book(newBook), formats(newBook) {}
    ~Library() {
        if (book != nullptr)
            drop();
    }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    /// The library closes the files that keep the rows only when it writes the workbook.
    void drop() {
        lxw_sheet* entry = nullptr;
        STAILQ_FOREACH(entry, book->sheets, list_pointers)
        std::fclose(entry->u.worksheet->optimize_tmpfile);
        lxw_workbook_free(book);
    }

    lxw_workbook* book;
    lxw_worksheet* sheet = nullptr;
    WorkbookFormats formats;
};

Workbook::Workbook(const QString& path, qint64 expectedCells)
    : path_(path), library_(std::make_unique<Library>(newBook(path, expectedCells))) {}

Workbook::~Workbook() = default;

void Workbook::addSheet(const QString& name) {
    library_->sheet = workbook_add_worksheet(library_->book, name.toUtf8().constData());
    if (library_->sheet == nullptr)
        throw WorkbookError::notWritten(
            WorkbookError::tr("there is no room for the sheet %1").arg(name));
    worksheet_set_paper(library_->sheet, a4);
    worksheet_set_landscape(library_->sheet);
    worksheet_fit_to_pages(library_->sheet, 1, 0); // any number of pages high
    cellCounts_.push_back(0);
    row_ = 0;
    hasCutTexts_ = false;
}

void Workbook::countCell(int row) {
    Q_ASSERT(row >= row_);
    row_ = row;
    ++cellCounts_.back();
}

void Workbook::text(int row, int column, const QString& text, CellStyle style) {
    if (text.isEmpty())
        return blank(row, column, style);
    const WorkbookText kept(text);
    hasCutTexts_ |= kept.isCut;
    countCell(row);
    const PointDecimals guard;
    check(worksheet_write_string(library_->sheet, static_cast<lxw_row_t>(row),
                                 static_cast<lxw_col_t>(column), kept.utf8.constData(),
                                 library_->formats.format(style)));
}

void Workbook::number(int row, int column, double value, CellStyle style) {
    countCell(row);
    const PointDecimals guard;
    check(worksheet_write_number(library_->sheet, static_cast<lxw_row_t>(row),
                                 static_cast<lxw_col_t>(column), value,
                                 library_->formats.format(style)));
}

void Workbook::blank(int row, int column, CellStyle style) {
    if (style == CellStyle::Plain)
        return;
    countCell(row);
    const PointDecimals guard;
    check(worksheet_write_blank(library_->sheet, static_cast<lxw_row_t>(row),
                                static_cast<lxw_col_t>(column), library_->formats.format(style)));
}

void Workbook::merge(const CellArea& area) {
    lxw_worksheet& sheet = *library_->sheet;
    if ((area.rows <= 1 && area.columns <= 1) ||
        sheet.merged_range_count == std::numeric_limits<decltype(sheet.merged_range_count)>::max())
        return;
    // worksheet_merge_range() writes the cells as well, and so can't go over several rows of a
    // sheet that keeps only the last one.
    auto* range = static_cast<lxw_merged_range*>(std::calloc(1, sizeof(lxw_merged_range)));
    if (range == nullptr)
        throw std::bad_alloc();
    range->first_row = static_cast<lxw_row_t>(area.row);
    range->last_row = static_cast<lxw_row_t>(area.row + area.rows - 1);
    range->first_col = static_cast<lxw_col_t>(area.column);
    range->last_col = static_cast<lxw_col_t>(area.column + area.columns - 1);
    STAILQ_INSERT_TAIL(sheet.merged_ranges, range, list_pointers);
    ++sheet.merged_range_count;
}

void Workbook::setColumnWidth(int column, double width) {
    const auto index = static_cast<lxw_col_t>(column);
    check(worksheet_set_column(library_->sheet, index, index, width, nullptr));
}

void Workbook::freeze(int rows, int columns) {
    worksheet_freeze_panes(library_->sheet, static_cast<lxw_row_t>(rows),
                           static_cast<lxw_col_t>(columns));
}

void Workbook::checkSheetsReachedDisk() const {
    lxw_sheet* entry = nullptr;
    STAILQ_FOREACH(entry, library_->book->sheets, list_pointers) {
        std::FILE* const rows = entry->u.worksheet->optimize_tmpfile;
        if (std::fflush(rows) != 0 || std::ferror(rows) != 0)
            throw WorkbookError::cutOff();
    }
}

/// The library packs all sheets in one go: beside, so that the user's window answers meanwhile.
void Workbook::pack(const std::function<bool()>& goOn) {
    // The library gives up the workbook, written or not.
    auto packing = std::async(std::launch::async, [book = std::exchange(library_->book, nullptr)] {
        const PointDecimals guard;
        return workbook_close(book);
    });
    bool wanted = goOn();
    while (packing.wait_for(betweenQuestions) != std::future_status::ready)
        wanted = wanted && goOn();
    check(packing.get());
    if (!wanted)
        throw WritingCancelled();
}

void Workbook::close(const std::function<bool()>& goOn) {
    checkSheetsReachedDisk();
    pack(goOn);
    const ZipPackage written(path_);
    for (std::size_t sheet = 0; sheet < cellCounts_.size(); ++sheet)
        if (countCells(written, QStringLiteral("xl/worksheets/sheet%1.xml").arg(sheet + 1), goOn) !=
            cellCounts_[sheet])
            throw WorkbookError::cutOff();
}
