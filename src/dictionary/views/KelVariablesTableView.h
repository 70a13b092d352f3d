// SPDX-License-Identifier: GPL-3.0-or-later
// The table of the variables of one entity, sorted and filtered as the user likes.
#pragma once

#include "dictionary/views/VariablesExtendTableView.h"

#include <QStringList>

#include <memory>

class TKpEntity;
class TKpVariable;
class VariableDiccionaryModel;
class VariablesDictionaryProxyModel;

/// Emits what the user asks for; only edits of cells and the questions around them are done here.
/// Variables in its signals belong to the mirror that the table shows.
class KelVariablesTableView : public VariablesExtendTableView {
    Q_OBJECT

public:
    explicit KelVariablesTableView(QWidget* parent = nullptr);

    /// Shows the entity of the mirror; null shows nothing. Where it has the name of the one shown
    /// before, as after a rebuild, selected variables stay so, by name.
    void setEntity(const std::shared_ptr<TKpEntity>& root, TKpEntity* entity);
    /// Selects the variable and tells of it; nothing happens where it is not shown.
    void selectVariable(const QString& name);
    TKpVariable* currentVariable() const; ///< the one with the focus, if selected; null for none
    QList<TKpVariable*> selectedVariables() const; ///< in the order shown
    VariableDiccionaryModel* variableModel() const { return model_; }
    VariablesDictionaryProxyModel* proxyModel() const { return proxy_; }

signals:
    void tableViewEntered();                  ///< by the mouse
    void selectedItem(TKpVariable* variable); ///< also when the selected one is clicked again
    void tableInfoChange(bool changed);       ///< true: what the table shows was edited
    void signalShowVariablesProperties();     ///< of the current variable
    void quickViewRequested(TKpVariable* variable);
    void variableDoubleClicked(TKpVariable* variable);
    void executeProgram(const QString& program);
    void countChanged(int shown, int all);

public slots:
    void on_VariableClicked(const QModelIndex& index);
    void on_VariableDoubleClick(const QModelIndex& index);
    void on_ContextMenuRequested(const QPoint& position); ///< in the viewport
    void on_VariableRename(); ///< edits the current cell; the name of a local variable only
    void on_VariableProperties();
    void on_DisplayQuickView();
    void on_VariableDelete();
    void on_SelectAllVariables();
    void on_FilterEntered(const QString& text);
    void on_TableEntered();

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Kept {
        QString current;
        int column = 0;
        QStringList selected;
    };
    void setUpLook();
    void connectOwnSignals();
    void connectModels();
    Kept keepSelection() const;
    void restoreSelection(const Kept& kept);
    void announce();
    void editName();
    void deleteVariables();
    void fitColumns();
    void followFont();
    void retranslate();
    TKpVariable* variableAt(const QModelIndex& index) const;

    VariableDiccionaryModel* model_;
    VariablesDictionaryProxyModel* proxy_;
    const TKpVariable* announced_ = nullptr; ///< told last; never read through
    bool fitting_ = false;
    bool ownWidths_ = false; ///< the user has drawn a column wider or narrower
};
