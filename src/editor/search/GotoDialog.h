// SPDX-License-Identifier: GPL-3.0-or-later
// The small window that asks for a line to go to.
#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

/// Stays until it is closed, since only the editor knows which lines there are.
class GotoDialog : public QDialog {
    Q_OBJECT

public:
    explicit GotoDialog(QWidget* parent = nullptr);

signals:
    /// 1-based; a number that no document reaches for one that is too long.
    void gotoLine(int line);

public slots:
    void onGotoResultReady(const QString& message);
    void on_gotoButton_clicked();

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void retranslate();

    QLabel* label_;
    QLineEdit* line_;
    QPushButton* go_;
    QLabel* message_;
};
