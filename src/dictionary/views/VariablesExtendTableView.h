// SPDX-License-Identifier: GPL-3.0-or-later
// A table view that turns the keys of the variables table into signals.
#pragma once

#include <QTableView>

/// The keys come here first, even where the window has an action of the same key.
class VariablesExtendTableView : public QTableView {
    Q_OBJECT

public:
    using QTableView::QTableView;

signals:
    void signalKeyF2PressVariablesTableView();
    void signalKeyF3PressVariablesTableView();
    void signalKeyF8PressVariablesTableView();
    void signalKeyDeletePressVariablesTableView();
    void signalSelectallVariablesTableView();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};
