// SPDX-License-Identifier: GPL-3.0-or-later
// The window in which programs are edited, compiled and run: editors as tabs over the list of
// messages and the search page.
#pragma once

#include "editor/text/EditorHost.h"

#include <QMainWindow>

class Editor;
class KelSystem;
class QListWidget;
class Shell;

/// Lives in a sub-window of the work area, which closes when its last tab does. Its window is
/// modified while a tab is.
class ProcessProgramSPC : public QMainWindow, public EditorHost {
    Q_OBJECT

public:
    ProcessProgramSPC(Shell& shell, KelSystem& system, QWidget* parent = nullptr);
    /// Opens that file at once.
    ProcessProgramSPC(Shell& shell, KelSystem& system, const QString& path,
                      QWidget* parent = nullptr);
    ~ProcessProgramSPC() override;

    bool isExecuteWindow() const;
    Editor* currentEditor() const;
    /// Goes to the tab of that file, or opens it in one; false where it could not be read.
    bool openFile(const QString& path);
    bool hasFile(const QString& path) const;
};
