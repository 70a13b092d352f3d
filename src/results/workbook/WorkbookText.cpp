// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/workbook/WorkbookText.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

bool needsCare(QChar c) {
    return c == u'_' || c.isNull() || c.isSurrogate() || c.unicode() >= 0xFFFE;
}

bool isHalf(const QString& text, qsizetype at) {
    if (text[at].isHighSurrogate())
        return at + 1 == text.size() || !text[at + 1].isLowSurrogate();
    return text[at].isLowSurrogate() && (at == 0 || !text[at - 1].isHighSurrogate());
}

QString withoutForbidden(QString text) {
    for (qsizetype i = 0; i < text.size(); ++i)
        if (text[i].isNull() || text[i].unicode() >= 0xFFFE || isHalf(text, i))
            text[i] = QChar::ReplacementCharacter;
    return text;
}

/// Readers of workbooks take "_x0041_" for "A"; its first character written so keeps it as it is.
QString withoutEscapes(QString text) {
    static const QRegularExpression escape(QStringLiteral("_(?=x[0-9A-Fa-f]{4}_)"));
    return text.replace(escape, QStringLiteral("_x005F_"));
}

} // namespace

WorkbookText::WorkbookText(const QString& text) {
    QString kept = text;
    if (std::any_of(text.cbegin(), text.cend(), needsCare))
        kept = withoutEscapes(withoutForbidden(text));
    if (kept.size() > maxLength) {
        isCut = true;
        kept.truncate(kept[maxLength - 1].isHighSurrogate() ? maxLength - 1 : maxLength);
    }
    utf8 = kept.toUtf8();
}
