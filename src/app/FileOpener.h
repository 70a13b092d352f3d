// SPDX-License-Identifier: GPL-3.0-or-later
// Opens a file of any kind and closes what was open before: one dictionary at a time.
#pragma once

#include <QObject>
#include <QString>

class KelSystem;
class Shell;
class TfrmDictionary;
class TKpEntity;
class TKpVariable;
class WorkArea;

/// What is open stands in TfrmProject. While a load or a program runs, nothing else is opened or
/// closed.
class FileOpener : public QObject {
    Q_OBJECT

public:
    FileOpener(Shell& shell, WorkArea& workArea, KelSystem& system, QObject* parent = nullptr);

    /// The one entry for all kinds; the extension, in any case, tells which. A file that cannot be
    /// opened at all leaves what is open; unsaved changes are asked for first.
    void openFile(const QString& path, const QString& extension);
    /// Only while no window but the preferences is open in the work area.
    void openRecent(const QString& path);
    /// Asks for unsaved changes; false where the dictionary stays open.
    bool closeDictionary();
    /// Ends a load that runs; false where an open question must go first.
    bool endLoading();
    bool isLoading() const;
    /// The program ends: from now on the docks close without a question.
    void letGo();
    /// Null where none is open.
    TfrmDictionary* dictionary() const { return dictionary_; }

signals:
    void began();                          ///< a load has begun
    void opened(QString path, bool found); ///< found: all the files of its data
    void failed();                         ///< nothing is open now
    void closed();
    void recentGone(); ///< a file of the recent ones is not there any more
    void dirtyChanged(bool dirty);
    void quickViewVariable(TKpVariable* variable);
    void quickViewEntity(TKpEntity* entity);

private:
    bool windowsStandAgainst() const; ///< tells the user
    bool canOpen(const QString& path, const QString& extension) const;
    void openDictionary(const QString& path);
    void onLoaded(bool found);
    void release();

    Shell& shell_;
    WorkArea& workArea_;
    KelSystem& system_;
    TfrmDictionary* dictionary_ = nullptr;
};
