// SPDX-License-Identifier: GPL-3.0-or-later
// The tree of the entities of the open dictionary.
#pragma once

#include "dictionary/views/DictionaryExtendTreeView.h"

#include <memory>

class DictionaryTreeModel;
class TKpEntity;

/// Emits what the user asks for and does none of it. Entities in its signals belong to the mirror
/// that the tree shows.
class KelTreeView : public DictionaryExtendTreeView {
    Q_OBJECT

public:
    explicit KelTreeView(QWidget* parent = nullptr);

    /// Shows the mirror. Where it takes the place of another one of the same dictionary, what was
    /// expanded and selected stays so, by name, and the selected entity is told anew.
    void setRoot(const std::shared_ptr<TKpEntity>& root);
    /// Selects the entity and tells of it; nothing happens where there is none of that name.
    void selectEntity(const QString& name);
    TKpEntity* currentEntity() const; ///< the selected one; null for none
    DictionaryTreeModel* dictionaryModel() const { return model_; }

signals:
    void selectedEntity(TKpEntity* entity); ///< also when the selected one is clicked again
    void treeViewEntered();                 ///< by the mouse
    void entityDoubleClicked(TKpEntity* entity);
    void quickViewRequested(TKpEntity* entity);
    void propertiesRequested(TKpEntity* entity);
    void printRequested(TKpEntity* entity); ///< offered only where somebody listens
    void executeProgram(const QString& program);

public slots:
    void on_ContextMenuRequested(const QPoint& position); ///< in the viewport
    void on_Click(const QModelIndex& index);
    void on_DoubleClick(const QModelIndex& index);
    void on_f3Pressed(const QModelIndex& index);
    void on_f8Pressed(const QModelIndex& index);
    void on_ctrlPPressed(const QModelIndex& index);
    void on_selectionChanged();
    void on_quickViewEntity(TKpEntity* entity);
    void on_propertiesViewEntity(TKpEntity* entity);
    void on_printViewEntity(TKpEntity* entity);
    void on_executeProgram(const QString& program);
    void on_Entered();

protected:
    bool canPrint() const override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void connectOwnSignals();
    QStringList collapsedNames() const;
    void followFont();
    void retranslate();

    DictionaryTreeModel* model_;
    bool announced_ = false; ///< the press of the mouse has told of its entity already
};
