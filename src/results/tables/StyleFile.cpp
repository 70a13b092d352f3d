// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/StyleFile.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <algorithm>

namespace {

constexpr qint64 largestFile = 1024LL * 1024; // bytes

StyleFile parsed(const QByteArray& text) {
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (document.isObject())
        return {StyleFile::State::Read, document.object(), {}};
    const bool isJson = error.error == QJsonParseError::NoError;
    return {StyleFile::State::NotParsed,
            {},
            isJson ? QStringLiteral("not an object") : error.errorString()};
}

bool isSeparator(QChar letter) {
    const auto category = letter.category();
    return letter.isPrint() && !letter.isLetterOrNumber() && letter != u'-' && letter != u'+' &&
           category != QChar::Separator_Line && category != QChar::Separator_Paragraph;
}

} // namespace

StyleFile StyleFile::read(const QString& path) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly) || file.size() > largestFile)
        return {};
    return parsed(file.read(largestFile));
}

bool StyleFile::isSectioned() const {
    return object.contains(QLatin1String("general")) ||
           object.contains(QLatin1String("frequency1Var")) ||
           object.contains(QLatin1String("frequencyMultiVar"));
}

int stylevalues::decimals(const QJsonValue& value, int otherwise) {
    return std::clamp(value.toInt(otherwise), 0, mostDecimals);
}

QString stylevalues::separator(const QJsonValue& value, const QString& otherwise) {
    const QString text = value.toString(otherwise);
    return text.isEmpty() || (text.size() == 1 && isSeparator(text[0])) ? text : otherwise;
}
