// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of a program window: their texts, keys, menus and tool bar.
#pragma once

#include <QKeySequence>
#include <QList>
#include <QMap>
#include <QObject>

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;

enum class Command {
    New,
    Open,
    Save,
    SaveAs,
    Print,
    Exit,
    Undo,
    Redo,
    Cut,
    Copy,
    Paste,
    Find,
    Replace,
    GoToDialog,
    SelectAll,
    TimeDate,
    Font,
    AutoIndent,
    WordWrap,
    LanguageC,
    LanguageCpp,
    LanguageJava,
    LanguagePython,
    LanguageKelx,
    StatusBar,
    ToolBar,
    SyntaxClue,
    GoTo,
    Compile,
    Run,
    Splitter,
    CloseTab
};

/// The keys work while the focus is within the window, whatever bars are hidden. Two keys stand on
/// two commands each; these do nothing, and their commands are reached by the menus' letters.
class ProgramActions : public QObject {
    Q_OBJECT

public:
    /// Fills the window's menu bar and adds the tool bar.
    explicit ProgramActions(QMainWindow& window);

    QAction* action(Command command) const { return actions_.value(command); }
    QToolBar* toolBar() const { return toolBar_; }
    /// The only command with these keys; null where there is none, or more than one.
    QAction* forKeys(const QKeySequence& keys) const;
    void retranslate();

private:
    void makeActions();
    void makeMenus();
    void makeToolBar();
    void addEntries(QMenu& menu, const QList<QList<Command>>& groups);

    QMainWindow& window_;
    QMap<Command, QAction*> actions_;
    QList<QMenu*> menus_;
    QToolBar* toolBar_ = nullptr;
};
