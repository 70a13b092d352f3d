// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/options/ColumnGroups.h"

#include "results/tables/TableViewConfig.h"

#include <QCoreApplication>

#include <utility>

ColumnGroups::ColumnGroups(const QStringList& order, QStringList hideable)
    : hideable_(std::move(hideable)) {
    for (const QString& key : order + keys())
        if (keys().contains(key) && !order_.contains(key))
            order_ += key;
}

const QStringList& ColumnGroups::keys() {
    static const QStringList all{columnkeys::total, columnkeys::variables,
                                 columnkeys::notApplicable, columnkeys::missing};
    return all;
}

QString ColumnGroups::label(const QString& key) {
    const auto translated = [](const char* text) {
        return QCoreApplication::translate("ColumnGroups", text);
    };
    if (key == columnkeys::total)
        return translated(QT_TRANSLATE_NOOP("ColumnGroups", "Total"));
    if (key == columnkeys::variables)
        return translated(QT_TRANSLATE_NOOP("ColumnGroups", "Variables"));
    if (key == columnkeys::notApplicable)
        return translated(QT_TRANSLATE_NOOP("ColumnGroups", "NA"));
    return translated(QT_TRANSLATE_NOOP("ColumnGroups", "MV"));
}

void ColumnGroups::place(qsizetype row, const QString& key) {
    order_.swapItemsAt(row, order_.indexOf(key));
}

void ColumnGroups::setHidden(const QString& key, bool hidden) {
    hidden_.removeAll(key);
    if (hidden && canHide(key))
        hidden_ += key;
}
