// SPDX-License-Identifier: GPL-3.0-or-later
// A shell that keeps what a run asks of it, and an open dictionary to run against.
#pragma once

#include "app/messages/Messages.h"
#include "app/shell/Shell.h"
#include "engine/TKelSpcErrorsListenerImpl.h"

#include <QListWidget>
#include <QMainWindow>
#include <QStringList>

#include <functional>
#include <memory>

class QProgressDialog;

class RecordingShell : public Shell {
public:
    void showStatus(const QString& text, bool busy) override;
    void addDockLeft(QDockWidget*) override {}
    void addDockRight(QDockWidget*) override {}
    QDockWidget* dock(const QString&) const override { return nullptr; }
    bool dockExists(const QString&) const override { return false; }
    void closeDock(const QString&) override {}
    QMdiSubWindow* addWindow(QWidget*) override { return nullptr; }
    bool hasWindows() const override { return false; }
    void runProgram(const QString&) override {}
    QStringList showResults(const std::vector<TKelOutput*>& outputs,
                            const std::shared_ptr<TKelSession>& session,
                            const QString& programText) override;
    QStringList writeDirectOutputs(const std::vector<TKelOutput*>& outputs) override;
    void reloadDictionary() override { ++reloads; }
    QWidget* window() override { return &window_; }

    /// The window of a kind; null before the first run.
    QProgressDialog* progress(const char* name = "runProgress") const;

    QStringList statuses;            ///< "..." behind those of a busy program
    QStringList shown;               ///< program texts of the results
    std::vector<TKelOutput*> direct; ///< asked to be written
    QStringList writeFaults;         ///< answered then
    std::function<void()> onResults;
    int reloads = 0;

private:
    QMainWindow window_;
};

/// Starts the engine and opens the database for the process.
class ExecuterFixture {
public:
    using Listener = std::shared_ptr<TKelSpcErrorsListenerImpl>;

    ExecuterFixture();
    ~ExecuterFixture();
    ExecuterFixture(const ExecuterFixture&) = delete;
    ExecuterFixture& operator=(const ExecuterFixture&) = delete;

    static void open(const QString& path);
    static Listener listener() { return std::make_shared<TKelSpcErrorsListenerImpl>(); }
    /// The list's rows.
    QStringList rows() const;

    RecordingShell shell;
    QListWidget errors;
    QStringList messages; ///< of boxes
};
