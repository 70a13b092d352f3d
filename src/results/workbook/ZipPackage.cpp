// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/workbook/ZipPackage.h"

#include "results/workbook/WorkbookError.h"

#include <QFile>

#include <array>

#include <zip.h>

namespace {

constexpr std::size_t pieceSize = 65536;
constexpr QByteArrayView sheetEnd("</worksheet>");
/// The library's own choice takes three times as long for a twentieth less.
constexpr zip_uint32_t compressionLevel = 5;
constexpr double progressStep = 0.02;

struct CloseFile {
    void operator()(zip_file_t* file) const { zip_fclose(file); }
};
using OpenedPart = std::unique_ptr<zip_file_t, CloseFile>;

/// Workbooks with a password, and those of older programs, are no archives but files of this kind.
bool isCompoundFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) &&
           file.read(8) == QByteArray("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8);
}

zip_t* opened(const QString& path) {
    int error = 0;
    zip_t* const archive = zip_open(QFile::encodeName(path).constData(), 0, &error);
    if (archive == nullptr)
        throw isCompoundFile(path) ? WorkbookError::locked() : WorkbookError::noWorkbook();
    return archive;
}

OpenedPart openPart(zip_t* archive, qint64 index, const QString& name) {
    if (index < 0)
        throw WorkbookError::damaged(name);
    OpenedPart part(zip_fopen_index(archive, static_cast<zip_uint64_t>(index), 0));
    if (!part)
        throw zip_error_code_zip(zip_get_error(archive)) == ZIP_ER_NOPASSWD
            ? WorkbookError::locked()
            : WorkbookError::damaged(name);
    return part;
}

WorkbookError archiveError(zip_t* archive) {
    return WorkbookError::notWritten(QString::fromUtf8(zip_strerror(archive)));
}

int wantsStop(zip_t*, void* goOn) {
    return (*static_cast<const std::function<bool()>*>(goOn))() ? 0 : 1;
}

} // namespace

void ZipPackage::Discard::operator()(zip* archive) const {
    zip_discard(archive);
}

ZipPackage::ZipPackage(const QString& path) : archive_(opened(path)) {}

ZipPackage::~ZipPackage() = default;

QHash<QString, quint32> ZipPackage::checksums() const {
    QHash<QString, quint32> checksums;
    const zip_int64_t count = zip_get_num_entries(archive_.get(), 0);
    for (zip_int64_t index = 0; index < count; ++index) {
        zip_stat_t facts;
        if (zip_stat_index(archive_.get(), static_cast<zip_uint64_t>(index), 0, &facts) != 0)
            throw WorkbookError::noWorkbook();
        checksums.insert(QString::fromUtf8(facts.name), facts.crc);
    }
    return checksums;
}

qint64 ZipPackage::indexOf(const QString& name) const {
    return zip_name_locate(archive_.get(), name.toUtf8().constData(), ZIP_FL_NOCASE);
}

bool ZipPackage::contains(const QString& name) const {
    return indexOf(name) >= 0;
}

void ZipPackage::readInPieces(const QString& name, const TakePiece& take) const {
    const OpenedPart part = openPart(archive_.get(), indexOf(name), name);
    std::array<char, pieceSize> piece{};
    zip_int64_t size = 0;
    while ((size = zip_fread(part.get(), piece.data(), piece.size())) > 0)
        take(QByteArrayView(piece.data(), static_cast<qsizetype>(size)));
    if (size < 0)
        throw WorkbookError::damaged(name);
}

QByteArray ZipPackage::read(const QString& name, qint64 limit) const {
    QByteArray content;
    readInPieces(name, [&](QByteArrayView piece) {
        if (content.size() + piece.size() > limit)
            throw WorkbookError::tooLarge(name);
        content.append(piece);
    });
    return content;
}

void ZipPackage::replace(const QString& name, const QByteArray& content) {
    const QByteArray& kept = contents_.emplace_back(content);
    zip_source_t* const source = zip_source_buffer(archive_.get(), kept.constData(),
                                                   static_cast<zip_uint64_t>(kept.size()), 0);
    const qint64 index = indexOf(name);
    const bool done =
        source != nullptr &&
        (index < 0
             ? zip_file_add(archive_.get(), name.toUtf8().constData(), source, ZIP_FL_ENC_UTF_8) >=
                   0
             : zip_file_replace(archive_.get(), static_cast<zip_uint64_t>(index), source, 0) == 0);
    if (!done) {
        zip_source_free(source);
        throw archiveError(archive_.get());
    }
}

void ZipPackage::addFile(const QString& name, const QString& path) {
    zip_source_t* const source =
        zip_source_file(archive_.get(), QFile::encodeName(path).constData(), 0, -1);
    const zip_int64_t index =
        source == nullptr
            ? -1
            : zip_file_add(archive_.get(), name.toUtf8().constData(), source, ZIP_FL_ENC_UTF_8);
    if (index < 0) {
        zip_source_free(source);
        throw archiveError(archive_.get());
    }
    zip_set_file_compression(archive_.get(), static_cast<zip_uint64_t>(index), ZIP_CM_DEFLATE,
                             compressionLevel);
}

void ZipPackage::close(const std::function<bool()>& goOn) {
    auto* const asked = const_cast<std::function<bool()>*>(&goOn);
    zip_register_cancel_callback_with_state(archive_.get(), wantsStop, nullptr, asked);
    zip_register_progress_callback_with_state(
        archive_.get(), progressStep, [](zip_t*, double, void*) {}, nullptr, nullptr);
    if (zip_close(archive_.get()) == 0) {
        static_cast<void>(archive_.release());
        return;
    }
    if (zip_error_code_zip(zip_get_error(archive_.get())) == ZIP_ER_CANCELLED)
        throw WritingCancelled();
    throw archiveError(archive_.get());
}

qint64 countCells(const ZipPackage& package, const QString& sheet,
                  const std::function<bool()>& goOn) {
    constexpr QByteArrayView cell("<c r=");
    qint64 cells = 0;
    QByteArray tail; // what is sought may lie across two pieces
    package.readInPieces(sheet, [&](QByteArrayView piece) {
        if (!goOn())
            throw WritingCancelled();
        const QByteArray text = tail.right(cell.size() - 1).append(piece);
        cells += text.count(cell);
        tail = (tail + piece.toByteArray()).right(sheetEnd.size());
    });
    return tail == sheetEnd ? cells : -1;
}
