// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/loading/LoadedDictionary.h"

#include "app/settings/KelSystem.h"
#include "dictionary/mirror/DictionaryUtil.h"
#include "dictionary/mirror/MirrorBuilder.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"
#include "kel.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>

namespace {

QStringList missingFiles(TKpEntity* root) {
    QStringList missing;
    for (const TKpEntity* entity : DictionaryUtil().entities(root)) {
        if (!entity->isFileMissing())
            continue;
        qDebug() << "File not found:" << entity->name;
        missing += entity->name;
    }
    qsizetype index = 0;
    for (const TKpVariable* variable : DictionaryUtil().allVariables(root)) {
        if (variable->isFileMissing()) {
            qDebug() << "File not found:" << index << variable->fullName;
            missing += variable->fullName;
        }
        ++index;
    }
    return missing;
}

/// The data lie beside the dictionary, unless the user has just shown the engine another folder.
void settleDataFolder(TKelDictionary& dictionary, const QFileInfo& file) {
    const QString told = QString::fromStdString(dictionary.dataPath());
    if (told.isEmpty())
        dictionary.setDataPath(file.absolutePath().toStdString());
    else if (QDir(told) != QDir(file.absolutePath()))
        KelSystem::instance().setDirectoryFor(QStringLiteral("DATADICTIONARY"), told);
}

} // namespace

LoadedDictionary rebuildMirror() {
    TfrmProject& project = TfrmProject::instance();
    project.setRoot(buildMirror(*project.dictionary()));
    LoadedDictionary result;
    result.missing = missingFiles(project.root());
    result.clean = QFileInfo::exists(QString::fromStdString(project.dictionary()->fileName()));
    project.setAllPathsFound(result.missing.isEmpty());
    return result;
}

LoadedDictionary adoptLoadedDictionary() {
    TfrmProject& project = TfrmProject::instance();
    project.adoptStagedDictionary();
    TKelDictionary& dictionary = *project.dictionary();
    const QFileInfo file(QString::fromStdString(dictionary.fileName()));
    if (file.exists())
        settleDataFolder(dictionary, file);
    else
        dictionary.setDirty(true);
    return rebuildMirror();
}

LoadedDictionary reloadDictionary(const QString& path, DictionaryKind kind) {
    auto dictionary = kel::readDictionary(path.toStdString(), nullptr, true);
    TfrmProject& project = TfrmProject::instance();
    project.beginOpening(path, kind);
    project.stageDictionary(std::move(dictionary));
    return adoptLoadedDictionary();
}
