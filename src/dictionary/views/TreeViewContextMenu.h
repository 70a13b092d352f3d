// SPDX-License-Identifier: GPL-3.0-or-later
// The context menu of one entity in the tree.
#pragma once

#include <QMenu>

#include <memory>

class TKpEntity;

/// Deletes itself when it closes. Holds its entity, whatever becomes of the dictionary meanwhile.
class TreeViewContextMenu : public QMenu {
    Q_OBJECT

public:
    /// canPrint: somebody listens to printView().
    TreeViewContextMenu(std::shared_ptr<TKpEntity> entity, bool canPrint,
                        QWidget* parent = nullptr);

signals:
    void quickView(TKpEntity* entity);
    void propertiesView(TKpEntity* entity);
    void printView(TKpEntity* entity);
    void executeProgram(const QString& program);

private:
    void addPrint(bool canPrint);
    void addSelectable();
    void addUnfinished(const QString& name, const QString& text, const QString& message);

    std::shared_ptr<TKpEntity> entity_;
};
