// SPDX-License-Identifier: GPL-3.0-or-later
// Makes a sheet of one of our new workbooks fit for another workbook, piece by piece: with that
// one's numbers of formats, and not selected besides the sheet that is.
#pragma once

#include <QByteArray>
#include <QList>

class SheetRestyling {
public:
    /// formats: new numbers by old ones.
    explicit SheetRestyling(const QList<int>& formats);

    /// What can be written of the text so far; the rest comes with the next piece.
    QByteArray take(QByteArrayView piece);

private:
    void takeTag(QByteArrayView tag, QByteArray& out);

    QList<QByteArray> formats_;
    QByteArray pending_; ///< a tag that has begun
};
