// SPDX-License-Identifier: GPL-3.0-or-later
// From a dictionary that the engine has read to one that the program works with.
#pragma once

#include "projects/TfrmProject.h"

#include <QString>
#include <QStringList>

struct LoadedDictionary {
    QStringList missing; ///< entities, and variables by full name, whose data file was not found
    bool clean = true;   ///< the dictionary's own file is there
};

/// Makes the staged dictionary of TfrmProject the open one: settles the folder of its data, builds
/// the mirror, looks for the data files and logs those that are missing.
LoadedDictionary adoptLoadedDictionary();

/// Opens the file in place of what is open, on this thread; the engine may ask for a password or
/// for the data folder. Throws std::exception with a text, and leaves what is open, where that
/// fails.
LoadedDictionary reloadDictionary(const QString& path, DictionaryKind kind);

/// Builds the mirror of the open dictionary anew and looks for the data files again.
LoadedDictionary rebuildMirror();
