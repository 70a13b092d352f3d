// SPDX-License-Identifier: GPL-3.0-or-later
// The table of a variable's categories with its buttons. What is changed here can be taken back.
#pragma once

#include "dictionary/properties/CategoryEdits.h"

#include <QWidget>

class QLabel;
class QPushButton;
class QTableView;
class VarValueLabelDiccionaryModel;
class VarValueLabelDiccionaryProxyModel;

class CategoryTable : public QWidget {
    Q_OBJECT

public:
    explicit CategoryTable(QWidget* parent = nullptr);

    /// Begins anew. Numeric codes stand on the right.
    void setList(const Categories::List& list, bool numeric);
    const Categories::List& list() const;
    void commitEditor(); ///< takes what is being typed into a cell
    /// Selects the first category that cannot be stored. Its fault, or an empty text.
    QString showFirstFault();

    void addRow();     ///< empty, and open for typing
    void copy() const; ///< the whole table goes to the clipboard
    void paste();      ///< the clipboard's lines of two parts are appended
    void removeCurrent();
    void clear();
    void undo();

    QPushButton* addButton() const { return add_; }
    QPushButton* copyButton() const { return copy_; }
    QPushButton* pasteButton() const { return paste_; }
    QPushButton* removeButton() const { return remove_; }
    QPushButton* clearButton() const { return clear_; }
    QPushButton* undoButton() const { return undo_; }
    VarValueLabelDiccionaryModel* model() const { return model_; }

    void retranslate();

private:
    void makeTable();
    void makeButtons();
    void addKeys();
    void select(int row, int column);
    void refresh();

    VarValueLabelDiccionaryModel* model_;
    VarValueLabelDiccionaryProxyModel* proxy_;
    QTableView* table_;
    QPushButton* add_;
    QPushButton* copy_;
    QPushButton* paste_;
    QPushButton* remove_;
    QPushButton* clear_;
    QPushButton* undo_;
    QLabel* message_;
    int ignoredLines_ = 0; ///< of the last paste
};
