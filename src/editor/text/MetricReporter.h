// SPDX-License-Identifier: GPL-3.0-or-later
// The counters of the current editor in the status bar of its window.
#pragma once

#include <QFrame>

class ElidedLabel;

class MetricReporter : public QFrame {
    Q_OBJECT

public:
    explicit MetricReporter(QWidget* parent = nullptr);

public slots:
    void updateWordCount(int words);
    void updateCharCount(int chars);
    void updateLineCount(int current, int total);
    void updateColumnCount(int column);

protected:
    void changeEvent(QEvent* event) override;

private:
    ElidedLabel* addLabel(const char* name);
    void showAll();

    ElidedLabel* wordLabel_;
    ElidedLabel* charLabel_;
    ElidedLabel* lineLabel_;
    ElidedLabel* columnLabel_;
    int words_ = 0;
    int chars_ = 0;
    int line_ = 1;
    int lines_ = 1;
    int column_ = 1;
};
