// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/styles/TableStylesButtonMenu.h"

#include "app/dialogs/KelvoraFileDialog.h"
#include "app/messages/Messages.h"
#include "results/styles/ProgramStyle.h"
#include "results/styles/TableStyleEditorDialog.h"

#include <QDir>

#include <utility>

namespace {

/// What to tell of a style that was saved, once the program names it if that is possible.
QString insertStyle(const std::function<QString()>& activeProgram, const QString& stylePath) {
    const QString programPath = activeProgram ? activeProgram() : QString();
    const QString native = QDir::toNativeSeparators(stylePath);
    if (programPath.isEmpty())
        return TableStylesButtonMenu::tr(
                   "Table style saved.\n\nNo program file is currently active.\nAdd this line "
                   "inside the DEFINE block of your .spc:\n\n    TABLESTYLE \"%1\"")
            .arg(native);
    if (programstyle::insertInto(programPath, native))
        return TableStylesButtonMenu::tr("TABLESTYLE line inserted into:\n%1")
            .arg(QDir::toNativeSeparators(programPath));
    return TableStylesButtonMenu::tr(
               "Table style saved.\nCould not update program file.\nAdd this line manually inside "
               "the DEFINE block:\n\n    TABLESTYLE \"%1\"")
        .arg(native);
}

} // namespace

TableStylesButtonMenu::TableStylesButtonMenu(std::function<QString()> activeProgram,
                                             QWidget* parent)
    : QMenu(parent), activeProgram_(std::move(activeProgram)) {
    setToolTipsVisible(true);
    QAction* fresh = addAction(tr("New"));
    fresh->setObjectName(QStringLiteral("newTableStyle"));
    fresh->setToolTip(tr("Make a table style and name it in the program in front"));
    QAction* open = addAction(tr("Open"));
    open->setObjectName(QStringLiteral("openTableStyle"));
    open->setToolTip(tr("Change a table style and name it in the program in front"));
    connect(fresh, &QAction::triggered, this, &TableStylesButtonMenu::on_NewClick);
    connect(open, &QAction::triggered, this, &TableStylesButtonMenu::on_OpenClick);
}

void TableStylesButtonMenu::on_NewClick() {
    edit({});
}

void TableStylesButtonMenu::on_OpenClick() {
    const KelvoraFileDialog dialog(QStringLiteral("TABLE"), {}, tr("Open Table Style"));
    const QString path = dialog.openFile(tr("Table Style (*.json);;All Files (*)"));
    if (!path.isEmpty())
        edit(path);
}

/// A ribbon that is built anew takes this menu with it, but not what the user is writing.
void TableStylesButtonMenu::edit(const QString& path) {
    QWidget* owner = parentWidget() != nullptr ? parentWidget()->window() : nullptr;
    auto* editor = new TableStyleEditorDialog(path, owner);
    editor->setAttribute(Qt::WA_DeleteOnClose);
    connect(editor, &TableStyleEditorDialog::styleSaved, editor,
            [activeProgram = activeProgram_](const QString& saved) {
                showInformation(insertStyle(activeProgram, saved));
            });
    editor->open();
}

void TableStylesButtonMenu::onStyleSaved(const QString& stylePath) {
    showInformation(insertStyle(activeProgram_, stylePath));
}
