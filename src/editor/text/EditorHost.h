// SPDX-License-Identifier: GPL-3.0-or-later
// What an editor asks of the window that it stands in.
#pragma once

#include <QStringList>

class EditorHost {
public:
    virtual ~EditorHost() = default;

    /// Names of the entity's variables in the dictionary's order and spelling; empty where there is
    /// no such entity.
    virtual QStringList variablesOf(const QString& entity) const = 0;

    // Commands of the context menu that are the window's.
    virtual void newProgram() = 0;
    virtual void openProgram() = 0;
    virtual void saveProgram() = 0;
    virtual void saveProgramAs() = 0;
    virtual void setToolBarVisible(bool visible) = 0;
    virtual void setStatusBarVisible(bool visible) = 0;
    virtual void setErrorListVisible(bool visible) = 0;
    virtual bool isToolBarVisible() const = 0;
    virtual bool isStatusBarVisible() const = 0;
    virtual bool isErrorListVisible() const = 0;
};
