// SPDX-License-Identifier: GPL-3.0-or-later
// Takes a program text to its results: behind every program window, assistant and quick tool. The
// GUI thread is inside the engine until a run has ended; the progress window repaints and cancels.
#pragma once

#include <QObject>
#include <QStringList>

#include <cstdint>
#include <memory>

class QListWidget;
class RunProgress;
class Shell;
class TKelSession;
class TKelSpcErrorsListenerImpl;

/// GUI thread only. Refuses, with a message, while another run goes on.
class ProcessExecuter : public QObject {
    Q_OBJECT

public:
    using Listener = std::shared_ptr<TKelSpcErrorsListenerImpl>;

    ProcessExecuter(Shell& shell, QString language, QObject* parent = nullptr);
    ~ProcessExecuter() override;

    /// The quick test before execute(): true where a session can be made.
    bool compile(const QString& program);
    /// The real check. The fault that ends it is appended to the list; the located messages are the
    /// listener's.
    void compile(const QString& program, const Listener& listener, QListWidget* errors);

    void execute(const QString& program); ///< runs, and tells faults in a box
    void runText(const QString& program, const Listener& listener); ///< faults in a box
    /// Faults are inserted into the list. shownText: what the results say was run; the program
    /// itself where it is empty.
    void runText(const QString& program, const Listener& listener, QListWidget* errors,
                 const QString& shownText = {});

    /// The listener's messages as lines, errors before warnings. report: says so where there are
    /// none. block: it is a block that they are of.
    QStringList compileMessages(const Listener& listener, bool block, bool report);
    /// firstLine: the 0-based line where the block begins.
    QStringList compileBlockMessages(const Listener& listener, std::int64_t firstLine, bool report);

public slots:
    void on_cancelProcess(); ///< ends the run, if one goes on

private:
    struct Run;

    void run(const Run& run);
    bool executeText(TKelSession& session, const Run& run);
    bool timerCallback(int expected, int elapsed, int percent);
    void showOutputs(const std::shared_ptr<TKelSession>& session, const Run& run);

    Shell& shell_;
    QString language_;
    RunProgress* progress_ = nullptr; ///< of the run that goes on
};
