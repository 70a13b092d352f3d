// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/exports/ExportFile.h"

#include "app/settings/WholeFile.h"

#include <QFileInfo>
#include <QLoggingCategory>

namespace {

Q_LOGGING_CATEGORY(exportLog, "KelvoraX.exports", QtInfoMsg)

constexpr qsizetype pieceSize = 1 << 18;
constexpr qint64 cellsBetweenQuestions = 4096;

} // namespace

QString withSuffix(const QString& path, const QString& suffix) {
    if (QFileInfo(path).suffix().compare(suffix, Qt::CaseInsensitive) == 0)
        return path;
    return path + QLatin1Char('.') + suffix;
}

WriteOutcome exportFault(const QString& path, const QString& fault) {
    qCWarning(exportLog).noquote() << path << "was not written:" << fault;
    return {false, path, fault};
}

ExportFile::ExportFile(const QString& path, qint64 cells, const WriteProgress& progress)
    : file_(path), progress_(progress), cells_(cells), outcome_{false, path, {}} {
    waiting_.reserve(pieceSize + pieceSize / 4);
    if (!file_.open(QIODevice::WriteOnly))
        fail();
}

void ExportFile::write(std::string_view utf8) {
    if (!goesOn())
        return;
    waiting_.append(utf8.data(), static_cast<qsizetype>(utf8.size()));
    if (waiting_.size() >= pieceSize)
        handOver();
}

void ExportFile::cellDone() {
    if (++done_ % cellsBetweenQuestions == 0 && progress_ && goesOn() && !progress_(done_, cells_))
        outcome_.cancelled = true;
}

WriteOutcome ExportFile::close() {
    if (goesOn())
        handOver();
    if (goesOn() && !file_.commit())
        fail();
    if (!goesOn())
        file_.cancelWriting();
    return outcome_;
}

void ExportFile::handOver() {
    if (!writeThrough(file_, waiting_))
        fail();
    waiting_.resize(0);
}

void ExportFile::fail() {
    outcome_ = exportFault(outcome_.path, file_.errorString());
}
