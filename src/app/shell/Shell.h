// SPDX-License-Identifier: GPL-3.0-or-later
// What the parts of the workbench may ask of the main window, which stands above them all.
#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QDockWidget;
class QMdiSubWindow;
class QWidget;
class TKelOutput;
class TKelSession;

/// GUI thread only.
class Shell {
public:
    virtual ~Shell();

    /// Busy: the text and the wait cursor until the next call that is not. Not busy: the text for
    /// 2000 ms.
    virtual void showStatus(const QString& text, bool busy) = 0;

    /// Beside the docks that stand there already; the window owns it from now on.
    virtual void addDockLeft(QDockWidget* dock) = 0;
    virtual void addDockRight(QDockWidget* dock) = 0;
    /// By object name; null where there is none.
    virtual QDockWidget* dock(const QString& name) const = 0;
    virtual bool dockExists(const QString& name) const = 0;
    virtual void closeDock(const QString& name) = 0; ///< deletes it, by object name

    /// Puts a window into the work area, as a tab or sub-window that owns it.
    virtual QMdiSubWindow* addWindow(QWidget* content) = 0;
    virtual bool hasWindows() const = 0; ///< the work area holds any

    /// Runs a program text against the open dictionary and shows what it makes.
    virtual void runProgram(const QString& program) = 0;
    /// Hands the outputs of a run to the window of results, which comes to the front, and writes
    /// the files that they ask for (OUTFILE). programText: as the user wrote it. Gives a line for
    /// each file that went elsewhere or could not be written.
    virtual QStringList showResults(const std::vector<TKelOutput*>& outputs,
                                    const std::shared_ptr<TKelSession>& session,
                                    const QString& programText) = 0;
    /// Writes the files that the outputs ask for and shows nothing. Gives the same lines.
    virtual QStringList writeDirectOutputs(const std::vector<TKelOutput*>& outputs) = 0;

    /// Runs have saved variables that are to be shown. Does nothing where no dictionary is shown.
    virtual void reloadDictionary();

    /// What dialogs stand in front of.
    virtual QWidget* window() = 0;
};
