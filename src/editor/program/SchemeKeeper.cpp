// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/program/SchemeKeeper.h"

#include "editor/codeeditor/QCodeEditor.h"
#include "editor/codeeditor/QTabbedEditor.h"
#include "editor/language/QKelxCompleter.h"
#include "editor/language/QUtils.h"
#include "editor/program/Vocabulary.h"
#include "editor/text/Editor.h"

SchemeKeeper::SchemeKeeper(QWidget& window) {
    auto* tabs = new QTabbedEditor(&window);
    tabs->setObjectName(QStringLiteral("schemeTabs"));
    tabs->hide();
    editor_ = new QCodeEditor(tabs);
    tabs->addTab(editor_, QString());
    auto* completer = new QKelxCompleter(editor_);
    words_ = new QStringListModel(completer);
    completer->setModel(words_);
    editor_->setCompleter(completer);
}

void SchemeKeeper::setLook(const EditorLook& look) {
    editor_->setGutter(look.gutterVisible, look.showGutterLineNumbers);
    editor_->setSyntaxStyle(syntaxStyle(look.colorScheme));
}

void SchemeKeeper::setWords(const Vocabulary& words) {
    QStringList all = QUtils::reservedWords() + words.entities + words.variables;
    all.removeDuplicates();
    all.sort(Qt::CaseInsensitive);
    words_->setStringList(all);
}
