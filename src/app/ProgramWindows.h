// SPDX-License-Identifier: GPL-3.0-or-later
// Opens the windows of programs in the work area, and brings back the texts that a crash left
// behind.
#pragma once

#include <QObject>
#include <QStringList>

class KelSystem;
class ProcessProgramSPC;
class Shell;
class WorkArea;

class ProgramWindows : public QObject {
    Q_OBJECT

public:
    ProgramWindows(Shell& shell, WorkArea& workArea, KelSystem& system, QObject* parent);

    /// execute: a program that runs others.
    void newProgram(bool execute);
    /// Goes to the window that has the file, or opens one.
    void openProgram(const QString& path, bool execute);
    /// Asks what becomes of unsaved texts of a program that ended without its user's will.
    void offerRecovered();

    /// Program files in the folder of that dictionary, by name.
    static QStringList programsBeside(const QString& dictionaryPath);

signals:
    void recentChanged();

private:
    ProcessProgramSPC* makeWindow(bool execute);
    void show(ProcessProgramSPC* window);
    bool goTo(const QString& path, bool execute);

    Shell& shell_;
    WorkArea& workArea_;
    KelSystem& system_;
};
