// SPDX-License-Identifier: GPL-3.0-or-later
// The editors of a program window, one a tab.
#pragma once

#include "editor/text/Editor.h"

#include <QList>
#include <QTabWidget>

/// Starts with one editor. Ctrl+1 to Ctrl+9 go to a tab, Ctrl+T to the next one.
class TabbedEditor : public QTabWidget {
    Q_OBJECT

public:
    TabbedEditor(const EditorLook& look, EditorHost* host, QWidget* parent = nullptr);

    Editor* addEditor(); ///< a new one in a tab that comes to the front
    Editor* currentEditor() const;
    Editor* editor(int index) const; ///< null out of range
    QList<Editor*> editors() const;
    void setAutoIndent(bool indent, bool all); ///< otherwise of the current one
    void setWordWrap(bool wrap, bool all);
    void setEditorFont(const QFont& font, bool all);
    /// For all, and those to come.
    void setLook(const EditorLook& look);
};
