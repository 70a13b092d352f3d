// SPDX-License-Identifier: GPL-3.0-or-later
// Saves the open dictionary, in its place or elsewhere. Shows nothing: what fails throws
// std::exception with a text for the user, and leaves file, names and mark of changes as they were.
#pragma once

#include "dictionary/loading/LoadedDictionary.h"

#include <QString>

class TKelDictionary;
class TKpEntity;

class DictionarySaver {
public:
    explicit DictionarySaver(TfrmProject& project) : project_(project) {}

    /// Saves in the dictionary's own file and clears the mark of changes: on_saveDictionary.
    void save();

    /// Writes the dictionary to another file and gives the kind it has from then on: 1 stays 1, 0
    /// stays 0, 2 and 3 become 2. What is open is still the old file: reopen() comes next, once the
    /// views have let go.
    DictionaryKind saveAs(const QString& path);
    /// Makes the file that saveAs() wrote the open one, with a new mirror. Where that throws, the
    /// old one is still open.
    LoadedDictionary reopen(const QString& path, DictionaryKind kind);

    /// What a file dialog of Save As offers for the kind: ".dicx" or ".kxdb".
    static QString suffixFor(DictionaryKind kind);

private:
    TKelDictionary& dictionary() const;

    TfrmProject& project_;
};

/// The one way to write a dictionary: as XML for kinds 0 and 1 where the path ends in .dicx, else
/// by the engine, which also clears the mark of changes. File names follow to the path's folder.
void saveDictionaryFile(DictionaryKind kind, const QString& path, TfrmProject& project);

/// Has the engine write the open dictionary. Where the folder is another than that of the data, the
/// file names are rewritten.
void saveBinary(const QString& path, bool sameFolder, TfrmProject& project);
