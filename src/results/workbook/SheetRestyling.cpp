// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/workbook/SheetRestyling.h"

namespace {

constexpr QByteArrayView formatBegin(" s=\"");

/// "<c r="A1" s="3">" with another number.
void appendRestyled(QByteArrayView tag, const QList<QByteArray>& formats, QByteArray& out) {
    const qsizetype begin = tag.indexOf(formatBegin);
    if (begin < 0) {
        out.append(tag);
        return;
    }
    const qsizetype number = begin + formatBegin.size();
    const qsizetype end = tag.indexOf('"', number);
    const int format = tag.sliced(number, end - number).toInt();
    out.append(tag.first(number)).append(formats.value(format)).append(tag.sliced(end));
}

} // namespace

SheetRestyling::SheetRestyling(const QList<int>& formats) {
    for (const int format : formats)
        formats_ += QByteArray::number(format);
}

QByteArray SheetRestyling::take(QByteArrayView piece) {
    pending_.append(piece);
    const QByteArrayView text(pending_);
    QByteArray out;
    out.reserve(text.size() + text.size() / 8);
    qsizetype done = 0;
    while (true) {
        const qsizetype begin = text.indexOf('<', done);
        out.append(text.sliced(done, (begin < 0 ? text.size() : begin) - done));
        done = begin < 0 ? text.size() : begin;
        const qsizetype end = begin < 0 ? -1 : text.indexOf('>', begin);
        if (end < 0)
            break;
        takeTag(text.sliced(begin, end + 1 - begin), out);
        done = end + 1;
    }
    pending_ = text.sliced(done).toByteArray();
    return out;
}

void SheetRestyling::takeTag(QByteArrayView tag, QByteArray& out) {
    if (tag.startsWith("<c "))
        appendRestyled(tag, formats_, out);
    else if (tag.startsWith("<sheetView "))
        out.append(tag.toByteArray().replace(" tabSelected=\"1\"", ""));
    else
        out.append(tag);
}
