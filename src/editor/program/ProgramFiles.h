// SPDX-License-Identifier: GPL-3.0-or-later
// New, open, save and close of a program window, with their questions.
#pragma once

#include "editor/program/OtherWindows.h"

#include <QObject>
#include <QString>

class Editor;
class FileChangeNotice;
class FileWatch;
class ProgramDocument;
class TabbedEditor;
struct RecoveryCopy;

/// Nothing is closed while a program runs.
class ProgramFiles : public QObject {
    Q_OBJECT

public:
    enum class Target { Own, Asked }; ///< the document's own file, or one that the user chooses

    ProgramFiles(TabbedEditor& tabs, bool executeMode, QObject* parent);

    void nameFirst(); ///< the tab that the window began with stays without a file
    Editor* newProgram();
    bool open();                        ///< false where the user cancels, or it cannot be read
    bool openPath(const QString& path); ///< goes to its tab where it is open already
    /// False where the user cancels; true after a failure to write, which the user is told.
    bool save(Editor& editor, Target target);
    /// Asks for unsaved changes and removes the tab; false where it stays.
    bool close(Editor& editor);
    void restore(const RecoveryCopy& copy);
    Editor* editorOf(const QString& path) const; ///< null where no tab has that file
    /// Without them, the tabs here are all there is.
    void setOtherWindows(OtherWindows others) { others_ = std::move(others); }
    /// Begins to write the copies that are due, and waits a moment for them.
    void keepCopies();

signals:
    void editorAdded(Editor* editor);
    void titlesChanged();
    void statusTold(QString text);
    void savedTabToClose(QString path);
    void fileUsed(QString path); ///< it was opened, or written

private:
    Editor* add();
    ProgramDocument& adopt(Editor& editor);
    QString nextName();
    Editor& tabForFile(); ///< a fresh one, or the current one where it is
    bool show(const QString& path, bool evenIfEmpty);
    QString askPath(Editor& editor, Target target) const;
    void write(Editor& editor, const QString& path);
    bool mayClose(Editor& editor);
    void remove(Editor& editor);
    bool isElsewhere(const QString& path) const;
    bool mayWrite(Editor& editor, const QString& path);

    TabbedEditor& tabs_;
    FileWatch* watch_;
    FileChangeNotice* notice_;
    bool executeMode_;
    OtherWindows others_;
    int untitled_ = 0; ///< documents named so far
};
