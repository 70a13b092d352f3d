// SPDX-License-Identifier: GPL-3.0-or-later
// The page FILE: programs, programs that run others, and the styles of tables. The windows of
// selections, maps and the styles of charts are not there yet: their entries cannot be chosen.
#pragma once

#include "app/ribbon/RibbonPage.h"

#include <QStringList>

class QMenu;
struct RibbonState;

class FileToolBar : public RibbonPage {
    Q_OBJECT

public:
    FileToolBar(tt::TabToolbar& toolbar, const RibbonState& state);

public slots:
    void on_newCommandSet();
    void on_openCommandSet(); ///< asks for the file
    void on_progFileSelected(const QString& path);
    void on_commandFile(int number); ///< of the recent ones, from 0
    void on_newExecuteSet();
    void on_openExecuteSet(); ///< asks for the file
    void on_executeFileSelected(const QString& path);
    void on_executeCommandFile(int number); ///< of the recent ones, from 0
    // Both tell the debug stream only.
    void on_TableStylesClick();
    void on_GraphStylesClick();

signals:
    /// execute: a program that runs others.
    void newProgram(bool execute);
    void programFile(const QString& path, bool execute);

private:
    void makeFileMenus(tt::Group& group);
    void makeProgramsMenu(tt::Group& group, const RibbonState& state);
    void makeExecuteMenu(tt::Group& group);
    void makeStyles(tt::Group& group, const RibbonState& state);
    QMenu* makeMenu(const char* name);
    QAction* addEntry(QMenu* menu, const char* name, const QString& text,
                      void (FileToolBar::*slot)());
    void addLaterEntry(QMenu* menu, const QString& text);
    QString chooseProgram(const QString& caption) const;

    QStringList recentPrograms_;
    QStringList recentExecutes_;
};
