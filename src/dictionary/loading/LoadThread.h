// SPDX-License-Identifier: GPL-3.0-or-later
// Reads a dictionary away from the GUI thread, so that the engine can ask for a password.
#pragma once

#include <QString>
#include <QThread>

/// Reads the file that TfrmProject is opening and stages the dictionary there. The GUI thread
/// leaves the engine alone until one of the signals has arrived.
class LoadThread : public QThread {
    Q_OBJECT

public:
    explicit LoadThread(QObject* parent = nullptr);

signals:
    void signalDictionaryLoaded();
    void signalError(const QString& message);

protected:
    void run() override;

private:
    QString path_;
};
