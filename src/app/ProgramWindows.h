// SPDX-License-Identifier: GPL-3.0-or-later
// Opens the windows of programs in the work area, and brings back the texts that a crash left
// behind.
#pragma once

#include <QMap>
#include <QObject>
#include <QStringList>

class KelSystem;
class ProcessProgramSPC;
class QMdiSubWindow;
class Shell;
class WorkArea;
struct RecoveryCopy;

class ProgramWindows : public QObject {
    Q_OBJECT

public:
    ProgramWindows(Shell& shell, WorkArea& workArea, KelSystem& system, QObject* parent);

    /// execute: a program that runs others.
    void newProgram(bool execute);
    /// Goes to the window that has the file, of whichever kind, or opens one.
    void openProgram(const QString& path, bool execute);
    /// The file in front; empty where the window in front has none, or runs other programs.
    QString activePath() const;
    /// Asks what becomes of unsaved texts of a program that ended without its user's will.
    void offerRecovered();

    /// Program files in the folder of that dictionary, by name.
    static QStringList programsBeside(const QString& dictionaryPath);

signals:
    void recentChanged();

private:
    using MadeWindows = QMap<bool, ProcessProgramSPC*>; ///< by whether they run other programs

    /// path: empty for a new program.
    ProcessProgramSPC* makeWindow(bool execute, const QString& path = {});
    void show(ProcessProgramSPC* window);
    /// Where it is open, or the one made now for its kind.
    ProcessProgramSPC* windowFor(const RecoveryCopy& copy, MadeWindows& made);
    /// Whichever kind it is; null where none has the file.
    QMdiSubWindow* frameOf(const QString& path, const QWidget* besides = nullptr) const;
    bool goTo(const QString& path, const QWidget* besides = nullptr);
    void noteUse(const QString& path, bool execute);

    Shell& shell_;
    WorkArea& workArea_;
    KelSystem& system_;
};
