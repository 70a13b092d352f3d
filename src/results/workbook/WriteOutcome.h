// SPDX-License-Identifier: GPL-3.0-or-later
// How the writing of a file went.
#pragma once

#include <QString>

#include <functional>

struct WriteOutcome {
    bool cancelled = false; ///< the file that was there is as it was
    QString path;           ///< of the file, with the suffix that was added
    QString fault;          ///< why nothing was written; empty where the file is there

    bool written() const { return !cancelled && fault.isEmpty(); }
};

/// Asked now and then while a file is written: cells done, of how many. False stops it.
using WriteProgress = std::function<bool(qint64 done, qint64 total)>;
