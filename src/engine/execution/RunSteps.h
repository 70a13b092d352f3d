// SPDX-License-Identifier: GPL-3.0-or-later
// What every compilation and run begins and ends with: the checks before it, and how a fault that
// ended it is told.
#pragma once

#include <QString>

#include <exception>
#include <memory>

class QListWidget;
class Shell;
class TKelDictionary;

class RunSteps {
public:
    /// errors: takes faults; where it is null a box does.
    RunSteps(Shell& shell, QListWidget* errors) : shell_(shell), errors_(errors) {}

    /// The open dictionary; null, after telling why, where nothing can be compiled or run now.
    std::shared_ptr<TKelDictionary> compiling() const;
    std::shared_ptr<TKelDictionary> running() const; ///< the same, with a word in the status bar

    static void tellTime(double seconds);
    static void log(const std::exception& fault);
    void fail(const std::exception& fault) const; ///< tells why the run has ended

private:
    bool isFree() const;

    Shell& shell_;
    QListWidget* errors_;
};
