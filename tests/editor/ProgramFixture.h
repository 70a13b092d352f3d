// SPDX-License-Identifier: GPL-3.0-or-later
// Program windows as a test drives them: in a work area, over the small database of
// support/SmallDatabase.h, with what they told the main window and the user.
#pragma once

#include "app/messages/Messages.h"
#include "app/settings/KelSystem.h"
#include "app/shell/Shell.h"
#include "editor/program/ProcessProgramSPC.h"

#include <QMainWindow>
#include <QMdiArea>
#include <QStringList>
#include <QTemporaryDir>

class Editor;
class QAction;
class QListWidget;

/// A main window with a work area. It keeps what windows ask of it.
class RecordingShell : public Shell {
public:
    RecordingShell();

    void showStatus(const QString& text, bool busy) override;
    void addDockLeft(QDockWidget*) override {}
    void addDockRight(QDockWidget*) override {}
    QDockWidget* dock(const QString&) const override { return nullptr; }
    bool dockExists(const QString&) const override { return false; }
    void closeDock(const QString&) override {}
    QMdiSubWindow* addWindow(QWidget* content) override;
    bool hasWindows() const override { return !area->subWindowList().isEmpty(); }
    void runProgram(const QString&) override {}
    QStringList showResults(const std::vector<TKelOutput*>& outputs,
                            const std::shared_ptr<TKelSession>& session,
                            const QString& programText) override;
    QStringList writeDirectOutputs(const std::vector<TKelOutput*>&) override { return {}; }
    QWidget* window() override { return &main; }

    QMainWindow main;
    QMdiArea* area;
    QStringList statuses;
    QStringList programs; ///< whose results were shown
    int outputs = 0;      ///< of the last of them
};

class ProgramFixture {
public:
    ProgramFixture();
    ~ProgramFixture();
    ProgramFixture(const ProgramFixture&) = delete;
    ProgramFixture& operator=(const ProgramFixture&) = delete;

    void openDictionary(const QString& name = QStringLiteral("small.kxdb"));
    void closeDictionary();
    QString folder() const { return folder_.path(); }
    QString path(const QString& name) const { return folder_.filePath(name); }
    QString write(const QString& name, const QByteArray& text) const; ///< gives its path
    static QByteArray read(const QString& path);

    /// Into the work area, in front, with the keys.
    template <typename Window, typename... Arguments>
    Window& show(const Arguments&... arguments) {
        auto* window = new Window(shell, KelSystem::instance(), arguments...);
        place(*window);
        return *window;
    }
    void closeWindows();                ///< leaves nothing unsaved behind
    static QStringList recoveryTexts(); ///< the copies that are kept now

    /// Types as a user does, keys of commands included.
    static void type(Editor& editor, const QString& text);
    static QAction* action(const ProcessProgramSPC& window, const char* name);
    static QListWidget& errors(const ProcessProgramSPC& window);
    static QStringList rows(const ProcessProgramSPC& window); ///< of the error list
    static void clickRow(const ProcessProgramSPC& window, int row);
    static QTabWidget& tabs(const ProcessProgramSPC& window);

    RecordingShell shell;
    QStringList messages;  ///< shown, or asked, since the test cleared them
    QList<Choice> answers; ///< to questions, in turn; Cancel once none is left

private:
    void place(ProcessProgramSPC& window);

    QTemporaryDir folder_;
    bool closing_ = false;
};
