// SPDX-License-Identifier: GPL-3.0-or-later
// Opens a dictionary: checks and reads it away from the GUI thread, then puts it and its mirror
// into TfrmProject. It reports; what the user sees of that is the controller's.
#pragma once

#include "projects/TfrmProject.h"

#include <QObject>
#include <QStringList>
#include <QUrl>

#include <memory>

class QThread;
class XmlDicxDictionary;

/// One load at a time, in stages: a .dicx is scanned, settled with the user and validated before it
/// is read; a .kxdb is read at once. GUI thread only. While a load runs, the engine and TfrmProject
/// belong to it.
class DictionaryLoader : public QObject {
    Q_OBJECT

public:
    explicit DictionaryLoader(QObject* parent = nullptr);
    /// With another schema for .dicx files than the program's own.
    explicit DictionaryLoader(const QUrl& schema, QObject* parent = nullptr);
    ~DictionaryLoader() override;

    /// False, with nothing begun and no signal, where the name ends neither in .dicx nor in .kxdb
    /// or a load runs; true means that one of the signals below will tell how it ended. The kind is
    /// that of the file.
    bool start(const QString& path);
    /// The same for the dictionary of a project, which keeps the project's kind.
    bool start(const QString& path, DictionaryKind kind);
    bool isRunning() const { return stage_ != nullptr || settling_; }

    /// Waits for a running load and forgets it. The engine's questions are delivered meanwhile:
    /// whoever answers them must do so without waiting for the user.
    void finish();
    /// Forgets a running load without waiting. True where nothing runs any more; else abandoned()
    /// follows. An open question of the check is answered with Cancel.
    bool abandon();

signals:
    void loading(); ///< begun: a busy "Loading..." is due
    void asking();  ///< the check has something to say or to ask: nothing is busy meanwhile
    void resumed(); ///< the user has answered, and the load goes on: busy again
    /// TfrmProject holds the new dictionary: on_loadData. missing: full names whose data file was
    /// not found. clean: the dictionary's own file is there, so nothing needs saving.
    void loaded(const QStringList& missing, bool clean);
    void invalid(); ///< no well-formed file: on_finishedValidation(false), without its box
    void refused(); ///< the check has told the user why; nothing is left to show
    void validationFailed(const QString& message); ///< on_finishedErrorThread
    void failed(const QString& message);           ///< on_errorReadingDictionary
    void abandoned();                              ///< after abandon(); nothing else is reported

private:
    void beginStage(QThread* thread);
    /// The stage has told its result and is about to end. False where nobody waits for it.
    bool join();
    void scan();
    void onScanned();
    void validate();
    void onValidated(bool valid);
    void onValidationFailed(const QString& message);
    void read();
    void onLoaded();
    void onError(const QString& message);
    void giveUp();

    QUrl schema_;
    std::shared_ptr<XmlDicxDictionary> check_;
    QThread* stage_ = nullptr;
    bool settling_ = false; ///< the check's questions are open
    bool ending_ = false;
};
