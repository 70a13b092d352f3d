// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/loading/DictionaryLoader.h"

#include "TKelDictionary.h"
#include "dictionary/loading/LoadThread.h"
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
    for (const TKpEntity* entity : DictionaryUtil().entities(root)) {
        if (!entity->isFileMissing())
            continue;
        qDebug() << "File not found:" << entity->name;
        missing += entity->name;
    }
    for (const TKpVariable* variable : DictionaryUtil().allVariables(root)) {
        if (variable->fileExists)
            continue;
        qDebug() << "File not found:" << variable->position << variable->fullName;
        missing += variable->fullName;
    }
    return missing;
}

/// The data lie beside the dictionary, unless the user has just shown the engine another folder.
void settleDataFolder(TKelDictionary& dictionary) {
    const QFileInfo file(QString::fromStdString(dictionary.fileName()));
    if (!file.exists())
        dictionary.setDirty(true);
    else if (dictionary.dataPath().empty())
        dictionary.setDataPath(file.absolutePath().toStdString());
}

} // namespace

DictionaryLoader::~DictionaryLoader() {
    finish();
}

bool DictionaryLoader::start(const QString& path, const QString& extension) {
    const auto kind = kindOf(extension);
    if (isRunning() || !kind)
        return false;
    ending_ = false;
    TfrmProject::instance().beginOpening(path, *kind);
    thread_ = new LoadThread(this);
    connect(thread_, &LoadThread::signalDictionaryLoaded, this, &DictionaryLoader::onLoaded);
    connect(thread_, &LoadThread::signalError, this, &DictionaryLoader::onError);
    connect(thread_, &QThread::finished, thread_, &QObject::deleteLater);
    thread_->start(QThread::HighestPriority);
    return true;
}

void DictionaryLoader::finish() {
    if (thread_ == nullptr)
        return;
    ending_ = true;
    // The thread may be waiting for an answer of the GUI thread; nothing else is let in.
    while (!thread_->wait(20))
        QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    thread_ = nullptr;
    TfrmProject::instance().abandonOpening();
}

bool DictionaryLoader::join() {
    if (thread_ == nullptr || ending_)
        return false; // a result that was on its way when the load was forgotten
    std::exchange(thread_, nullptr)->wait();
    return true;
}

void DictionaryLoader::onLoaded() {
    if (!join())
        return;
    emit aboutToReplace();
    TfrmProject& project = TfrmProject::instance();
    project.adoptStagedDictionary();
    settleDataFolder(*project.dictionary());
    project.setRoot(buildMirror(*project.dictionary()));
    const QStringList missing = missingFiles(project.root());
    project.setAllPathsFound(missing.isEmpty());
    emit loaded(missing);
}

void DictionaryLoader::onError(const QString& message) {
    if (!join())
        return;
    TfrmProject::instance().abandonOpening();
    emit failed(message);
}
