// SPDX-License-Identifier: GPL-3.0-or-later
// The progress window of runs: the engine's callback keeps it, and with it the program, alive while
// the GUI thread is inside the engine.
#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QString>

#include <functional>
#include <memory>

class QWidget;
class InputFilter;
class RunDialog;

/// One window for all of a kind, made at the first use. It shows 400 ms after the run began, holds
/// below 100 until the end, and goes on every way out, exceptions included. Its scope is the run.
/// What the user presses and clicks meanwhile reaches nothing but the window, not even afterwards.
class RunProgress {
public:
    enum class Kind { Program, ProgramList };

    /// onCancel: called once, when the user presses Cancel or Escape.
    RunProgress(Kind kind, QWidget* parent, std::function<void()> onCancel);
    ~RunProgress();
    RunProgress(const RunProgress&) = delete;
    RunProgress& operator=(const RunProgress&) = delete;

    /// Called as often as the engine likes: takes over both, and processes events at most every
    /// 50 ms, without the user's input until the window shows. True where the user has cancelled.
    bool tell(int percent, const QString& label);
    /// As if the user had pressed Cancel.
    void cancel();
    bool wasCancelled() const { return cancelled_; }

private:
    void processEvents();

    QPointer<RunDialog> dialog_;
    std::unique_ptr<InputFilter> filter_;
    std::function<void()> onCancel_;
    QElapsedTimer sinceBegin_;
    QElapsedTimer sinceEvents_;
    bool processing_ = false;
    bool cancelled_ = false;
};
