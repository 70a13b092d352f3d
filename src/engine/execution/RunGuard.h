// SPDX-License-Identifier: GPL-3.0-or-later
// Tells the whole process that a program runs, or its results are written, on the GUI thread. The
// progress window processes events, so whoever would begin something else asks first.
#pragma once

#include <functional>

class QObject;

class RunGuard {
public:
    RunGuard();
    ~RunGuard();
    RunGuard(const RunGuard&) = delete;
    RunGuard& operator=(const RunGuard&) = delete;

    /// True while any guard lives: no second run, no load, no closing, no rebuilt ribbon.
    static bool isRunning();
    /// Calls it at once where nothing runs, else with the events behind the run and what follows it
    /// under a guard; not at all where the context has gone by then.
    static void afterwards(QObject* context, std::function<void()> action);
};
