// SPDX-License-Identifier: GPL-3.0-or-later
// A combo box that shows a fact: one item as plain text, with nothing that invites to choose.
#pragma once

#include <QComboBox>

class FactComboBox : public QComboBox {
    Q_OBJECT

public:
    explicit FactComboBox(QWidget* parent = nullptr);

    void showOnly(const QString& text); ///< as its one item; empty for none

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
