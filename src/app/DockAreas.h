// SPDX-License-Identifier: GPL-3.0-or-later
// Where docks stand in the main window: the tree of entities on the left, one place beside it that
// the other left docks share as tabs, and one on the right.
#pragma once

#include <QString>

class QDockWidget;
class QMainWindow;

class DockAreas {
public:
    explicit DockAreas(QMainWindow& window);

    void addLeft(QDockWidget* dock);
    void addRight(QDockWidget* dock);
    /// By object name; null where there is none.
    QDockWidget* find(const QString& name) const;
    void close(const QString& name); ///< deletes it
    void closeAllBut(const QDockWidget* kept);

private:
    QList<QDockWidget*> docksIn(Qt::DockWidgetArea area) const;
    void remove(QDockWidget& dock);
    void keepTabTitles();
    void setWidths(const QList<QDockWidget*>& docks, const QList<int>& widths);

    QMainWindow& window_;
    int treeWidth_ = 0; ///< pixels, as the tree's dock came
};
