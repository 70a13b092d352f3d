// SPDX-License-Identifier: GPL-3.0-or-later
// The log of the window of results.
#pragma once

#include <QLoggingCategory>

class TKelOutput;

Q_DECLARE_LOGGING_CATEGORY(resultLog)

/// All of an output, row by row; only while the log takes such details.
void dumpOutput(TKelOutput& output);
