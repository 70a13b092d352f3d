// SPDX-License-Identifier: GPL-3.0-or-later
// The status bar: what the program is doing, whether it is busy, and the name of what is open.
#pragma once

#include <QString>

class QLabel;
class QProgressDialog;
class QStatusBar;

class StatusLine {
public:
    explicit StatusLine(QStatusBar* bar);

    /// Busy: the text and the wait cursor until the next call that is not. Not busy: the text for
    /// 2000 ms.
    void show(const QString& text, bool busy);
    /// What is open, in a sunken panel; an empty name empties it.
    void showOpenFile(const QString& name, const QString& toolTip);
    void retranslate();

private:
    QStatusBar* bar_;
    QLabel* openFile_;
    QProgressDialog* progress_;
    bool busy_ = false;
};
