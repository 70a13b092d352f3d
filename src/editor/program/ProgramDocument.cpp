// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/program/ProgramDocument.h"

#include "editor/files/FileWatch.h"
#include "editor/files/RecoveryRow.h"
#include "editor/files/RecoveryStore.h"
#include "editor/files/RecoveryWriter.h"
#include "editor/text/Editor.h"

#include <QTextDocument>

ProgramDocument::ProgramDocument(Editor& editor, FileWatch& watch)
    : QObject(&editor), editor_(editor), watch_(&watch),
      copy_(new RecoveryWriter(RecoveryStore::instance(), editor, editor.executeMode())) {}

ProgramDocument::~ProgramDocument() {
    if (watch_ != nullptr && !editor_.filePath().isEmpty())
        watch_->unwatch(editor_.filePath());
}

ProgramDocument* ProgramDocument::of(const Editor& editor) {
    return editor.findChild<ProgramDocument*>(QString(), Qt::FindDirectChildrenOnly);
}

void ProgramDocument::nameUntitled(const QString& name) {
    editor_.setUntitledName(name);
    copy_->setOrigin(QString(), name);
}

void ProgramDocument::bind(const QString& path) {
    if (editor_.filePath() != path && !editor_.filePath().isEmpty())
        watch_->unwatch(editor_.filePath());
    editor_.setFilePath(path);
    copy_->setOrigin(path, editor_.displayName());
}

void ProgramDocument::show(const QString& path, const TextFileResult& file) {
    bind(path);
    watch_->watch(path, file.fingerprint);
    editor_.setPlainText(file.text);
    noticeReload();
}

void ProgramDocument::noticeReload() {
    editor_.document()->setModified(false);
    copy_->written(basis());
    failed_ = false;
}

void ProgramDocument::noticeLoss() {
    copy_->lostFile(basis());
}

void ProgramDocument::keepCopy() {
    copy_->hurry();
}

QByteArray ProgramDocument::basis() const {
    return watch_->knownOf(editor_.filePath());
}

QString ProgramDocument::write(const QString& path) {
    bind(path);
    watch_->watch(path);
    watch_->beginWriting(path);
    const TextFileResult result = writeTextFile(path, textOf(*editor_.document()));
    watch_->endWriting(path, result.fingerprint);
    failed_ = !result.succeeded;
    if (failed_)
        copy_->flush();
    else
        copy_->written(basis());
    editor_.document()->setModified(false);
    return result.error;
}

void ProgramDocument::restore(const RecoveryCopy& copy) {
    if (copy.filePath.isEmpty()) {
        nameUntitled(copy.name);
    } else {
        bind(copy.filePath);
        watch_->watch(copy.filePath);
        const RecoveryOrigin origin = originOf(copy);
        if (origin == RecoveryOrigin::Newer || origin == RecoveryOrigin::Unreadable)
            watch_->distrust(copy.filePath, copy.basis);
    }
    copy_->adopt(copy.id, basis());
    editor_.setPlainText(copy.text);
    editor_.document()->setModified(true);
}

void ProgramDocument::discard() {
    if (!failed_ || editor_.document()->isModified())
        copy_->discard();
}
