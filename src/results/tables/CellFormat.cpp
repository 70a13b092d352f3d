// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/CellFormat.h"

#include "results/tables/CellNumber.h"

#include <QByteArray>

#include <algorithm>
#include <cmath>

namespace {

constexpr int mostDecimals = 30;
constexpr double noFraction = 1e-12;

bool sameLetter(char a, char b) {
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
    return lower(a) == lower(b);
}

bool containsAnyCase(std::string_view text, std::string_view word) {
    return std::search(text.begin(), text.end(), word.begin(), word.end(), sameLetter) !=
           text.end();
}

bool isWord(std::string_view text, std::string_view word) {
    return std::equal(text.begin(), text.end(), word.begin(), word.end(), sameLetter);
}

/// digits: ASCII, with sign and decimals.
QString grouped(std::string_view digits, const QString& separator) {
    const std::size_t first = digits.starts_with('-') ? 1 : 0;
    const std::size_t point = std::min(digits.find('.'), digits.size());
    QString text;
    text.reserve(2 * static_cast<qsizetype>(digits.size()));
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > first && i < point && (point - i) % 3 == 0)
            text += separator;
        text += QLatin1Char(digits[i]);
    }
    return text;
}

QString shownWhole(std::int64_t whole, const QString& separator) {
    return grouped(std::to_string(whole), separator);
}

QString shownReal(double value, int decimals, const QString& separator) {
    double whole = 0;
    const bool isWhole = std::abs(std::modf(value, &whole)) < noFraction;
    // The figure as it is stored is rounded: 0.125 is a tie and goes up, as people round, while
    // 1.085 has no double of its own and is kept as a little less.
    const QByteArray text =
        QByteArray::number(value, 'f', isWhole ? 0 : std::clamp(decimals, 0, mostDecimals));
    std::string_view digits(text.data(), static_cast<std::size_t>(text.size()));
    if (digits.starts_with('-') && digits.find_first_of("123456789") == std::string_view::npos)
        digits.remove_prefix(1);
    return grouped(digits, separator);
}

} // namespace

// The words are not translated: charts and maps leave rows and columns out by them.
QString markerName(std::string_view text) {
    if (text.find("__") == std::string_view::npos)
        return {};
    if (containsAnyCase(text, "__tot__"))
        return QStringLiteral("Total");
    if (text.find("__mv__") != std::string_view::npos)
        return QStringLiteral("MV");
    return text.find("__na__") != std::string_view::npos ? QStringLiteral("NA") : QString();
}

FormattedCell CellFormat::formatText(std::string_view raw) {
    const std::string_view text = trimmedText(raw);
    if (text.empty())
        return {};
    if (isWord(text, "Total"))
        return {QStringLiteral("Total"), true, true};
    const QString marker = markerName(text);
    if (!marker.isEmpty())
        return {marker, true, containsAnyCase(text, "__tot__")};
    return {QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).trimmed(), true,
            false};
}

FormattedCell CellFormat::format(std::string_view raw) const {
    const auto number = readNumber(raw, readsGrouped);
    if (!number)
        return formatText(raw);
    if (number->whole)
        return {shownWhole(*number->whole, separator), false, false};
    return {shownReal(number->value, decimals, separator), false, false};
}
