// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/loading/XmlDicxDictionary.h"

#include "app/messages/Messages.h"

#include <QFileInfo>
#include <QHash>
#include <QThread>
#include <QWidget>

XmlDicxDictionary::XmlDicxDictionary(QWidget* parent, const QUrl& schema, const QString& path)
    : QObject(parent), validator_(schema), path_(path) {}

bool XmlDicxDictionary::check() {
    scan();
    return settle();
}

void XmlDicxDictionary::scan() {
    missing_.clear();
    lastFound_ = true;
    const std::unique_ptr<QFile> file = openFile();
    readable_ = QFileInfo(path_).isFile() && file->open(QIODevice::ReadOnly);
    wellFormed_ = readable_ && validator_.validate(file.get(), QUrl(path_));
    if (wellFormed_)
        findFiles(*file);
}

void XmlDicxDictionary::findFiles(QFile& file) {
    const QString folder = QFileInfo(path_).absolutePath();
    // Where missing_ has a file, by its name: many variables may share it. -1: it was found.
    QHash<QString, qsizetype> known;
    readDicxItems(&file, [&](const XmlDicxFileItem& item) {
        auto found = known.find(item.fileName);
        if (found == known.end()) {
            const bool exists = QFileInfo::exists(item.path(folder));
            found = known.insert(item.fileName, exists ? -1 : missing_.size());
            if (!exists)
                missing_ += item;
        } else if (*found >= 0) {
            ++missing_[*found].others;
        }
        lastFound_ = *found < 0;
        return !QThread::currentThread()->isInterruptionRequested();
    });
}

bool XmlDicxDictionary::settle() {
    if (!readable_) {
        showError(tr("Error by opening the dictionary file"));
        return false;
    }
    if (!wellFormed_)
        return false;
    const Answer answer = askAll();
    if (answer == Answer::Lacking)
        showError(tr("Error opening dictionary [%1]").arg(path_));
    return answer == Answer::Found;
}

XmlDicxDictionary::Answer XmlDicxDictionary::askAll() const {
    bool sameForTheRest = false;
    for (const XmlDicxFileItem& item : missing_) {
        if (ask(item, sameForTheRest) == Answer::Stop)
            return Answer::Stop;
        if (sameForTheRest)
            break;
    }
    return lastFound_ ? Answer::Found : Answer::Lacking;
}

XmlDicxDictionary::Answer XmlDicxDictionary::ask(const XmlDicxFileItem& item,
                                                 bool& sameForTheRest) const {
    QString who = item.kindText() + tr(" [%1]\n");
    if (item.others > 0)
        who.replace('\n', ' ' + tr("(and %n more)", nullptr, item.others) + '\n');
    const QString text = who + tr("File [%2] not found") + '\n' + tr("Do you want to located?");
    switch (askYesNoCancel(tr("Confirm"), text.arg(item.name, item.fileName),
                           tr("The same answer for the rest"), sameForTheRest)) {
    case Choice::No:
        return Answer::Lacking;
    case Choice::Yes:
        showInformation(tr("The files relocation for *.dicx files is not yet supported in KelX"));
        return Answer::Stop;
    default:
        return Answer::Stop;
    }
}

std::unique_ptr<QFile> XmlDicxDictionary::openFile() const {
    return std::make_unique<QFile>(path_);
}
