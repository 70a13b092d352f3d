// SPDX-License-Identifier: GPL-3.0-or-later
// The middle of the main window: programs, results, maps and preferences as tabs or sub-windows.
#pragma once

#include <QMdiArea>

/// Where nothing is open in it, it shows the page that setEmptyPage() was given.
class WorkArea : public QMdiArea {
    Q_OBJECT

public:
    explicit WorkArea(QWidget* parent = nullptr);

    /// The sub-window owns the content and closes with it.
    QMdiSubWindow* addWindow(QWidget* content);
    /// By the object name of the sub-window or of its content; null where there is none.
    QMdiSubWindow* find(const QString& objectName) const;
    /// Those that show something; one whose content was taken away is about to go.
    QList<QMdiSubWindow*> windows() const;
    bool isEmpty() const { return windows().isEmpty(); }
    /// True where nothing but that one window is open, if any.
    bool isEmptyBut(const QString& objectName) const;
    /// Asks each window that holds unsaved work to close; false where one of them stays.
    bool closeModified();

    void toggleTabs();                ///< tabs that can be closed and moved, or windows
    void setEmptyPage(QWidget* page); ///< becomes its owner

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void childEvent(QChildEvent* event) override;

private:
    void updateEmptyPage();

    QWidget* emptyPage_ = nullptr;
};
