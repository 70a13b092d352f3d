// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ProgramWindows.h"

#include "app/WorkArea.h"
#include "app/settings/KelSystem.h"
#include "app/shell/Shell.h"
#include "editor/files/RecoveryDialog.h"
#include "editor/files/RecoveryStore.h"
#include "editor/program/ExecuteProgramSPC.h"
#include "editor/program/ProcessProgramSPC.h"
#include "editor/text/Editor.h"

#include <QDir>
#include <QFileInfo>
#include <QMdiSubWindow>

namespace {

constexpr int mostBeside = 30; ///< entries of a menu

} // namespace

ProgramWindows::ProgramWindows(Shell& shell, WorkArea& workArea, KelSystem& system, QObject* parent)
    : QObject(parent), shell_(shell), workArea_(workArea), system_(system) {}

ProcessProgramSPC* ProgramWindows::makeWindow(bool execute, const QString& path) {
    ProcessProgramSPC* window = execute ? new ExecuteProgramSPC(shell_, system_, path)
                                        : new ProcessProgramSPC(shell_, system_, path);
    connect(window, &ProcessProgramSPC::fileUsed, this,
            [this, execute](const QString& used) { noteUse(used, execute); });
    window->setOtherWindows(
        {[this, window](const QString& wanted) { return frameOf(wanted, window) != nullptr; },
         [this, window](const QString& wanted) { return goTo(wanted, window); }});
    return window;
}

void ProgramWindows::noteUse(const QString& path, bool execute) {
    system_.addRecentProgram(path, execute);
    emit recentChanged();
}

void ProgramWindows::show(ProcessProgramSPC* window) {
    workArea_.setActiveSubWindow(shell_.addWindow(window));
}

void ProgramWindows::newProgram(bool execute) {
    show(makeWindow(execute));
}

QMdiSubWindow* ProgramWindows::frameOf(const QString& path, const QWidget* besides) const {
    for (QMdiSubWindow* frame : workArea_.windows()) {
        const auto* window = qobject_cast<ProcessProgramSPC*>(frame->widget());
        if (window != nullptr && window != besides && window->hasFile(path))
            return frame;
    }
    return nullptr;
}

bool ProgramWindows::goTo(const QString& path, const QWidget* besides) {
    QMdiSubWindow* frame = frameOf(path, besides);
    if (frame == nullptr)
        return false;
    workArea_.setActiveSubWindow(frame);
    return qobject_cast<ProcessProgramSPC*>(frame->widget())->openFile(path);
}

void ProgramWindows::openProgram(const QString& path, bool execute) {
    if (goTo(path))
        return;
    ProcessProgramSPC* window = makeWindow(execute, path);
    if (!window->hasRead()) {
        delete window; // it has told why
        return;
    }
    show(window);
    if (window->hasFile(path))
        noteUse(path, execute); // it was read before anyone listened
}

QString ProgramWindows::activePath() const {
    // Not the active one: there is none while a dialog has the keys.
    const QMdiSubWindow* frame = workArea_.currentSubWindow();
    const auto* window =
        frame != nullptr ? qobject_cast<ProcessProgramSPC*>(frame->widget()) : nullptr;
    const bool has =
        window != nullptr && !window->isExecuteWindow() && window->currentEditor() != nullptr;
    return has ? window->currentEditor()->filePath() : QString();
}

ProcessProgramSPC* ProgramWindows::windowFor(const RecoveryCopy& copy, MadeWindows& made) {
    if (QMdiSubWindow* frame = copy.filePath.isEmpty() ? nullptr : frameOf(copy.filePath)) {
        workArea_.setActiveSubWindow(frame);
        return qobject_cast<ProcessProgramSPC*>(frame->widget());
    }
    ProcessProgramSPC*& window = made[copy.executeMode];
    if (window == nullptr) {
        window = makeWindow(copy.executeMode);
        show(window);
    }
    return window;
}

void ProgramWindows::offerRecovered() {
    MadeWindows made;
    for (const RecoveryCopy& copy : RecoveryDialog::ask(RecoveryStore::instance(), shell_.window()))
        windowFor(copy, made)->restore(copy);
}

QStringList ProgramWindows::programsBeside(const QString& dictionaryPath) {
    if (dictionaryPath.isEmpty())
        return {};
    const QDir folder = QFileInfo(dictionaryPath).absoluteDir();
    QStringList paths;
    for (const QString& name :
         folder
             .entryList({QStringLiteral("*.spc")}, QDir::Files | QDir::Readable,
                        QDir::Name | QDir::IgnoreCase)
             .mid(0, mostBeside))
        paths += folder.filePath(name);
    return paths;
}
