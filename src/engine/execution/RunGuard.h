// SPDX-License-Identifier: GPL-3.0-or-later
// Tells the whole process that a program runs on the GUI thread. Its progress window processes
// events, so whoever would begin something else asks first.
#pragma once

class RunGuard {
public:
    RunGuard();
    ~RunGuard();
    RunGuard(const RunGuard&) = delete;
    RunGuard& operator=(const RunGuard&) = delete;

    /// True while any guard lives: no second run, no load, no closing, no rebuilt ribbon.
    static bool isRunning();
};
