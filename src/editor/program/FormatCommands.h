// SPDX-License-Identifier: GPL-3.0-or-later
// Font, indentation and wrapping of the editors, of one tab or of all.
#pragma once

#include <optional>

class Editor;
class ProgramActions;
class QString;
class QWidget;
class TabbedEditor;

class FormatCommands {
public:
    FormatCommands(TabbedEditor& tabs, ProgramActions& actions, QWidget& window);

    void wordWrap();
    void autoIndent();
    void font();
    void showStateOf(const Editor& editor) const;

private:
    /// For all tabs and those to come, or this one; nothing where the user cancels.
    std::optional<bool> askForAll(const QString& title) const;

    TabbedEditor& tabs_;
    ProgramActions& actions_;
    QWidget& window_;
};
