// SPDX-License-Identifier: GPL-3.0-or-later
// Asks the user on the GUI thread what the engine needs to know while it reads a database.
#pragma once

#include <QObject>
#include <QString>

/// Created by main before any worker thread exists, so that it belongs to the GUI thread.
class UIInvoker : public QObject {
    Q_OBJECT

public:
    static UIInvoker& instance();

    /// The password, empty where the user refuses.
    Q_INVOKABLE QString promptPassword(const QString& dbName);
    /// The folder, empty where the user refuses.
    Q_INVOKABLE QString pickDataDir(const QString& dbName);

    /// The program is about to end: questions are refused from now on, an open one too, whose
    /// dialog closes once control returns to it.
    void refuseQuestions();
    bool isAsking() const { return asking_; }

private:
    UIInvoker() = default;

    bool refusing_ = false;
    bool asking_ = false;
};
