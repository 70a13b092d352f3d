// SPDX-License-Identifier: GPL-3.0-or-later
// The frame of the dialogs of properties: tabs above, "Help" and "Close" below.
// Closing asks about what was changed; nothing reaches the dictionary before.
#pragma once

#include <QDialog>

class BaseTab;
class QTabWidget;

class AppProperties : public QDialog {
    Q_OBJECT

public:
    void reject() override; ///< Close, Escape and the window's own button

signals:
    void displayMsgStatusBar(QString text);
    void closeAppProperties();

protected:
    explicit AppProperties(QWidget* parent = nullptr);

    void addPage(BaseTab* page);
    virtual bool isModified() const = 0;
    virtual QString question() const = 0;
    virtual bool store() = 0; ///< false, after a message, where something must be mended first

private slots:
    void on_bHelp_clicked();

private:
    QTabWidget* tabs_;
};
