// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/search/Mnemonic.h"

QString withMnemonic(const QString& text, QChar letter) {
    if (text.contains(u'&'))
        return text;
    qsizetype at = (u' ' + text).indexOf(QStringLiteral(" ") + letter, 0, Qt::CaseInsensitive);
    if (at < 0)
        at = text.indexOf(letter, 0, Qt::CaseInsensitive);
    QString marked = text;
    return at < 0 ? marked : marked.insert(at, u'&');
}
