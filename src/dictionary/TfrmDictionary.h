// SPDX-License-Identifier: GPL-3.0-or-later
// The dictionary window: opens one dictionary, shows it in the dock of entities and the dock of
// variables, saves it and closes it. One object a dictionary.
#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <functional>

class DictionaryLoader;
class KelSystem;
class KelTreeView;
class QCloseEvent;
class QDockWidget;
class Shell;
class TfrmProperties;
class TKpEntity;
class TKpVariable;
class VariablesPane;

/// What is open stands in TfrmProject. GUI thread only. The docks belong to the shell, which closes
/// them at closed().
class TfrmDictionary : public QObject {
    Q_OBJECT

public:
    TfrmDictionary(Shell& shell, KelSystem& system, QObject* parent = nullptr);
    ~TfrmDictionary() override;

    /// True while others use the dictionary: it is neither saved nor closed then.
    void setBusyTest(std::function<bool()> busy) { busy_ = std::move(busy); }

    /// Begins to read the file; loaded() or failed() follows. False where it is no dictionary.
    bool openDictionary(const QString& path);
    bool isLoading() const;
    /// Forgets a load that runs; false where that takes until failed().
    bool endLoading();

    bool isBusy() const { return busy_ && busy_(); }
    bool isDirty() const; ///< changed here or by the engine
    /// Asks about edits in the property docks; false where the user stays with them.
    bool settlePending();
    /// Writes the dictionary to its file. Tells what went wrong and returns false where it did.
    bool save();
    /// Asks what stands against closing: open windows, pending edits, changes. False: stay.
    bool confirmClose();
    /// Closes the dictionary unless the user stays; then emits closed().
    bool close();
    /// From now on its docks close without a question: the program ends.
    void letGo() { closing_ = true; }
    void saveWindowSizes();
    /// A run has saved variables: shows them too.
    void reloadAfterRun();
    /// Lets the user show where missing files are.
    void locateFiles();

public slots:
    void on_finishedValidation(bool valid);
    void on_finishedErrorThread(const QString& message);
    void on_errorReadingDictionary(const QString& message);
    void on_loadData(const QStringList& missing, bool clean);
    void on_selectedEntityKelTreeView(TKpEntity* entity);
    void on_selectedVariableTableView(TKpVariable* variable);
    void on_closeTreeView(QCloseEvent* event);
    void on_saveDictionary();
    void on_saveAsDictionary();
    void on_tableVariablesInfoChange(bool changed);
    void on_varchanged(bool changed);
    void on_entchanged(bool changed);

signals:
    void signalDictIsDirty(bool dirty);
    void signalDictIsSaved();
    void loaded(bool allFilesFound);
    void failed();
    void savedAs(QString path); ///< the file is the open one now
    void closed();
    void quickViewVariable(TKpVariable* variable);
    void quickViewEntity(TKpEntity* entity);

private:
    void connectLoader();
    void run(const QString& program);
    void showDictionary();
    void connectTree();
    void connectTable();
    void makeVariablesDock();
    void tellPath();
    void showMirror();
    void showProperties(TKpVariable* variable);
    void showProperties(TKpEntity* entity);
    void setDirty(bool dirty);
    void fail(const QString& status, const QString& message);

    Shell& shell_;
    KelSystem& system_;
    DictionaryLoader* loader_;
    TfrmProperties* properties_;
    QPointer<QDockWidget> entityDock_;
    QPointer<QDockWidget> variablesDock_;
    QPointer<KelTreeView> treeView_;
    QPointer<VariablesPane> variablesPane_;
    QString currentEntity_;   ///< by name, since the mirror is rebuilt
    QString currentVariable_; ///< of the current entity
    std::function<bool()> busy_;
    bool dirty_ = false;
    bool closing_ = false;
};
