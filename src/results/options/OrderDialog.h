// SPDX-License-Identifier: GPL-3.0-or-later
// Asks in which order the rows of a one-variable table stand.
#pragma once

#include <QDialog>

class QRadioButton;

class OrderDialog : public QDialog {
    Q_OBJECT

public:
    /// 0 default, 1 ascending, 2 descending; any other order throws std::invalid_argument.
    explicit OrderDialog(int order, QWidget* parent = nullptr);
    int order() const { return order_; }

private slots:
    void onRadioButtonToggled(bool checked);

private:
    int order_;
    QRadioButton* radioButtonDefault_;
    QRadioButton* radioButtonAscending_;
    QRadioButton* radioButtonDescending_;
};
