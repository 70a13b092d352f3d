// SPDX-License-Identifier: GPL-3.0-or-later
// The order of the four groups of columns of a table, and which of them are hidden.
#pragma once

#include <QString>
#include <QStringList>

class ColumnGroups {
public:
    /// order: keys that are missing in it go to the end, in their usual order, and others are
    /// dropped. hideable: the keys of the groups that may be hidden.
    ColumnGroups(const QStringList& order, QStringList hideable);

    static const QStringList& keys(); ///< as they are offered
    static QString label(const QString& key);

    const QStringList& order() const { return order_; }
    /// Changes places with the group that stands in that row, counted from 0.
    void place(qsizetype row, const QString& key);

    bool canHide(const QString& key) const { return hideable_.contains(key); }
    bool isHidden(const QString& key) const { return hidden_.contains(key); }
    /// Nothing happens to a group that always shows.
    void setHidden(const QString& key, bool hidden);

private:
    QStringList order_;
    QStringList hideable_;
    QStringList hidden_;
};
