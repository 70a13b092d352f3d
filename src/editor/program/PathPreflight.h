// SPDX-License-Identifier: GPL-3.0-or-later
// Looks before a run whether the folders exist that a program writes into, so that hours of
// counting are not lost at the last step.
#pragma once

#include <QString>

/// Empty where all of them exist, else the message for the user, about the first one that does not.
/// Relative paths are taken from the folder; where that is empty they are left to the engine.
/// Either slash separates.
QString missingFolder(const QString& program, const QString& folder);
