// SPDX-License-Identifier: GPL-3.0-or-later
// Asks the maintenance tool of the installation whether there is a new version, and hands over to
// it where the user agrees.
#pragma once

#include <QObject>
#include <QProcess>
#include <QTimer>

#include <functional>

/// Runs beside the program and says nothing unless there is a new version.
class QUpdater : public QObject {
    Q_OBJECT

public:
    /// tool: the full path of the maintenance tool.
    explicit QUpdater(QString tool = installedTool(), QObject* parent = nullptr);
    ~QUpdater() override;

    /// The tool beside the executable; nothing on the search path is ever started.
    static QString installedTool();

    /// While it gives true, a new version is kept for later.
    void setBusyTest(std::function<bool()> busy) { busy_ = std::move(busy); }

    /// Does nothing where there is no tool, or it is asking already.
    void start();

signals:
    void checked(bool updateExists); ///< before the user is asked

private:
    void gather();
    void evaluate(QProcess::ExitStatus status);
    void offer();

    QString tool_;
    std::function<bool()> busy_;
    QByteArray output_;
    QProcess process_;
    QTimer nextTry_; ///< while the program is busy
    QTimer quit_;    ///< once the tool has taken over
};
