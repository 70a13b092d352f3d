// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/Documentation.h"

namespace {

constexpr QLatin1String lineBreak(R"(#\#n)");

} // namespace

QString Documentation::shown(const QString& stored) {
    QString text = stored;
    return text.replace(lineBreak, QLatin1String("\n"))
        .replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

QString Documentation::stored(const QString& shown) {
    QString text = shown;
    return text.replace(QLatin1String("\r\n"), QLatin1String("\n"))
        .replace(QLatin1String("\n"), lineBreak);
}
