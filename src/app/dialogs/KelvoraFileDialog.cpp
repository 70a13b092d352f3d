// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/KelvoraFileDialog.h"

#include "app/settings/KelSystem.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>

#include <optional>
#include <utility>

namespace {

std::optional<QString>& preparedAnswer() {
    static std::optional<QString> answer;
    return answer;
}

} // namespace

KelvoraFileDialog::KelvoraFileDialog(QString kind, const QString& folder, QString caption)
    : kind_(std::move(kind)),
      folder_(folder.isEmpty() ? KelSystem::instance().directoryFor(kind_) : folder),
      caption_(std::move(caption)) {}

QString KelvoraFileDialog::openFile(const QString& filter) const {
    QString path;
    if (auto answer = std::exchange(preparedAnswer(), std::nullopt))
        path = *answer;
    else
        path =
            QFileDialog::getOpenFileName(QApplication::activeWindow(), caption_, folder_, filter);
    remember(path);
    return path;
}

QString KelvoraFileDialog::saveFile(const QString& filter, const QString& suffix,
                                    const QString& proposal) const {
    QString path;
    if (auto answer = std::exchange(preparedAnswer(), std::nullopt)) {
        path = *answer;
    } else {
        // The suffix goes to the dialog, so that its question is about the file that is written.
        QFileDialog dialog(QApplication::activeWindow(), caption_, folder_, filter);
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setDefaultSuffix(suffix);
        if (!proposal.isEmpty())
            dialog.selectFile(proposal);
        if (dialog.exec() == QDialog::Accepted)
            path = dialog.selectedFiles().value(0);
    }
    if (!path.isEmpty() && !path.endsWith(suffix, Qt::CaseInsensitive))
        path += suffix;
    remember(path);
    return path;
}

QString KelvoraFileDialog::chooseFolder() const {
    QString folder;
    if (auto answer = std::exchange(preparedAnswer(), std::nullopt))
        folder = *answer;
    else
        folder = QFileDialog::getExistingDirectory(QApplication::activeWindow(), caption_, folder_,
                                                   QFileDialog::ShowDirsOnly);
    if (!folder.isEmpty())
        KelSystem::instance().setDirectoryFor(kind_, folder);
    return folder;
}

void KelvoraFileDialog::remember(const QString& path) const {
    if (!path.isEmpty())
        KelSystem::instance().setDirectoryFor(kind_, QFileInfo(path).absolutePath());
}

void KelvoraFileDialog::answerNext(const QString& path) {
    preparedAnswer() = path;
}
