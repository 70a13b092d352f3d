// SPDX-License-Identifier: GPL-3.0-or-later
// What is told of a file that was not written.
#pragma once

#include <QString>

struct WriteOutcome;

/// One line: which file, and why.
QString resultFault(const WriteOutcome& outcome);
