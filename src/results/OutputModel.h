// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of any output as the engine gives them, read from it cell by cell as they are shown.
#pragma once

#include <QAbstractTableModel>
#include <QList>
#include <QString>

#include <memory>

class TKelDataset;
class TKelOutput;
class TKelSession;

/// What the run was limited to; empty for the whole database.
QString selectedAreas(TKelSession& session);

/// An output to show, with the session that it belongs to.
struct OutputTable {
    std::shared_ptr<TKelSession> session;
    TKelOutput* output = nullptr;

    QString name() const;
    QString title() const; ///< the name, and the program's title for it
    QString note() const;  ///< areas, weight, filter and hidden cells, a line for each
};

/// The display role gives figures with the output's decimals, the edit role in full precision.
class OutputModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void setTable(const OutputTable& table);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Column {
        int field = 0;
        int kindField = -1;  ///< where the field's rows may be markers
        bool isCode = false; ///< empty in the row of a marker
        bool isText = true;
        bool isStored = false; ///< a value of the database, shown as it stands
        QString heading;
    };
    void addDimension(const QString& heading);
    void addField(int field);
    QString cell(int row, const Column& column) const;
    /// In the form of the interface language.
    QString shown(const QString& figure, bool isStored) const;

    OutputTable table_;
    TKelDataset* data_ = nullptr;
    QList<Column> columns_;
    int decimals_ = 0;
};
