// SPDX-License-Identifier: GPL-3.0-or-later
// The pages below the editors: the messages of runs, and finding.
#pragma once

#include <QTabWidget>

class ErrorList;
class FindDialog;

class BottomPanel : public QTabWidget {
    Q_OBJECT

public:
    explicit BottomPanel(QWidget* parent = nullptr);

    ErrorList& errors() const { return *errors_; }
    FindDialog& find() const { return *find_; }
    void showErrors();
    void showFind();
    bool isFinding() const; ///< its page shows and has the keys
    void retranslate();

signals:
    void left(); ///< the user wants to go back to the editor

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    ErrorList* errors_;
    FindDialog* find_;
    QWidget* findPage_;
};
