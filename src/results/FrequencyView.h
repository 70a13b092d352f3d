// SPDX-License-Identifier: GPL-3.0-or-later
// Shows a frequency under its title and the unit of count, and copies it as text.
#pragma once

#include <QWidget>

class FrequencyModel;
class FrequencyTable;
class QAction;
class QLabel;
class QTableView;

class FrequencyView : public QWidget {
    Q_OBJECT

public:
    explicit FrequencyView(QWidget* parent = nullptr);

    void showTable(const FrequencyTable& table);
    void clear();

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    void copyToClipboard() const;

    FrequencyModel* model_;
    QLabel* title_;
    QLabel* note_;
    QTableView* table_;
    QAction* copy_;
    bool filled_ = false;
};
