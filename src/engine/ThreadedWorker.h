// SPDX-License-Identifier: GPL-3.0-or-later
// A job for a thread of its own: the check of a dictionary file, or the run of a program.
// Made on the GUI thread, then moved to the thread whose start sets it going.
#pragma once

#include <QFile>
#include <QObject>
#include <QUrl>

#include <atomic>
#include <functional>
#include <memory>
#include <string>

class TKelSession;

/// Does one job: what comes after the first is ignored until quit(), and a second job needs another
/// worker.
class ThreadedWorker : public QObject {
    Q_OBJECT

public:
    /// True where the open file is what it should be. Runs on the worker's thread.
    using Validator = std::function<bool(QIODevice*, const QUrl&)>;

    using QObject::QObject;

    /// What validateDictionary() does; the file goes with the worker.
    void setValidation(Validator validator, std::unique_ptr<QFile> file);
    /// What process() does. Nobody else uses the session meanwhile.
    void setProgram(std::shared_ptr<TKelSession> session, std::string program);
    bool isRunning() const { return running_; }

public slots:
    void process();
    void quit(); ///< the job is over
    void validateDictionary();

signals:
    void status(int i);                                    ///< percent
    void labelProgress(int timeExpected, int timeElapsed); ///< milliseconds
    void finished();
    void finished(ThreadedWorker* worker);
    void finishedError(QString msg);
    void finishedError(ThreadedWorker* worker);
    void validated(bool valid);

private:
    bool tellProgress(int expected, int elapsed, int percent);
    void runProgram();
    bool validate();

    Validator validator_;
    QFile* file_ = nullptr;
    std::shared_ptr<TKelSession> session_;
    std::string program_;
    std::function<bool(void*, int&, int&, int&, void*)> progress_;
    std::atomic<bool> running_ = false;
};
