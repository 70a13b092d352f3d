// SPDX-License-Identifier: GPL-3.0-or-later
// Opens a dictionary: reads it on a thread, then puts it and its mirror into TfrmProject.
#pragma once

#include <QObject>
#include <QStringList>

class LoadThread;

/// One load at a time. What is open stays open until the new dictionary has been read.
class DictionaryLoader : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;
    ~DictionaryLoader() override;

    /// False, with nothing begun, where the extension is none of a dictionary's or a load runs.
    bool start(const QString& path, const QString& extension);
    bool isRunning() const { return thread_ != nullptr; }
    /// Waits for a running load and forgets it. The engine's questions are delivered meanwhile:
    /// whoever answers them must do so without waiting for the user.
    void finish();

signals:
    /// The dictionary was read; every view must let go of the mirror before this returns.
    void aboutToReplace();
    /// TfrmProject holds the new dictionary. missing: full names whose data file was not found.
    void loaded(const QStringList& missing);
    void failed(const QString& message); ///< what was open is still open

private:
    /// The thread has told its result and is about to end. False where nobody waits for it.
    bool join();
    void onLoaded();
    void onError(const QString& message);

    LoadThread* thread_ = nullptr;
    bool ending_ = false;
};
