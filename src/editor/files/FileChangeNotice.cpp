// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/files/FileChangeNotice.h"

#include "app/messages/Messages.h"
#include "editor/files/FileWatch.h"
#include "editor/files/Fingerprint.h"
#include "editor/files/TextFile.h"

#include <QApplication>
#include <QDir>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QTextBlock>

namespace {

constexpr int retryInterval = 300; // milliseconds

/// As one step that can be undone, with the cursor in the same line.
void replaceText(QPlainTextEdit& editor, const QString& text) {
    const int line = editor.textCursor().blockNumber();
    QTextCursor all(editor.document());
    all.select(QTextCursor::Document);
    all.insertText(text);
    const QTextBlock block = editor.document()->findBlockByNumber(line);
    editor.setTextCursor(QTextCursor(block.isValid() ? block : editor.document()->lastBlock()));
    editor.document()->setModified(false);
}

} // namespace

FileChangeNotice::FileChangeNotice(FileWatch& watch, EditorOf editorOf,
                                   std::function<bool()> mayAsk, QObject* parent)
    : QObject(parent), watch_(watch), editorOf_(std::move(editorOf)), mayAsk_(std::move(mayAsk)) {
    const auto remember = [this](const QString& path) {
        waiting_ += path;
        askWhenPossible();
    };
    connect(&watch, &FileWatch::changed, this, remember);
    connect(&watch, &FileWatch::removed, this, remember);
    retry_.setSingleShot(true);
    retry_.setInterval(retryInterval);
    connect(&retry_, &QTimer::timeout, this, &FileChangeNotice::askWhenPossible);
}

bool FileChangeNotice::isFree() const {
    return !asking_ && QGuiApplication::applicationState() == Qt::ApplicationActive &&
           QApplication::activeModalWidget() == nullptr &&
           QApplication::activePopupWidget() == nullptr && mayAsk_();
}

void FileChangeNotice::askWhenPossible() {
    if (waiting_.isEmpty())
        return;
    if (isFree()) {
        const QScopedValueRollback<bool> asking(asking_, true);
        const QString path = *waiting_.cbegin();
        waiting_.remove(path);
        ask(path);
    }
    if (!waiting_.isEmpty())
        retry_.start();
}

/// By then the file may have changed again, or its tab been closed.
void FileChangeNotice::ask(const QString& path) {
    QPlainTextEdit* editor = editorOf_(path);
    const FileWatch::State state = watch_.stateOf(path);
    if (editor == nullptr || state == FileWatch::State::Same)
        return;
    if (state == FileWatch::State::Removed)
        tellRemoval(path, *editor);
    else if (!holdsTheSame(path, *editor))
        askAboutChange(path, *editor);
}

/// Both have come to the same text in different ways.
bool FileChangeNotice::holdsTheSame(const QString& path, QPlainTextEdit& editor) {
    const TextFileResult file = readTextFile(path);
    if (!file.succeeded || file.text != textOf(*editor.document()))
        return false;
    watch_.watch(path, file.fingerprint);
    editor.document()->setModified(false);
    emit reloaded(path);
    return true;
}

void FileChangeNotice::askAboutChange(const QString& path, const QPlainTextEdit& editor) {
    const QString shown = QDir::toNativeSeparators(path);
    const bool modified = editor.document()->isModified();
    const QString question =
        modified ? tr("The file %1 was changed by another program, and this text has changes that "
                      "are not saved. Saving will replace the file.\n\nDo you want to reload the "
                      "file instead?")
                 : tr("The file %1 was changed by another program. Do you want to reload it?");
    const QByteArray seen = fingerprintOfFile(path);
    const bool reloads =
        askYesNo(tr("File changed"), question.arg(shown), tr("Reload"), tr("Keep"), !modified);
    QPlainTextEdit* still = editorOf_(path);
    if (still == nullptr)
        return;
    if (reloads)
        reload(path, *still);
    else
        keepText(path, *still, seen);
}

void FileChangeNotice::reload(const QString& path, QPlainTextEdit& editor) {
    const TextFileResult file = readTextFile(path);
    if (!file.succeeded) {
        keepText(path, editor, fingerprintOfFile(path));
        showWarning(tr("The file %1 cannot be reloaded: %2")
                        .arg(QDir::toNativeSeparators(path), file.error));
        return;
    }
    watch_.watch(path, file.fingerprint);
    replaceText(editor, file.text);
    emit reloaded(path);
}

/// The text is no longer that of the file, so closing has to ask.
void FileChangeNotice::keepText(const QString& path, QPlainTextEdit& editor,
                                const QByteArray& seen) {
    watch_.accept(path, seen);
    editor.document()->setModified(true);
    emit kept(path);
}

void FileChangeNotice::tellRemoval(const QString& path, QPlainTextEdit& editor) {
    keepText(path, editor, {});
    showWarning(tr("The file %1 was removed by another program. Its text stays open here: save it "
                   "to keep it.")
                    .arg(QDir::toNativeSeparators(path)));
}

bool FileChangeNotice::maySave(const QString& path) {
    if (!watch_.changedSince(path))
        return true;
    const QScopedValueRollback<bool> asking(asking_, true);
    return askYesNo(tr("File changed"),
                    tr("The file %1 was changed by another program since it was read here. Do you "
                       "want to replace it?")
                        .arg(QDir::toNativeSeparators(path)),
                    tr("Replace"), tr("Cancel"), false);
}
