// SPDX-License-Identifier: GPL-3.0-or-later
// The header items of a result table by their place in the grid.
#pragma once

#include <QColor>
#include <QList>
#include <QString>

class TableBase;

/// Cells that are drawn as one.
struct CellSpan {
    int row = 0;
    int column = 0;
    int rows = 1;
    int columns = 1;

    bool isWide() const { return rows > 1 || columns > 1; }
};

struct HeaderItem {
    QString raw;
    QString shown; ///< the code alone where the label only repeats it
    QColor background;
    CellSpan span;
};

class ResultHeader {
public:
    ResultHeader() = default;
    explicit ResultHeader(const TableBase& table);

    int rows() const { return static_cast<int>(places_.size()); }
    /// The item that begins there; null where none does.
    const HeaderItem* at(int row, int column) const;
    /// An item begins there or spans over it.
    bool covers(int row, int column) const {
        return places_.value(row).value(column, none) != none;
    }
    const QList<HeaderItem>& items() const { return items_; }

private:
    static constexpr int none = -1;
    static constexpr int spanned = -2; ///< by an item that begins elsewhere

    void place(HeaderItem item);
    int& placeAt(int row, int column);

    QList<HeaderItem> items_;
    QList<QList<int>> places_; ///< by row and column, the item's number or one of the above
};

/// "7. 7" is "7", "7. Seven" stays.
QString shortHeader(const QString& text);
/// Black or white, whichever can be read on that colour.
QColor readableOn(const QColor& background);
