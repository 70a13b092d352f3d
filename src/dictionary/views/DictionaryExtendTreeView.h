// SPDX-License-Identifier: GPL-3.0-or-later
// A tree view that turns the keys of the dictionary into signals.
#pragma once

#include <QTreeView>

/// The keys come here first, even where the window has an action of the same key.
class DictionaryExtendTreeView : public QTreeView {
    Q_OBJECT

public:
    using QTreeView::QTreeView;

signals:
    void f3_PressEntityTreeView(const QModelIndex& index);
    void f8_PressEntityTreeView(const QModelIndex& index);
    void ctrlP_PressEntityTreeView(const QModelIndex& index);

protected:
    /// Ctrl+P belongs to others while nothing here prints.
    virtual bool canPrint() const { return true; }
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};
