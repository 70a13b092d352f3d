// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/program/ElidedPath.h"

#include <QDir>
#include <QFontMetrics>
#include <QStringList>

namespace {

QString withFirst(const QStringList& parts, qsizetype count) {
    QStringList kept = parts.first(count);
    kept += QStringLiteral("...");
    kept += parts.last();
    return kept.join(QDir::separator());
}

} // namespace

QString elidePath(const QString& nativePath, const QFont& font, int width) {
    const QFontMetrics metrics(font);
    // A tenth is left free, since the title is drawn in another font.
    const auto fits = [&metrics, width](const QString& text) {
        return metrics.horizontalAdvance(text) * 11 / 10 < width;
    };
    const QStringList parts = nativePath.split(QDir::separator());
    if (parts.size() <= 2 || fits(nativePath))
        return nativePath;
    for (qsizetype count = parts.size() - 2; count > 1; --count) {
        if (QString elided = withFirst(parts, count); fits(elided))
            return elided;
    }
    return withFirst(parts, 1);
}
