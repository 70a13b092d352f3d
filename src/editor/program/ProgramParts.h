// SPDX-License-Identifier: GPL-3.0-or-later
// What a program window is put together from. Only the window itself sees this.
#pragma once

#include "editor/program/EditorConnections.h"
#include "editor/program/FormatCommands.h"
#include "editor/program/ProcessProgramSPC.h"
#include "editor/program/ProgramActions.h"
#include "editor/program/SchemeKeeper.h"
#include "editor/program/Vocabulary.h"
#include "editor/program/WindowPlace.h"
#include "editor/text/TabbedEditor.h"

#include <optional>

class BottomPanel;
class GotoDialog;
class MetricReporter;
class ProgramFiles;
class ProgramKeys;
class QLabel;
class QSplitter;
class SyntaxClue;

/// The objects belong to the window as its children.
struct ProcessProgramSPC::Parts {
    ProgramActions* actions = nullptr;
    QSplitter* splitter = nullptr;
    TabbedEditor* tabs = nullptr;
    BottomPanel* bottom = nullptr;
    GotoDialog* goTo = nullptr;
    MetricReporter* metrics = nullptr;
    QLabel* language = nullptr;
    ProgramFiles* files = nullptr;
    ProgramRunner* runner = nullptr;
    SyntaxClue* clue = nullptr;
    ProgramKeys* keys = nullptr;
    std::optional<FormatCommands> format;
    std::optional<EditorConnections> connections;
    std::optional<WindowPlace> place;
    std::optional<SchemeKeeper> scheme;
    Vocabulary words;
};
