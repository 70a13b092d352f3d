// SPDX-License-Identifier: GPL-3.0-or-later
// An entity or variable of a .dicx file and the data file that it names, and the reader of them.
#pragma once

#include <QString>

#include <functional>

class QIODevice;

/// One "entity" or "variable" element, as far as the check of a dictionary needs it.
struct XmlDicxFileItem {
    enum class Kind { Entity, Variable };

    Kind kind = Kind::Entity;
    QString name;
    QString fileName; ///< as written in the file
    int others = 0;   ///< further items that name the same file

    QString kindText() const; ///< "Entity" or "Variable", translated
    QString bareName() const; ///< of the file, without its folder
    /// Where the file must lie if the dictionary is in that folder; the folder itself where no file
    /// is named. Backslashes separate too.
    QString path(const QString& folder) const;
};

/// Gives the items of a well-formed document to visit, the root entity first, each entity before
/// its variables and these before the entities below it. Ends where visit answers false, at the
/// first fault of the document, and beyond what any dictionary may hold.
void readDicxItems(QIODevice* file, const std::function<bool(const XmlDicxFileItem&)>& visit);
