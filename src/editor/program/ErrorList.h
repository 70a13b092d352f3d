// SPDX-License-Identifier: GPL-3.0-or-later
// The messages of the last compilation or run, a line each, as "Output" of a program window.
#pragma once

#include <QListWidget>

/// Its rows are gone through by keyboard as well: Return chooses one as a click does.
class ErrorList : public QListWidget {
    Q_OBJECT

public:
    explicit ErrorList(QWidget* parent = nullptr);

    /// A row that names no place in the program, and need not.
    void addNotice(const QString& text);
    void markAllAsNotices(); ///< the rows that are there already
    void copyAll() const;    ///< all rows into the clipboard
    void showMenu(const QPoint& pos);
    void retranslate();

signals:
    void chosen(QListWidgetItem* item);
    void passed(QListWidgetItem* item); ///< the keys have moved on to it

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};
