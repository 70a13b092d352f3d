// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/program/FormatCommands.h"

#include "app/messages/Messages.h"
#include "editor/program/ProgramActions.h"
#include "editor/text/TabbedEditor.h"

#include <QAction>
#include <QCoreApplication>
#include <QFontDialog>

namespace {

QString translated(const char* text) {
    return QCoreApplication::translate("ProcessProgramSPC", text);
}

} // namespace

FormatCommands::FormatCommands(TabbedEditor& tabs, ProgramActions& actions, QWidget& window)
    : tabs_(tabs), actions_(actions), window_(window) {}

std::optional<bool> FormatCommands::askForAll(const QString& title) const {
    if (tabs_.count() < 2)
        return false;
    const Choice choice = askYesNoCancel(
        title,
        translated(QT_TRANSLATE_NOOP("ProcessProgramSPC", "Apply to all open and future tabs?")));
    if (choice == Choice::Cancel)
        return std::nullopt;
    return choice == Choice::Yes;
}

void FormatCommands::wordWrap() {
    const bool wrap = actions_.action(Command::WordWrap)->isChecked();
    if (const auto all =
            askForAll(translated(QT_TRANSLATE_NOOP("ProcessProgramSPC", "Word wrapping"))))
        tabs_.setWordWrap(wrap, *all);
    showStateOf(*tabs_.currentEditor());
}

void FormatCommands::autoIndent() {
    const bool indent = actions_.action(Command::AutoIndent)->isChecked();
    if (const auto all =
            askForAll(translated(QT_TRANSLATE_NOOP("ProcessProgramSPC", "Auto indentation"))))
        tabs_.setAutoIndent(indent, *all);
    showStateOf(*tabs_.currentEditor());
}

void FormatCommands::font() {
    bool chosen = false;
    const QFont font = QFontDialog::getFont(&chosen, tabs_.currentEditor()->font(), &window_);
    if (!chosen)
        return;
    if (const auto all =
            askForAll(translated(QT_TRANSLATE_NOOP("ProcessProgramSPC", "Font change"))))
        tabs_.setEditorFont(font, *all);
}

void FormatCommands::showStateOf(const Editor& editor) const {
    actions_.action(Command::WordWrap)->setChecked(editor.wordWrap());
    actions_.action(Command::AutoIndent)->setChecked(editor.autoIndent());
}
