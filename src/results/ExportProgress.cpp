// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ExportProgress.h"

#include <QFileInfo>

#include <algorithm>

namespace {

constexpr int steps = 1000;
constexpr int patience = 700; ///< milliseconds before the dialog appears

} // namespace

ExportProgress::ExportProgress(qsizetype files, QWidget* parent)
    : dialog_(new QProgressDialog(parent)), files_(std::max<qsizetype>(1, files)) {
    dialog_->setObjectName(QStringLiteral("exportProgress"));
    dialog_->setWindowTitle(tr("Export"));
    dialog_->setWindowModality(Qt::WindowModal);
    dialog_->setAutoReset(false);
    dialog_->setAutoClose(false);
    dialog_->setMinimumDuration(patience);
    dialog_->setRange(0, steps);
    dialog_->setValue(0);
}

ExportProgress::~ExportProgress() {
    delete dialog_;
}

bool ExportProgress::beginFile(const QString& path) {
    ++begun_;
    if (dialog_ != nullptr)
        dialog_->setLabelText(tr("Writing %1").arg(QFileInfo(path).fileName()));
    return progress()(0, 1);
}

WriteProgress ExportProgress::progress() {
    return [this](qint64 done, qint64 total) {
        const double part = total > 0 ? double(done) / double(total) : 0;
        const double files = double(std::max<qsizetype>(0, begun_ - 1)) + std::clamp(part, 0., 1.);
        if (dialog_ != nullptr) // its events may delete it
            dialog_->setValue(static_cast<int>(steps * files / double(files_)));
        return dialog_ != nullptr && !dialog_->wasCanceled();
    };
}
