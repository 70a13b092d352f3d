// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/exports/SafeFileNames.h"

#include <QRegularExpression>
#include <QTextBoundaryFinder>

namespace {

/// File systems take 255 bytes. Numbers, suffixes and the mark of a file in the making need theirs.
constexpr qsizetype longestName = 200;

bool isDevice(const QString& name) {
    static const QRegularExpression device(
        QStringLiteral("^(con|prn|aux|nul|com\\d|lpt\\d)(\\.|$)"),
        QRegularExpression::CaseInsensitiveOption);
    return device.match(name).hasMatch();
}

bool isUnsafe(QChar character) {
    static const QString reserved = QStringLiteral("/\\:*?\"<>|");
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return reserved.contains(character);
    }
}

/// Whole characters only, as a reader sees them.
QString shortened(const QString& name) {
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, name);
    qsizetype fits = 0;
    for (qsizetype end = finder.toNextBoundary(); end > 0; end = finder.toNextBoundary()) {
        if (name.left(end).toUtf8().size() > longestName)
            break;
        fits = end;
    }
    return name.left(fits);
}

} // namespace

QString SafeFileNames::safe(const QString& name) {
    QString safe = QString::fromUtf8(name.toUtf8()); // halves of a character become "?"
    if (name.toUtf8().size() > longestName)
        safe = shortened(safe);
    for (QChar& character : safe)
        if (isUnsafe(character))
            character = QLatin1Char('_');
    safe = safe.trimmed();
    if (safe.startsWith(QLatin1Char('.')))
        safe[0] = QLatin1Char('_');
    if (safe.endsWith(QLatin1Char('.')))
        safe[safe.size() - 1] = QLatin1Char('_');
    if (safe.isEmpty() || isDevice(safe))
        safe.prepend(QLatin1Char('_'));
    return safe;
}

QString SafeFileNames::take(const QString& name, const QString& suffix) {
    const QString base = safe(name);
    QString file = base + suffix;
    const auto key = [&file] {
        return file.normalized(QString::NormalizationForm_C).toCaseFolded();
    };
    for (int number = 2; taken_.contains(key()); ++number)
        file = QStringLiteral("%1 (%2)").arg(base).arg(number) + suffix;
    taken_.insert(key());
    return file;
}
