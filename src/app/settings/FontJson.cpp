// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings/FontJson.h"

#include <QFontInfo>

namespace {

constexpr int largestSize = 400; // points

QJsonObject attributes(const QFont& font) {
    return {{QStringLiteral("fsBold"), font.bold()},
            {QStringLiteral("fsItalic"), font.italic()},
            {QStringLiteral("fsUnderline"), font.underline()},
            {QStringLiteral("fsStrikeOut"), font.strikeOut()},
            {QStringLiteral("color"), QString()},
            {QStringLiteral("background"), QString()}};
}

} // namespace

QJsonObject fontToJson(const QFont& font) {
    // A font that was set in pixels has no size in points.
    const int size = font.pointSize() > 0 ? font.pointSize() : QFontInfo(font).pointSize();
    return {{QStringLiteral("name"), font.family()},
            {QStringLiteral("size"), size},
            {QStringLiteral("attrib"), attributes(font)}};
}

QFont fontFromJson(const QJsonObject& json, const QFont& defaultFont) {
    QFont font = defaultFont;
    const QString name = json.value(QStringLiteral("name")).toString();
    if (!name.isEmpty())
        font.setFamily(name);
    const int size = json.value(QStringLiteral("size")).toInt();
    if (size > 0 && size <= largestSize)
        font.setPointSize(size);
    const QJsonObject attributes = json.value(QStringLiteral("attrib")).toObject();
    font.setBold(attributes.value(QStringLiteral("fsBold")).toBool(defaultFont.bold()));
    font.setItalic(attributes.value(QStringLiteral("fsItalic")).toBool(defaultFont.italic()));
    font.setUnderline(
        attributes.value(QStringLiteral("fsUnderline")).toBool(defaultFont.underline()));
    font.setStrikeOut(
        attributes.value(QStringLiteral("fsStrikeOut")).toBool(defaultFont.strikeOut()));
    return font;
}
