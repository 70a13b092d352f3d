// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/loading/DictionarySaver.h"

#include "dictionary/mirror/DictionaryUtil.h"
#include "dictionary/mirror/TKpEntity.h"
#include "kel.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFileInfo>

#include <optional>
#include <stdexcept>

namespace {

bool isXmlKind(DictionaryKind kind) {
    return kind == DictionaryKind::LegacyProject || kind == DictionaryKind::Dicx;
}

bool isXmlPath(const QString& path) {
    return path.endsWith(QLatin1String(".dicx"), Qt::CaseInsensitive);
}

QString folderOf(const QString& path) {
    return QFileInfo(path).absolutePath();
}

bool isDataFolder(TKelDictionary& dictionary, const QString& folder) {
    return QDir::cleanPath(QString::fromStdString(dictionary.dataPath())) ==
           QDir::cleanPath(folder);
}

void requireOpen(const TfrmProject& project) {
    if (!project.isOpen() || project.root() == nullptr)
        throw std::runtime_error(
            QCoreApplication::translate("DictionarySaver", "There is no open dictionary.")
                .toStdString());
}

} // namespace

void saveBinary(const QString& path, bool sameFolder, TfrmProject& project) {
    requireOpen(project);
    TKelDictionary& dictionary = *project.dictionary();
    qDebug() << "saveBinary" << path;
    std::optional<FileRelocation> relocation;
    if (!sameFolder)
        relocation.emplace(dictionary, *project.root(), folderOf(path));
    dictionary.setRoot(dictionary.root());
    kel::saveDictionary(project.dictionary(), path.toStdString());
    if (relocation)
        relocation->keep();
}

void saveDictionaryFile(DictionaryKind kind, const QString& path, TfrmProject& project) {
    requireOpen(project);
    TKelDictionary& dictionary = *project.dictionary();
    if (isXmlKind(kind) && isXmlPath(path)) {
        const DictionaryUtil util;
        FileRelocation relocation = util.relocateFiles(dictionary, *project.root(), folderOf(path));
        util.writeDicx(path, dictionary, *project.root());
        relocation.keep();
    } else {
        saveBinary(path, isDataFolder(dictionary, folderOf(path)), project);
    }
    dictionary.setDirty(false);
}

void DictionarySaver::save() {
    saveDictionaryFile(project_.dictionaryKind(), project_.dictionaryPath(), project_);
}

DictionaryKind DictionarySaver::saveAs(const QString& path) {
    const DictionaryKind kind = project_.dictionaryKind();
    if (!isXmlKind(kind)) {
        saveBinary(path, isDataFolder(dictionary(), folderOf(path)), project_);
        return DictionaryKind::Kxdb;
    }
    // The names move for the new file only: the old one is open until it is replaced.
    const DictionaryUtil util;
    const FileRelocation relocation =
        util.relocateFiles(dictionary(), *project_.root(), folderOf(path));
    util.writeDicx(path, dictionary(), *project_.root());
    return kind;
}

LoadedDictionary DictionarySaver::reopen(const QString& path, DictionaryKind kind) {
    if (isXmlKind(kind))
        return reloadDictionary(path, kind);
    // The engine's dictionary is that of the new file already; reading it again would only ask for
    // the password of a protected one.
    project_.setDictionaryPath(path);
    project_.setDictionaryKind(kind);
    dictionary().setDirty(false);
    return rebuildMirror();
}

QString DictionarySaver::suffixFor(DictionaryKind kind) {
    return isXmlKind(kind) ? QStringLiteral(".dicx") : QStringLiteral(".kxdb");
}

TKelDictionary& DictionarySaver::dictionary() const {
    requireOpen(project_);
    return *project_.dictionary();
}
