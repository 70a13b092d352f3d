// SPDX-License-Identifier: GPL-3.0-or-later
// The window that a run is watched and cancelled in. It shows, hides and resets when it is told to
// and never by itself.
#pragma once

#include <QProgressDialog>

#include <functional>

class QProgressBar;

class RunDialog : public QProgressDialog {
public:
    explicit RunDialog(QWidget* parent);

    /// Takes no user input and stays hidden until appear(). onCancel: called once, where the user
    /// cancels.
    void begin(std::function<void()> onCancel);
    void tell(int percent, const QString& label);
    void appear();
    void end();

private:
    QProgressBar* bar_;
    std::function<void()> onCancel_;
};
