// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/FileOpener.h"

#include "app/Logging.h"
#include "app/WorkArea.h"
#include "app/messages/Messages.h"
#include "app/settings/KelSystem.h"
#include "app/shell/Shell.h"
#include "dictionary/TfrmDictionary.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"
#include "engine/execution/RunGuard.h"
#include "projects/TfrmProject.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

namespace {

const QString preferencesName = QStringLiteral("KelxPreferencesDialog");

bool isDictionary(const QString& extension) {
    return extension == QLatin1String("dicx") || extension == QLatin1String("kxdb");
}

} // namespace

FileOpener::FileOpener(Shell& shell, WorkArea& workArea, KelSystem& system, QObject* parent)
    : QObject(parent), shell_(shell), workArea_(workArea), system_(system) {}

bool FileOpener::isLoading() const {
    return dictionary_ != nullptr && dictionary_->isLoading();
}

bool FileOpener::canOpen(const QString& path, const QString& extension) const {
    const bool known = isDictionary(extension);
    if (known && QFileInfo(path).isFile())
        return true;
    showError(known ? tr("The file %1 was not found.").arg(QDir::toNativeSeparators(path))
                    : tr("Archivo no válido"));
    return false;
}

void FileOpener::openFile(const QString& path, const QString& extension) {
    const QString kind = extension.toLower();
    if (isLoading() || RunGuard::isRunning() || !canOpen(path, kind))
        return;
    // Programs may be open before the first dictionary is.
    if (TfrmProject::instance().isOpen() && windowsStandAgainst())
        return;
    if (closeDictionary())
        openDictionary(path);
}

bool FileOpener::windowsStandAgainst() const {
    if (workArea_.isEmptyBut(preferencesName))
        return false;
    showError(tr("Please, close all the windows from the application work area before changing "
                 "the dictionary"));
    return true;
}

void FileOpener::openRecent(const QString& path) {
    if (RunGuard::isRunning())
        return;
    if (!QFileInfo::exists(path)) {
        system_.removeRecentDictionary(path);
        system_.removeRecentProject(path);
        emit recentGone();
    }
    if (QFileInfo::exists(path) && windowsStandAgainst())
        return;
    openFile(path, QFileInfo(path).suffix());
}

void FileOpener::openDictionary(const QString& path) {
    dictionary_ = new TfrmDictionary(shell_, system_, this);
    dictionary_->setBusyTest([] { return RunGuard::isRunning(); });
    connect(dictionary_, &TfrmDictionary::signalDictIsDirty, this, &FileOpener::dirtyChanged);
    connect(dictionary_, &TfrmDictionary::signalDictIsSaved, this,
            [this] { emit dirtyChanged(false); });
    connect(dictionary_, &TfrmDictionary::loaded, this, &FileOpener::onLoaded);
    connect(dictionary_, &TfrmDictionary::savedAs, this,
            [this] { onLoaded(TfrmProject::instance().allPathsFound()); });
    connect(dictionary_, &TfrmDictionary::quickViewVariable, this, &FileOpener::quickViewVariable);
    connect(dictionary_, &TfrmDictionary::quickViewEntity, this, &FileOpener::quickViewEntity);
    connect(dictionary_, &TfrmDictionary::failed, this, [this] {
        release();
        emit failed();
    });
    connect(dictionary_, &TfrmDictionary::closed, this, [this] {
        release();
        emit closed();
    });
    if (dictionary_->openDictionary(path)) {
        emit began();
    } else {
        release();
        emit failed();
    }
}

void FileOpener::onLoaded(bool found) {
    const QString path = TfrmProject::instance().dictionaryPath();
    logMessage(QStringLiteral("Opening project: ") + path, true);
    system_.setLastOpened(path);
    system_.addRecentDictionary(path);
    emit opened(path, found);
}

bool FileOpener::closeDictionary() {
    return dictionary_ == nullptr || dictionary_->close();
}

void FileOpener::letGo() {
    if (dictionary_ != nullptr)
        dictionary_->letGo();
}

bool FileOpener::endLoading() {
    return dictionary_ == nullptr || dictionary_->endLoading();
}

void FileOpener::release() {
    if (TfrmDictionary* gone = std::exchange(dictionary_, nullptr))
        gone->deleteLater(); // one of its own signals may have led here
}
