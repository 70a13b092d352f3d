// SPDX-License-Identifier: GPL-3.0-or-later
// Code editors as tabs: Ctrl+1 to Ctrl+9 go to a tab, Ctrl+T to the next one.
#pragma once

#include <QTabWidget>

class QTabbedEditor : public QTabWidget {
    Q_OBJECT

public:
    explicit QTabbedEditor(QWidget* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool goTo(int key);
};
