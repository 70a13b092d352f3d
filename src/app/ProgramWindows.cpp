// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ProgramWindows.h"

#include "app/WorkArea.h"
#include "app/settings/KelSystem.h"
#include "app/shell/Shell.h"
#include "editor/files/RecoveryDialog.h"
#include "editor/files/RecoveryStore.h"
#include "editor/program/ExecuteProgramSPC.h"
#include "editor/program/ProcessProgramSPC.h"

#include <QDir>
#include <QFileInfo>
#include <QMdiSubWindow>

namespace {

constexpr int mostBeside = 30; ///< entries of a menu

} // namespace

ProgramWindows::ProgramWindows(Shell& shell, WorkArea& workArea, KelSystem& system, QObject* parent)
    : QObject(parent), shell_(shell), workArea_(workArea), system_(system) {}

ProcessProgramSPC* ProgramWindows::makeWindow(bool execute) {
    auto* window =
        execute ? new ExecuteProgramSPC(shell_, system_) : new ProcessProgramSPC(shell_, system_);
    connect(window, &ProcessProgramSPC::fileUsed, this, [this, execute](const QString& path) {
        system_.addRecentProgram(path, execute);
        emit recentChanged();
    });
    return window;
}

void ProgramWindows::show(ProcessProgramSPC* window) {
    workArea_.setActiveSubWindow(shell_.addWindow(window));
}

void ProgramWindows::newProgram(bool execute) {
    show(makeWindow(execute));
}

bool ProgramWindows::goTo(const QString& path, bool execute) {
    for (QMdiSubWindow* frame : workArea_.windows()) {
        auto* window = qobject_cast<ProcessProgramSPC*>(frame->widget());
        if (window == nullptr || window->isExecuteWindow() != execute || !window->hasFile(path))
            continue;
        workArea_.setActiveSubWindow(frame);
        return window->openFile(path);
    }
    return false;
}

void ProgramWindows::openProgram(const QString& path, bool execute) {
    if (goTo(path, execute))
        return;
    ProcessProgramSPC* window = makeWindow(execute);
    if (window->openFile(path))
        show(window);
    else
        delete window; // it has told why
}

void ProgramWindows::offerRecovered() {
    for (const RecoveryCopy& copy :
         RecoveryDialog::ask(RecoveryStore::instance(), shell_.window())) {
        ProcessProgramSPC* window = makeWindow(copy.executeMode);
        window->restore(copy);
        show(window);
    }
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
