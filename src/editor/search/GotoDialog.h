// SPDX-License-Identifier: GPL-3.0-or-later
// The small window that asks for a line to go to.
#pragma once

#include <QDialog>

class GotoDialog : public QDialog {
    Q_OBJECT

public:
    explicit GotoDialog(QWidget* parent = nullptr);

signals:
    void gotoLine(int line);

public slots:
    void onGotoResultReady(const QString& message);
    void on_gotoButton_clicked();
};
