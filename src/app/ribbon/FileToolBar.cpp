// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ribbon/FileToolBar.h"

#include "app/dialogs/KelvoraFileDialog.h"
#include "app/messages/Messages.h"
#include "app/ribbon/RecentFiles.h"
#include "app/ribbon/RibbonState.h"
#include "results/styles/TableStylesButtonMenu.h"

#include <QDebug>
#include <QMenu>

#include <exception>

FileToolBar::FileToolBar(tt::TabToolbar& toolbar, const RibbonState& state)
    : RibbonPage(toolbar, "File"), recentPrograms_(state.recentPrograms),
      recentExecutes_(state.recentExecutes) {
    makeFileMenus(addGroup(tr("File")));
    tt::Group& documents = addGroup(tr("Documents"));
    makeProgramsMenu(documents, state);
    addLater(documents, "selections", tr("Selections"), tr("Selections of areas"));
    addLater(documents, "maps", tr("Maps"), tr("Thematic maps"));
    makeStyles(addGroup(tr("Styles")), state);
    makeExecuteMenu(addGroup(tr("Run")));
}

QMenu* FileToolBar::makeMenu(const char* name) {
    auto* menu = new QMenu(page());
    menu->setObjectName(QLatin1String(name));
    menu->setToolTipsVisible(true);
    return menu;
}

QAction* FileToolBar::addEntry(QMenu* menu, const char* name, const QString& text,
                               void (FileToolBar::*slot)()) {
    QAction* action = menu->addAction(text);
    action->setObjectName(QLatin1String(name));
    connect(action, &QAction::triggered, this, slot);
    return action;
}

void FileToolBar::addLaterEntry(QMenu* menu, const QString& text) {
    menu->addAction(text)->setEnabled(false);
}

void FileToolBar::makeFileMenus(tt::Group& group) {
    QMenu* fresh = makeMenu("newMenu");
    addEntry(fresh, "newProgram", tr("&Program"), &FileToolBar::on_newCommandSet);
    addEntry(fresh, "newExecute", tr("&Execute program"), &FileToolBar::on_newExecuteSet);
    addLaterEntry(fresh, tr("&Selection"));
    addLaterEntry(fresh, tr("&Map"));
    addMenuButton(group, "new", tr("New"), tr("Begin a new program, selection or map"), fresh);
    QMenu* open = makeMenu("openMenu");
    addEntry(open, "openProgram", tr("&Program..."), &FileToolBar::on_openCommandSet);
    addEntry(open, "openExecute", tr("&Execute program..."), &FileToolBar::on_openExecuteSet);
    addLaterEntry(open, tr("&Selection..."));
    addLaterEntry(open, tr("&Map..."));
    addMenuButton(group, "open", tr("Open"), tr("Open a program, selection or map"), open);
}

void FileToolBar::makeProgramsMenu(tt::Group& group, const RibbonState& state) {
    QMenu* menu = makeMenu("programsMenu");
    const auto open = [this](const QString& path) { on_progFileSelected(path); };
    const int last = addRecentFiles(*menu, tr("Recent programs"), recentPrograms_, open);
    QStringList others = state.dictionaryPrograms;
    others.removeIf([this](const QString& path) { return recentPrograms_.contains(path); });
    addRecentFiles(*menu, tr("Programs of the dictionary"), others, open, last + 1);
    QAction* button = addMenuButton(group, "programs", tr("Programs"),
                                    tr("Programs in the command language"), menu);
    button->setEnabled(!menu->isEmpty());
}

void FileToolBar::makeExecuteMenu(tt::Group& group) {
    QMenu* menu = makeMenu("executeMenu");
    addEntry(menu, "executeNew", tr("&New"), &FileToolBar::on_newExecuteSet);
    addEntry(menu, "executeOpen", tr("&Open..."), &FileToolBar::on_openExecuteSet);
    addRecentFiles(*menu, tr("Recent programs"), recentExecutes_,
                   [this](const QString& path) { on_executeFileSelected(path); });
    addMenuButton(group, "execute", tr("Execute"), tr("Programs that run other programs"), menu);
}

/// A button with a menu has no click of its own: it opens.
void FileToolBar::makeStyles(tt::Group& group, const RibbonState& state) {
    auto* menu = new TableStylesButtonMenu(state.activeProgram, page());
    menu->setObjectName(QStringLiteral("tableStylesMenu"));
    connect(menu, &QMenu::aboutToShow, this, &FileToolBar::on_TableStylesClick);
    addMenuButton(group, "tablestyles", tr("Table Styles"), tr("How tables look"), menu);
    QAction* graph = addLater(group, "graphstyles", tr("Graph Styles"), tr("How charts look"));
    connect(graph, &QAction::triggered, this, &FileToolBar::on_GraphStylesClick);
}

QString FileToolBar::chooseProgram(const QString& caption) const {
    try {
        const KelvoraFileDialog dialog(QStringLiteral("PROGRAM"), {}, caption);
        return dialog.openFile(tr("Kelx Command Set (*.spc)"));
    } catch (const std::exception& fault) {
        showError(tr("Error %s sending event").replace(QLatin1String("%s"), fault.what()));
        return {};
    }
}

void FileToolBar::on_newCommandSet() {
    emit newProgram(false);
}

void FileToolBar::on_newExecuteSet() {
    emit newProgram(true);
}

void FileToolBar::on_openCommandSet() {
    on_progFileSelected(chooseProgram(tr("Open program")));
}

void FileToolBar::on_openExecuteSet() {
    on_executeFileSelected(chooseProgram(tr("Open EXECUTE program")));
}

void FileToolBar::on_progFileSelected(const QString& path) {
    if (!path.isEmpty())
        emit programFile(path, false);
}

void FileToolBar::on_executeFileSelected(const QString& path) {
    if (!path.isEmpty())
        emit programFile(path, true);
}

void FileToolBar::on_commandFile(int number) {
    on_progFileSelected(recentPrograms_.value(number));
}

void FileToolBar::on_executeCommandFile(int number) {
    on_executeFileSelected(recentExecutes_.value(number));
}

void FileToolBar::on_TableStylesClick() {
    qDebug("Open Button - Table Styles - clicked - In Construction");
}

void FileToolBar::on_GraphStylesClick() {
    qDebug("Open Button - Graph Styles - clicked - In Construction");
}
