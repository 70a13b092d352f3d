// SPDX-License-Identifier: GPL-3.0-or-later
// Shows the open dictionary: entities, the variables of one, the value labels of one variable.
#pragma once

#include <QSplitter>

class EntityTreeModel;
class QAction;
class QLabel;
class QLineEdit;
class QTableView;
class QTreeView;
class TKpEntity;
class TKpVariable;
class ValueLabelModel;
class VariableFilter;
class VariableTableModel;

class DictionaryBrowser : public QSplitter {
    Q_OBJECT

public:
    explicit DictionaryBrowser(QWidget* parent = nullptr);

    /// The mirror must live until the next call; null shows nothing.
    void setRoot(TKpEntity* root);
    TKpVariable* currentVariable() const; ///< null where none is selected
    /// Offers the action in the context menu of the variables.
    void addVariableAction(QAction* action);
    void showValueLabels(bool visible);
    void focusFilter();

signals:
    void currentVariableChanged(TKpVariable* variable);
    void variableActivated(TKpVariable* variable); ///< double click or Enter

protected:
    void changeEvent(QEvent* event) override;

private:
    QWidget* makeVariablesPane();
    QWidget* makeValueLabelsPane();
    void makeTree();
    void showEntity(const QModelIndex& index);
    void showVariable(const QModelIndex& index);
    void fitColumns();
    void nameEntity();
    void nameLabels();
    void updateCount();
    void retranslate();

    EntityTreeModel* entities_;
    VariableTableModel* variables_;
    VariableFilter* filter_;
    ValueLabelModel* valueLabels_;
    QTreeView* tree_;
    QTableView* table_;
    QTableView* labels_;
    QLineEdit* filterLine_;
    QLabel* filterLabel_;
    QLabel* heading_;
    QLabel* count_;
    QLabel* labelsHeading_;
    QWidget* labelsPane_;
};
