// SPDX-License-Identifier: GPL-3.0-or-later
// Shows the rows of any output under its name, and copies those selected as text.
#pragma once

#include <QWidget>

class OutputModel;
class QAction;
class QLabel;
class QTableView;
struct OutputTable;

class OutputView : public QWidget {
    Q_OBJECT

public:
    explicit OutputView(QWidget* parent = nullptr);

    void showTable(const OutputTable& table);

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    void copySelection() const; ///< with the headings; all rows where none is selected

    OutputModel* model_;
    QLabel* title_;
    QLabel* note_;
    QTableView* table_;
    QAction* copy_;
};
