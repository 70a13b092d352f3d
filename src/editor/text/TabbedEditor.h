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
    // For all: those to come too. Otherwise of the current one.
    void setAutoIndent(bool indent, bool all);
    void setWordWrap(bool wrap, bool all);
    void setEditorFont(const QFont& font, bool all);
    /// For all, and those to come. A font that was chosen for one of them stays until another one
    /// comes with the look.
    void setLook(const EditorLook& look);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    template <typename Change>
    void change(bool all, const Change& change);
    bool changeTab(int key);

    EditorLook look_;
    EditorHost* host_;
    bool autoIndent_ = true;
    bool wordWrap_ = false;
};
