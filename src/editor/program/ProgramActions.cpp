// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/program/ProgramActions.h"

#include <QAction>
#include <QCoreApplication>
#include <QIcon>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QToolBar>

namespace {

struct CommandText {
    Command command;
    const char* name; ///< of the object
    const char* text;
    const char* keys;
    const char* icon;    ///< part of the file name
    const char* toolTip; ///< null: the text
};

constexpr const char* none = "";

const CommandText commandTexts[] = {
    {Command::New, "actionNew", QT_TRANSLATE_NOOP("ProgramActions", "New"), "Ctrl+N", "File-new",
     nullptr},
    {Command::Open, "actionOpen", QT_TRANSLATE_NOOP("ProgramActions", "Open"), "Ctrl+O",
     "File-open", nullptr},
    {Command::Save, "actionSave", QT_TRANSLATE_NOOP("ProgramActions", "Save"), "Ctrl+S",
     "Edit-save", nullptr},
    {Command::SaveAs, "actionSave_As", QT_TRANSLATE_NOOP("ProgramActions", "Save As"),
     "Ctrl+Shift+S", none, nullptr},
    {Command::Print, "actionPrint", QT_TRANSLATE_NOOP("ProgramActions", "Print..."), "Ctrl+P", none,
     nullptr},
    {Command::Exit, "actionExit", QT_TRANSLATE_NOOP("ProgramActions", "Exit"), none, none, nullptr},
    {Command::Undo, "actionUndo", QT_TRANSLATE_NOOP("ProgramActions", "Undo"), "Ctrl+Z",
     "Edit-undo", nullptr},
    {Command::Redo, "actionRedo", QT_TRANSLATE_NOOP("ProgramActions", "Redo"), "Ctrl+Y",
     "Edit-redo", nullptr},
    {Command::Cut, "actionCut", QT_TRANSLATE_NOOP("ProgramActions", "Cut"), "Ctrl+X", "Edit-cut",
     nullptr},
    {Command::Copy, "actionCopy", QT_TRANSLATE_NOOP("ProgramActions", "Copy"), "Ctrl+C",
     "Edit-copy", nullptr},
    {Command::Paste, "actionPaste", QT_TRANSLATE_NOOP("ProgramActions", "Paste"), "Ctrl+V",
     "Edit-paste", nullptr},
    {Command::Find, "actionFind", QT_TRANSLATE_NOOP("ProgramActions", "Find..."), "Ctrl+F",
     "Edit-find", nullptr},
    {Command::Replace, "actionReplace", QT_TRANSLATE_NOOP("ProgramActions", "Replace..."), "Ctrl+H",
     none, nullptr},
    {Command::GoToDialog, "actionGo_To", QT_TRANSLATE_NOOP("ProgramActions", "Go To..."), "Ctrl+G",
     none, nullptr},
    {Command::SelectAll, "actionSelect_All", QT_TRANSLATE_NOOP("ProgramActions", "Select All"),
     "Ctrl+A", none, nullptr},
    {Command::TimeDate, "actionTime_Date", QT_TRANSLATE_NOOP("ProgramActions", "Time/Date"), "F5",
     none, nullptr},
    {Command::Font, "actionFont", QT_TRANSLATE_NOOP("ProgramActions", "Font..."), none, none,
     nullptr},
    {Command::AutoIndent, "actionAuto_Indent", QT_TRANSLATE_NOOP("ProgramActions", "Auto Indent"),
     none, none, nullptr},
    {Command::WordWrap, "actionWord_Wrap", QT_TRANSLATE_NOOP("ProgramActions", "Word Wrap"), none,
     none, nullptr},
    {Command::LanguageC, "actionC", QT_TRANSLATE_NOOP("ProgramActions", "C"), none, none, nullptr},
    {Command::LanguageCpp, "actionCPP", QT_TRANSLATE_NOOP("ProgramActions", "C++"), none, none,
     nullptr},
    {Command::LanguageJava, "actionJava", QT_TRANSLATE_NOOP("ProgramActions", "Java"), none, none,
     nullptr},
    {Command::LanguagePython, "actionPython", QT_TRANSLATE_NOOP("ProgramActions", "Python"), none,
     none, nullptr},
    {Command::LanguageKelx, "actionKelx", QT_TRANSLATE_NOOP("ProgramActions", "Kelx"), none, none,
     nullptr},
    {Command::StatusBar, "actionStatus_Bar", QT_TRANSLATE_NOOP("ProgramActions", "Status Bar"),
     none, none, nullptr},
    {Command::ToolBar, "actionTool_Bar", QT_TRANSLATE_NOOP("ProgramActions", "Tool Bar"), none,
     none, nullptr},
    {Command::SyntaxClue, "actionSyntaxClue", QT_TRANSLATE_NOOP("ProgramActions", "SyntaxClue"),
     "F8", "Program-clue",
     QT_TRANSLATE_NOOP("ProgramActions", "Show the available commands syntax (F8)")},
    {Command::GoTo, "actionGoTo", QT_TRANSLATE_NOOP("ProgramActions", "GoTo"), "Ctrl+G",
     "Program-goto", QT_TRANSLATE_NOOP("ProgramActions", "Go to line")},
    {Command::Compile, "actionCompile", QT_TRANSLATE_NOOP("ProgramActions", "Compile"), "F5",
     "Program-compile", QT_TRANSLATE_NOOP("ProgramActions", "Compile the program")},
    {Command::Run, "actionRun", QT_TRANSLATE_NOOP("ProgramActions", "Run"), "F9", "File-execute",
     QT_TRANSLATE_NOOP("ProgramActions", "Run Program")},
    {Command::Splitter, "actionSplitter", QT_TRANSLATE_NOOP("ProgramActions", "Splitter"), none,
     "Program-console", QT_TRANSLATE_NOOP("ProgramActions", "Show/Hide Console")},
    {Command::CloseTab, "actionClose_Tab", QT_TRANSLATE_NOOP("ProgramActions", "Close tab"),
     "Ctrl+W", none, nullptr},
};

struct MenuText {
    const char* name;
    const char* title;
    QList<QList<Command>> groups; ///< with a separator between them
};

/// The commands of the tool bar stand in a menu as well, since the bar may be hidden.
const QList<MenuText>& menuTexts() {
    static const QList<MenuText> texts = {
        {"menuFile",
         QT_TRANSLATE_NOOP("ProgramActions", "File"),
         {{Command::New, Command::Open, Command::Save, Command::SaveAs},
          {Command::Print},
          {Command::Exit}}},
        {"menuEdit",
         QT_TRANSLATE_NOOP("ProgramActions", "Edit"),
         {{Command::Undo, Command::Redo},
          {Command::Cut, Command::Copy, Command::Paste},
          {Command::Find, Command::Replace, Command::GoToDialog},
          {Command::SelectAll, Command::TimeDate}}},
        {"menuFormat",
         QT_TRANSLATE_NOOP("ProgramActions", "Format"),
         {{Command::Font}, {Command::AutoIndent, Command::WordWrap}}},
        {"menuLanguage",
         QT_TRANSLATE_NOOP("ProgramActions", "Language"),
         {{Command::LanguageC, Command::LanguageCpp, Command::LanguageJava, Command::LanguagePython,
           Command::LanguageKelx}}},
        {"menuView",
         QT_TRANSLATE_NOOP("ProgramActions", "View"),
         {{Command::StatusBar, Command::ToolBar}}},
        {"menuProgram",
         QT_TRANSLATE_NOOP("ProgramActions", "Program"),
         {{Command::SyntaxClue, Command::GoTo},
          {Command::Compile, Command::Run},
          {Command::Splitter}}},
    };
    return texts;
}

const QList<QList<Command>> toolBarGroups = {
    {Command::New, Command::Open, Command::Save},
    {Command::Undo, Command::Redo},
    {Command::SyntaxClue, Command::GoTo},
    {Command::Compile, Command::Run},
    {Command::Splitter},
};

constexpr Command checkable[] = {Command::AutoIndent, Command::WordWrap,     Command::StatusBar,
                                 Command::ToolBar,    Command::LanguageKelx, Command::Splitter};

/// Marks a letter of its own in each text that has none yet, in whatever language they are.
void giveLetters(const QList<QAction*>& entries) {
    QSet<QChar> taken;
    for (QAction* entry : entries) {
        QString text = entry->text();
        for (qsizetype place = 0; place < text.size(); ++place) {
            const QChar letter = text[place].toUpper();
            if (!letter.isLetter() || taken.contains(letter))
                continue;
            taken.insert(letter);
            entry->setText(text.insert(place, QLatin1Char('&')));
            break;
        }
    }
}

QIcon iconNamed(const QString& name) {
    return QIcon(QStringLiteral(":/icons/res/icons/48px-%1.png").arg(name));
}

} // namespace

ProgramActions::ProgramActions(QMainWindow& window) : QObject(&window), window_(window) {
    makeActions();
    makeMenus();
    makeToolBar();
    retranslate();
}

void ProgramActions::makeActions() {
    for (const CommandText& text : commandTexts) {
        auto* action = new QAction(this);
        action->setObjectName(QString::fromLatin1(text.name));
        action->setShortcut(QKeySequence(QString::fromLatin1(text.keys)));
        // The menus of the window around this one have keys of their own.
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        if (*text.icon != '\0')
            action->setIcon(iconNamed(QString::fromLatin1(text.icon)));
        window_.addAction(action);
        actions_.insert(text.command, action);
    }
    for (const Command command : checkable)
        actions_[command]->setCheckable(true);
    // There is no other language to choose.
    QAction* kelx = actions_[Command::LanguageKelx];
    kelx->setChecked(true);
    connect(kelx, &QAction::triggered, kelx, [kelx] { kelx->setChecked(true); });
}

void ProgramActions::makeMenus() {
    window_.menuBar()->setNativeMenuBar(false); // it belongs to a window within the work area
    window_.menuBar()->setObjectName(QStringLiteral("programMenuBar"));
    for (const MenuText& text : menuTexts()) {
        QMenu* menu = window_.menuBar()->addMenu(QString());
        menu->setObjectName(QString::fromLatin1(text.name));
        addEntries(*menu, text.groups);
        menus_ += menu;
    }
}

void ProgramActions::addEntries(QMenu& menu, const QList<QList<Command>>& groups) {
    for (const QList<Command>& group : groups) {
        if (!menu.isEmpty())
            menu.addSeparator();
        for (const Command command : group)
            menu.addAction(actions_[command]);
    }
}

void ProgramActions::makeToolBar() {
    toolBar_ = new QToolBar(&window_);
    toolBar_->setObjectName(QStringLiteral("programToolBar"));
    toolBar_->setMovable(false);
    const int edge = window_.fontMetrics().height() * 3 / 2;
    toolBar_->setIconSize(QSize(edge, edge));
    for (const QList<Command>& group : toolBarGroups) {
        if (!toolBar_->actions().isEmpty())
            toolBar_->addSeparator();
        for (const Command command : group)
            toolBar_->addAction(actions_[command]);
    }
    window_.addToolBar(toolBar_);
}

QAction* ProgramActions::forKeys(const QKeySequence& keys) const {
    QAction* found = nullptr;
    for (QAction* action : actions_) {
        if (keys.isEmpty() || action->shortcut() != keys)
            continue;
        if (found != nullptr)
            return nullptr;
        found = action;
    }
    return found;
}

void ProgramActions::retranslate() {
    const auto translated = [](const char* text) {
        return QCoreApplication::translate("ProgramActions", text);
    };
    for (const CommandText& text : commandTexts) {
        QAction* action = actions_[text.command];
        action->setText(translated(text.text));
        QString tip = translated(text.toolTip != nullptr ? text.toolTip : text.text);
        const QString keys =
            QStringLiteral(" (%1)").arg(action->shortcut().toString(QKeySequence::NativeText));
        if (!action->shortcut().isEmpty() && !tip.endsWith(keys))
            tip += keys;
        action->setToolTip(tip);
    }
    QList<QAction*> titles;
    for (qsizetype index = 0; index < menus_.size(); ++index) {
        menus_[index]->setTitle(translated(menuTexts()[index].title));
        titles += menus_[index]->menuAction();
        giveLetters(menus_[index]->actions());
    }
    giveLetters(titles);
    toolBar_->setWindowTitle(translated(QT_TRANSLATE_NOOP("ProgramActions", "Tool Bar")));
    toolBar_->setAccessibleName(toolBar_->windowTitle());
    window_.menuBar()->setAccessibleName(
        translated(QT_TRANSLATE_NOOP("ProgramActions", "Menus of the program window")));
}
