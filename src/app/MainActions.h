// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of the main window, with their menus and tool bar.
#pragma once

#include <QObject>

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;

/// Owned by the window. The window connects the actions.
class MainActions : public QObject {
    Q_OBJECT

public:
    explicit MainActions(QMainWindow* window);

    void addViewAction(QAction* action);
    void retranslate();

    QAction* open;
    QAction* exit;
    QAction* findVariable;
    QAction* valueLabels; ///< checkable
    QAction* frequency;
    QAction* about;

private:
    QAction* make(const char* objectName, const QKeySequence& shortcut, const char* icon = nullptr);
    void makeMenus(QMainWindow* window);

    QMenu* fileMenu_;
    QMenu* viewMenu_;
    QMenu* statisticsMenu_;
    QMenu* helpMenu_;
    QToolBar* toolBar_;
};
