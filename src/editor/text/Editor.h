// SPDX-License-Identifier: GPL-3.0-or-later
// The text in which a program is typed: one tab of a program window.
#pragma once

#include "editor/text/EditorSearch.h"
#include "editor/text/ErrorLine.h"
#include "editor/text/FoundMarks.h"

#include <QPair>
#include <QPlainTextEdit>
#include <QString>
#include <QStringList>

class EditorCompletion;
class EditorContextMenu;
class EditorHost;
class KelvoraCompleter;
class LineNumberArea;
class QKelxHighlighter;
class QSyntaxStyle;
class WordCounter;

/// How an editor looks; read from the settings by the window, and handed down.
struct EditorLook {
    QFont font;
    int colorScheme = 0; ///< index into syntaxStyles()
    bool gutterVisible = true;
    bool showGutterLineNumbers = true;
};

/// A line that is seen, as the gutter needs it.
struct VisibleLine {
    int number = 0; ///< 1-based
    int top = 0;    ///< in pixels, in the viewport
};

class Editor : public QPlainTextEdit {
    Q_OBJECT

public:
    static constexpr int usualTabWidth = 5; ///< of a tab stop, in blanks

    /// host: where it is null, nothing is known of a dictionary, and the window's commands do
    /// nothing.
    explicit Editor(const EditorLook& look, EditorHost* host = nullptr, QWidget* parent = nullptr);
    ~Editor() override;

    QString filePath() const { return filePath_; } ///< empty while untitled
    void setFilePath(const QString& path);
    QString untitledName() const { return untitledName_; }
    void setUntitledName(const QString& name) { untitledName_ = name; }
    bool isUntitled() const { return untitled_; }
    QString displayName(); ///< file name, or the untitled name, which marks it as untitled

    void setEntityList(const QStringList& names);   ///< sorted here, each once
    void setVariableList(const QStringList& names); ///< sorted here, each once
    QStringList entityList() const { return entityList_; }
    QStringList variableList() const { return variableList_; }
    void setLowerCase(bool lower); ///< whether the names of the lists are in lower case
    void setExecuteMode(bool execute) { executeMode_ = execute; }
    bool executeMode() const { return executeMode_; }
    bool autoIndent() const { return autoIndent_; }
    void setAutoIndent(bool indent) { autoIndent_ = indent; }
    /// Whether Tab inserts four blanks in place of a tab character.
    void setReplaceTab(bool replace) { replaceTab_ = replace; }
    bool wordWrap() const { return wordWrap_; }
    void setWordWrap(bool wrap);
    /// tabWidth: in blanks.
    void setEditorFont(const QFont& font, QFont::StyleHint hint, bool fixedPitch, int tabWidth);
    void setSyntaxStyle(QSyntaxStyle* style);
    void setGutter(bool visible, bool lineNumbers);
    KelvoraCompleter* completer() const;
    QList<VisibleLine> visibleLines(const QRect& rect) const; ///< that touch its height
    bool hasUndo() const { return undoAvailable_; }
    bool hasRedo() const { return redoAvailable_; }

    /// With the line ends of a program text: line feeds. Hard blanks stay. Empty where nothing is
    /// selected.
    QString selectedText() const;
    int selectionFirstLine() const; ///< 0-based line where the selection begins

    /// Paints a line (1-based) as faulty and goes there; 0 for none. The document is not changed.
    void highlightErrorLine(int line);
    void clearErrorLine();
    /// Where it is now: it moves with the text above it. 0 for none.
    int highlightedLine() const { return errorLine_.number(); }

    int wordCount() const;
    int charCount() const;
    int currentLine() const; ///< 1-based, as the column
    int lineCount() const { return blockCount(); }
    int currentColumn() const;
    /// Emits all metrics, as a window that shows them anew needs.
    void tellMetrics();

signals:
    void findResultReady(QString message);
    void findAllResult(QString message);
    void gotoResultReady(QString message);
    void wordCountChanged(int words);
    void charCountChanged(int chars);
    void lineCountChanged(int current, int total);
    void columnCountChanged(int col);
    void fileContentsChanged();
    void gotoClose(int);
    void executeRun();
    void compileRun();
    void defineOpen(QString);
    void executeOpen(QString);
    void tableOpen(QString);
    void rundefOpen(QString);

public slots:
    /// Both forward from the cursor, and once round.
    bool find(const QString& query, bool caseSensitive, bool wholeWords);
    bool find(const QString& query, bool caseSensitive, bool wholeWords, bool replace);
    bool findAll(const QString& query, bool caseSensitive, bool wholeWords);
    void replace(const QString& what, const QString& with, bool caseSensitive, bool wholeWords);
    void replaceAll(const QString& what, const QString& with, bool caseSensitive, bool wholeWords);
    void goTo(int line);
    void runByBlock();
    void compileByBlock();
    void slotCustomMenuRequested(const QPoint& pos);
    void onRundefAssistantClick();
    void onDefineAssistantClick();
    void onTableAssistantClick();
    void onExecuteAssistantClick();
    void updateLineNumberAreaWidth();
    void on_delete();
    void on_toggleComment();
    void on_wizardDefine();
    void on_wizardTable();
    void on_executeBlowUp();
    void on_defineFrequency();
    void on_syntaxClue();
    void on_editTable();
    void on_editGraph();
    void on_toolBar();
    void on_statusBar();
    void on_errorList();
    void on_textChanged();
    void on_cursorPositionChanged();
    void redrawLineNumberArea(const QRect& rectToBeRedrawn, int numPixelsScrolledVertically);
    void setUndoAvailable(bool available);
    void setRedoAvailable(bool available);
    void insertCompletion(const QString& completion);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    void connectSignals();
    void connectEdits(const EditorContextMenu& menu);
    void connectCommands(const EditorContextMenu& menu);
    void connectAssistants(const EditorContextMenu& menu);
    QPair<int, int> visibleBlocks() const; ///< numbers of the first and the last
    bool filterKey(QKeyEvent& event);
    bool handleOwnKey(const QKeyEvent& event);
    void retranslate();
    void insertTyped(const QString& text);
    void showMarks();
    void renewMarks();
    void clearMarks();
    void tellTextMetrics();
    void placeLineNumberArea();
    void showUnderConstruction(const QString& quotedName);

    EditorHost* host_;
    LineNumberArea* lineNumberArea_;
    QKelxHighlighter* highlighter_;
    WordCounter* wordCounter_;
    EditorCompletion* completion_;
    QSyntaxStyle* style_ = nullptr;
    EditorSearch search_;
    ErrorLine errorLine_;
    FoundMarks found_;
    QPair<int, int> markedBlocks_; ///< that were in view when the marks were set
    QStringList entityList_;
    QStringList variableList_;
    QString filePath_;
    QString untitledName_;
    bool untitled_ = true;
    bool executeMode_ = false;
    bool autoIndent_ = true;
    bool replaceTab_ = true;
    bool wordWrap_ = false;
    bool undoAvailable_ = false;
    bool redoAvailable_ = false;
    bool replacing_ = false; ///< the edits and cursor moves are not the user's
};
