// SPDX-License-Identifier: GPL-3.0-or-later
// What the pages of the ribbon need to know of the rest of the workbench when they are built.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

struct RibbonState {
    bool dictionaryOpen = false;
    bool dictionaryDirty = false;
    bool loading = false;                   ///< nothing may be opened, saved or closed meanwhile
    bool hasResults = false;                ///< a run has made some
    QStringList recentDictionaries;         ///< whole paths, the newest first
    QStringList recentPrograms;             ///< whole paths, the newest first
    QStringList recentExecutes;             ///< the same of programs that run others
    QStringList dictionaryPrograms;         ///< those beside the open dictionary, by name
    QString language;                       ///< "Process_en" and the like
    QString engineVersion;                  ///< for About
    std::function<QString()> activeProgram; ///< path of the program in front; empty where none is
};
