// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/workbook/SheetNames.h"

namespace {

constexpr qsizetype maxLength = 31;

QString cut(QString name, qsizetype length) {
    if (name.size() <= length)
        return name;
    return name.left(name[length - 1].isHighSurrogate() ? length - 1 : length);
}

QString withoutForbidden(QString name) {
    for (QChar& c : name)
        if (QStringView(u"[]:*?/\\").contains(c) || c.category() == QChar::Other_Control ||
            c.unicode() >= 0xFFFE)
            c = u'_';
    return name;
}

/// Apostrophes at the ends would be taken for those around the name in formulas.
QString withoutOuterApostrophes(QStringView name) {
    while (name.startsWith(u'\''))
        name = name.mid(1);
    while (name.endsWith(u'\''))
        name.chop(1);
    return name.toString();
}

QString acceptable(const QString& name) {
    const QString kept = withoutOuterApostrophes(cut(withoutForbidden(name.trimmed()), maxLength));
    // Kept back by spreadsheets for their list of changes.
    return kept.compare(QLatin1String("history"), Qt::CaseInsensitive) == 0 ? kept + u'_' : kept;
}

} // namespace

SheetNames::SheetNames(const QStringList& taken) {
    for (const QString& name : taken)
        taken_.insert(name.toCaseFolded());
}

bool SheetNames::isFree(const QString& name) const {
    return !name.isEmpty() && !taken_.contains(name.toCaseFolded());
}

QString SheetNames::take(const QString& name) {
    taken_.insert(name.toCaseFolded());
    return name;
}

QString SheetNames::takeNumbered(const QString& name) {
    const QString base = acceptable(name);
    if (base.isEmpty())
        return takeOrDefault(base);
    QString candidate = base;
    for (int number = 2; !isFree(candidate); ++number) {
        const QString ending = QStringLiteral(" (%1)").arg(number);
        candidate = cut(base, maxLength - ending.size()) + ending;
    }
    ++count_;
    return take(candidate);
}

QString SheetNames::takeOrDefault(const QString& name) {
    QString candidate = acceptable(name);
    ++count_;
    for (int number = count_; !isFree(candidate); ++number)
        candidate = QStringLiteral("Sheet%1").arg(number);
    return take(candidate);
}
