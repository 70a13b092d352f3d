// SPDX-License-Identifier: GPL-3.0-or-later
// A program text that pairs brackets and marks the current line and the places of a selected word.
// It shows what a colour scheme looks like.
#pragma once

#include "editor/codeeditor/LineIndent.h"
#include "editor/language/SyntaxStyles.h"

#include <QTextEdit>

class QCompleter;
class QFramedTextAttribute;
class QKelxHighlighter;
class QLineNumberArea;

class QCodeEditor : public QTextEdit {
    Q_OBJECT

public:
    explicit QCodeEditor(QWidget* parent = nullptr);

    QString path() const { return path_; } ///< empty while untitled
    void setPath(const QString& path);
    bool isUntitled() const { return untitled_; }

    /// The program that shows colour schemes off.
    static QString sampleTextPath();
    void showSampleText();

    static const SyntaxStyleList& styleList() { return syntaxStyles(); }
    QSyntaxStyle* syntaxStyle() const { return style_; }
    void setSyntaxStyle(QSyntaxStyle* style); ///< not owned
    void setGutter(bool visible, bool lineNumbers);

    bool autoIndentation() const { return autoIndentation_; }
    void setAutoIndentation(bool indent) { autoIndentation_ = indent; }
    bool autoParentheses() const { return autoParentheses_; }
    void setAutoParentheses(bool pair) { autoParentheses_ = pair; }
    bool replaceTab() const { return replaceTab_; }
    void setReplaceTab(bool replace) { replaceTab_ = replace; }
    int tabReplaceSize() const { return int(tabReplace_.size()); }
    void setTabReplaceSize(int blanks);

    QCompleter* completer() const { return completer_; }
    void setCompleter(QCompleter* completer); ///< not owned; null for none
    QFramedTextAttribute* framedAttribute() const { return frames_; }

public slots:
    void insertCompletion(const QString& completion);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void connectChanges();
    void layoutGutter();
    void updateTabStop();

    void editByKey(QKeyEvent* event);
    bool isBetweenBraces() const;
    void openBraces(const LineIndent& indent);
    void removeIndentLevel();
    void insertJoined(const QString& text);
    void pairParentheses(const QString& typed);
    LineIndent currentIndent() const;
    QString indentText(const LineIndent& indent, int levels) const;

    bool popupTakes(const QKeyEvent& event) const;
    void complete(const QKeyEvent& event);

    void markExtras();
    QTextEdit::ExtraSelection characterMark(int position) const;
    void frameOccurrences();

    QString path_;
    bool untitled_ = true;
    QKelxHighlighter* highlighter_;
    QSyntaxStyle* style_ = nullptr;
    QLineNumberArea* lineNumberArea_;
    QCompleter* completer_ = nullptr;
    QFramedTextAttribute* frames_;
    bool autoIndentation_ = true;
    bool autoParentheses_ = true;
    bool replaceTab_ = true;
    QString tabReplace_;
};
