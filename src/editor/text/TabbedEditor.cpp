// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/text/TabbedEditor.h"

#include "editor/language/SyntaxStyles.h"

#include <QKeyEvent>

TabbedEditor::TabbedEditor(const EditorLook& look, EditorHost* host, QWidget* parent)
    : QTabWidget(parent), look_(look), host_(host) {
    setObjectName(QStringLiteral("tabbedEditor"));
    setMovable(true);
    setTabsClosable(true);
    setElideMode(Qt::ElideMiddle);
    installEventFilter(this);
    addEditor();
}

Editor* TabbedEditor::addEditor() {
    auto* editor = new Editor(look_, host_, this);
    editor->setAutoIndent(autoIndent_);
    editor->setWordWrap(wordWrap_);
    setCurrentIndex(addTab(editor, editor->displayName()));
    return editor;
}

Editor* TabbedEditor::currentEditor() const {
    return editor(currentIndex());
}

Editor* TabbedEditor::editor(int index) const {
    return qobject_cast<Editor*>(widget(index));
}

QList<Editor*> TabbedEditor::editors() const {
    QList<Editor*> all;
    for (int i = 0; i < count(); ++i)
        all.append(editor(i));
    return all;
}

template <typename Change>
void TabbedEditor::change(bool all, const Change& change) {
    if (all)
        for (Editor* each : editors())
            change(*each);
    else if (Editor* current = currentEditor())
        change(*current);
}

void TabbedEditor::setAutoIndent(bool indent, bool all) {
    if (all)
        autoIndent_ = indent;
    change(all, [indent](Editor& editor) { editor.setAutoIndent(indent); });
}

void TabbedEditor::setWordWrap(bool wrap, bool all) {
    if (all)
        wordWrap_ = wrap;
    change(all, [wrap](Editor& editor) { editor.setWordWrap(wrap); });
}

void TabbedEditor::setEditorFont(const QFont& font, bool all) {
    if (all)
        look_.font = font;
    change(all, [&](Editor& editor) {
        editor.setEditorFont(font, QFont::Monospace, true, Editor::usualTabWidth);
    });
}

void TabbedEditor::setLook(const EditorLook& look) {
    if (look.font != look_.font)
        setEditorFont(look.font, true);
    look_ = look;
    change(true, [&](Editor& editor) {
        editor.setSyntaxStyle(syntaxStyle(look.colorScheme));
        editor.setGutter(look.gutterVisible, look.showGutterLineNumbers);
    });
}

bool TabbedEditor::eventFilter(QObject* watched, QEvent* event) {
    if (watched == this && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->modifiers() == Qt::ControlModifier && changeTab(key->key()))
            return true;
    }
    return QTabWidget::eventFilter(watched, event);
}

bool TabbedEditor::changeTab(int key) {
    if (key >= Qt::Key_1 && key <= Qt::Key_9)
        setCurrentIndex(key - Qt::Key_1); // out of range, nothing changes
    else if (key == Qt::Key_T && count() > 0)
        setCurrentIndex((currentIndex() + 1) % count());
    else
        return false;
    return true;
}
