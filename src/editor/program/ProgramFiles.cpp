// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/program/ProgramFiles.h"

#include "app/dialogs/KelvoraFileDialog.h"
#include "app/messages/Messages.h"
#include "app/settings/KelSystem.h"
#include "editor/files/FileChangeNotice.h"
#include "editor/files/FileWatch.h"
#include "editor/files/RecoveryStore.h"
#include "editor/program/ProgramDocument.h"
#include "editor/text/TabbedEditor.h"
#include "engine/execution/RunGuard.h"
#include "projects/TfrmProject.h"

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QTextDocument>

namespace {

const QString kind = QStringLiteral("PROGRAM");
constexpr std::chrono::milliseconds longestDelay{80}; ///< of a run, by the copies

QString filter() {
    return ProgramFiles::tr("Kelx Command Set (*.spc)");
}

/// Empty where no dictionary is open: then the dialog begins where the last one ended.
QString dictionaryFolder() {
    const TfrmProject& project = TfrmProject::instance();
    return project.isOpen() ? QFileInfo(project.dictionaryPath()).absolutePath() : QString();
}

void warn(const QString& error) {
    // The same words for reading and writing.
    showWarning(ProgramFiles::tr("Cannot save file: ") + error);
}

bool isFresh(const Editor& editor) {
    return editor.isUntitled() && !editor.document()->isModified();
}

} // namespace

ProgramFiles::ProgramFiles(TabbedEditor& tabs, bool executeMode, QObject* parent)
    : QObject(parent), tabs_(tabs), watch_(new FileWatch(this)), executeMode_(executeMode) {
    const auto mayAsk = [this] { return tabs_.isVisible() && !RunGuard::isRunning(); };
    notice_ = new FileChangeNotice(
        *watch_, [this](const QString& path) { return editorOf(path); }, mayAsk, this);
    connect(notice_, &FileChangeNotice::reloaded, this, [this](const QString& path) {
        if (Editor* editor = editorOf(path))
            ProgramDocument::of(*editor)->noticeReload();
        emit titlesChanged();
    });
    connect(notice_, &FileChangeNotice::kept, this, [this](const QString& path) {
        if (Editor* editor = editorOf(path))
            ProgramDocument::of(*editor)->noticeLoss();
    });
    for (Editor* editor : tabs_.editors())
        adopt(*editor);
}

void ProgramFiles::keepCopies() {
    const QDeadlineTimer end(longestDelay);
    for (Editor* editor : tabs_.editors())
        ProgramDocument::of(*editor)->keepCopy();
    RecoveryStore::instance().waitBriefly(std::chrono::milliseconds(end.remainingTime()));
}

ProgramDocument& ProgramFiles::adopt(Editor& editor) {
    editor.setExecuteMode(executeMode_);
    connect(editor.document(), &QTextDocument::modificationChanged, this,
            &ProgramFiles::titlesChanged);
    return *new ProgramDocument(editor, *watch_);
}

QString ProgramFiles::nextName() {
    QString name = tr("Untitled document");
    if (untitled_ > 0)
        name += QStringLiteral(" %1").arg(untitled_);
    ++untitled_;
    return name;
}

void ProgramFiles::nameFirst() {
    Editor& first = *tabs_.editor(0);
    ProgramDocument::of(first)->nameUntitled(nextName());
    tabs_.setTabText(0, first.displayName());
    emit titlesChanged();
}

Editor* ProgramFiles::add() {
    Editor* editor = tabs_.addEditor();
    adopt(*editor);
    emit editorAdded(editor);
    return editor;
}

Editor* ProgramFiles::newProgram() {
    Editor* editor = add();
    ProgramDocument::of(*editor)->nameUntitled(nextName());
    emit titlesChanged();
    return editor;
}

Editor* ProgramFiles::editorOf(const QString& path) const {
    const QFileInfo wanted(path);
    for (Editor* editor : tabs_.editors())
        if (!editor->filePath().isEmpty() && QFileInfo(editor->filePath()) == wanted)
            return editor;
    return nullptr;
}

Editor& ProgramFiles::tabForFile() {
    Editor* current = tabs_.currentEditor();
    return current != nullptr && isFresh(*current) ? *current : *add();
}

bool ProgramFiles::open() {
    const KelvoraFileDialog dialog(kind, QString(), tr("Open"));
    const QString path = dialog.openFile(filter());
    return !path.isEmpty() && show(path, true);
}

bool ProgramFiles::openPath(const QString& path) {
    return show(path, false);
}

bool ProgramFiles::show(const QString& path, bool evenIfEmpty) {
    if (Editor* open = editorOf(path)) {
        tabs_.setCurrentWidget(open);
        return true;
    }
    if (others_.goTo && others_.goTo(path))
        return true;
    const TextFileResult file = readTextFile(path);
    if (!file.succeeded)
        warn(file.error);
    if (!file.succeeded || (file.text.isEmpty() && !evenIfEmpty))
        return file.succeeded;
    KelSystem::instance().setDirectoryFor(kind, QFileInfo(path).absolutePath());
    ProgramDocument::of(tabForFile())->show(path, file);
    emit titlesChanged();
    emit fileUsed(path);
    return true;
}

QString ProgramFiles::askPath(Editor& editor, Target target) const {
    const QString title = target == Target::Asked ? tr("Save As") : tr("Save");
    const QString name = QFileInfo(editor.displayName()).completeBaseName();
    const KelvoraFileDialog dialog(kind, dictionaryFolder(), title);
    return dialog.saveFile(filter(), QStringLiteral(".spc"), name + QStringLiteral(".spc"));
}

bool ProgramFiles::save(Editor& editor, Target target) {
    QString path = editor.filePath();
    if (target == Target::Asked || path.isEmpty())
        path = askPath(editor, target);
    if (path.isEmpty())
        return false;
    if (!mayWrite(editor, path))
        return false;
    write(editor, path);
    return true;
}

bool ProgramFiles::isElsewhere(const QString& path) const {
    return others_.have && others_.have(path);
}

bool ProgramFiles::mayWrite(Editor& editor, const QString& path) {
    const Editor* holder = editorOf(path);
    if (holder == &editor)
        return notice_->maySave(path);
    const QString name = QFileInfo(path).fileName();
    if (holder != nullptr)
        showWarning(tr("The file %1 is open in another tab.").arg(name));
    else if (isElsewhere(path))
        showWarning(tr("The file %1 is open in another window.").arg(name));
    else
        return true; // the dialog has asked whether to replace it
    return false;
}

void ProgramFiles::write(Editor& editor, const QString& path) {
    const QString error = ProgramDocument::of(editor)->write(path);
    emit titlesChanged();
    if (error.isEmpty())
        emit fileUsed(path);
    if (!error.isEmpty())
        warn(error);
    else if (!editor.document()->isEmpty())
        emit statusTold(tr("Document saved"));
}

bool ProgramFiles::mayClose(Editor& editor) {
    if (!editor.document()->isModified()) {
        emit savedTabToClose(editor.filePath());
        return true;
    }
    if (editor.document()->isEmpty())
        return true;
    const QString question =
        tr("Do you want to save the changes to ") + editor.displayName() + QLatin1Char('?');
    switch (askYesNoCancel(tr("Unsaved changes"), question)) {
    case Choice::No:
        return true;
    case Choice::Cancel:
        return false;
    case Choice::Yes:
        break;
    }
    if (!save(editor, Target::Own) || ProgramDocument::of(editor)->hasFailedToWrite())
        return false;
    emit savedTabToClose(editor.filePath());
    return true;
}

bool ProgramFiles::close(Editor& editor) {
    if (RunGuard::isRunning())
        return false;
    Editor* before = tabs_.currentEditor();
    tabs_.setCurrentWidget(&editor);
    if (!mayClose(editor))
        return false;
    remove(editor);
    if (before != &editor)
        tabs_.setCurrentWidget(before);
    return true;
}

void ProgramFiles::remove(Editor& editor) {
    ProgramDocument::of(editor)->discard();
    // Its file may be opened anew before it is gone.
    delete ProgramDocument::of(editor);
    tabs_.removeTab(tabs_.indexOf(&editor));
    editor.hide();
    editor.deleteLater();
}

void ProgramFiles::restore(const RecoveryCopy& copy) {
    Editor* open = copy.filePath.isEmpty() ? nullptr : editorOf(copy.filePath);
    const bool replaces = open != nullptr && !open->document()->isModified();
    if (replaces)
        tabs_.setCurrentWidget(open);
    Editor& editor = replaces ? *open : tabForFile();
    ProgramDocument::of(editor)->restore(copy);
    emit titlesChanged();
}
