// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of the window of results.
#pragma once

#include <QObject>

class QAction;
class QToolBar;
class QWidget;

/// Members of their window, which retranslates them.
struct ResultActions {
    explicit ResultActions(QWidget* window);

    void fill(QToolBar& bar);         ///< all but copy; its buttons take the keyboard's focus
    void showOptions(bool fit) const; ///< false: the shown table has none
    void retranslate() const;

    QAction* csvLabelAsHeader;
    QAction* csvNameAsHeader;
    QAction* json;
    QAction* xlsx;
    QAction* xml;
    QAction* pdf;
    QAction* order; ///< the options of the shown table
    QAction* copy;  ///< the selected cells

private:
    QAction* separator_ = nullptr; ///< before the options
};
