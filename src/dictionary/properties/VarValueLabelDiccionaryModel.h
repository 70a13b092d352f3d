// SPDX-License-Identifier: GPL-3.0-or-later
// The categories of a variable as a table that can be edited.
// Nothing here reaches the dictionary: the dock takes the list when the user saves.
#pragma once

#include "dictionary/properties/CategoryEdits.h"

#include <QAbstractTableModel>
#include <QIcon>

class VarValueLabelDiccionaryModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { CodeColumn, LabelColumn, ColumnCount };

    explicit VarValueLabelDiccionaryModel(QObject* parent = nullptr);

    /// Begins anew. Numeric codes stand on the right.
    void setList(const Categories::List& list, bool numeric);
    const Categories::List& list() const { return edits_.list(); }

    // Changes by the user; each emits changed().
    void append(const Categories::List& added);
    void remove(int row);
    void clear();
    void undo();
    bool canUndo() const { return edits_.canUndo(); }

    /// Row of the first category that cannot be stored, -1 where all can.
    int firstFault() const;
    /// Why the category of the row cannot be stored; empty where it can.
    QString faultText(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

signals:
    /// A cell was edited; the element holds the new texts as long as the call lasts.
    void editedItem(ValueLabelElement* element);
    void changed();

private:
    void refreshFaults();
    QVariant alignment(int column) const;

    CategoryEdits edits_;
    QList<Categories::Fault> faults_;
    bool numeric_ = false;
    QIcon faultIcon_;
};
