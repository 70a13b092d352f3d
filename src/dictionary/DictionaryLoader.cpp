// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/DictionaryLoader.h"

#include "TKelDictionary.h"
#include "dictionary/LoadThread.h"
#include "dictionary/mirror/DictionaryUtil.h"
#include "dictionary/mirror/MirrorBuilder.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"
#include "projects/TfrmProject.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFileInfo>

#include <optional>
#include <utility>

namespace {

std::optional<DictionaryKind> kindOf(const QString& extension) {
    if (extension.compare(QLatin1String("dicx"), Qt::CaseInsensitive) == 0)
        return DictionaryKind::Dicx;
    if (extension.compare(QLatin1String("kxdb"), Qt::CaseInsensitive) == 0)
        return DictionaryKind::Kxdb;
    return std::nullopt;
}

QStringList missingFiles(TKpEntity* root) {
    QStringList missing;
    for (const TKpVariable* variable : DictionaryUtil().allVariables(root)) {
        if (variable->fileExists)
            continue;
        qDebug() << "File not found:" << variable->position << variable->fullName;
        missing += variable->fullName;
    }
    return missing;
}

/// A database that was moved whole is read where it lies now.
void pointToOwnFolder(TKelDictionary& dictionary) {
    const QFileInfo file(QString::fromStdString(dictionary.fileName()));
    if (file.exists())
        dictionary.setDataPath(file.absolutePath().toStdString());
    else
        dictionary.setDirty(true);
}

} // namespace

DictionaryLoader::~DictionaryLoader() {
    finish();
}

bool DictionaryLoader::start(const QString& path, const QString& extension) {
    const auto kind = kindOf(extension);
    if (isRunning() || !kind)
        return false;
    TfrmProject::instance().beginOpening(path, *kind);
    thread_ = new LoadThread(this);
    connect(thread_, &LoadThread::signalDictionaryLoaded, this, &DictionaryLoader::onLoaded);
    connect(thread_, &LoadThread::signalError, this, &DictionaryLoader::onError);
    connect(thread_, &QThread::finished, thread_, &QObject::deleteLater);
    thread_->start(QThread::HighestPriority);
    return true;
}

void DictionaryLoader::finish() {
    if (LoadThread* thread = std::exchange(thread_, nullptr)) {
        thread->disconnect(this);
        // The thread may be waiting for an answer of the GUI thread.
        while (!thread->wait(20))
            QCoreApplication::processEvents();
        TfrmProject::instance().abandonOpening();
    }
}

void DictionaryLoader::onLoaded() {
    if (thread_ == nullptr)
        return;
    thread_ = nullptr;
    emit aboutToReplace();
    TfrmProject& project = TfrmProject::instance();
    project.adoptStagedDictionary();
    pointToOwnFolder(*project.dictionary());
    project.setRoot(buildMirror(*project.dictionary()));
    const QStringList missing = missingFiles(project.root());
    project.setAllPathsFound(missing.isEmpty());
    emit loaded(missing);
}

void DictionaryLoader::onError(const QString& message) {
    if (thread_ == nullptr)
        return;
    thread_ = nullptr;
    TfrmProject::instance().abandonOpening();
    emit failed(message);
}
