// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings/SettingsKeys.h"

#include "app/settings/FontJson.h"
#include "app/settings/SetBasis.h"
#include "app/settings/SettingsTable.h"

#include <QJsonArray>

#include <cmath>
#include <optional>

namespace {

constexpr int largestWindow = 16384; // pixels
constexpr qsizetype longestList = 1000;

using Path = QList<QStringView>;

struct Writer {
    const SettingsValues& values;

    QJsonValue operator()(bool constant) const { return constant; }
    QJsonValue operator()(int constant) const { return constant; }
    QJsonValue operator()(const char* constant) const { return QLatin1String(constant); }
    QJsonValue operator()(ConstantPosition) const { return SetPosition().toJson(); }
    QJsonValue operator()(EmptyObject) const { return QJsonObject(); }
    QJsonValue operator()(EmptyList) const { return QJsonArray(); }
    QJsonValue operator()(ConstantFont font) const {
        return fontToJson(QFont(QLatin1String(font.name), font.size));
    }
    QJsonValue operator()(bool SettingsValues::*field) const { return values.*field; }
    QJsonValue operator()(int SettingsValues::*field) const { return values.*field; }
    QJsonValue operator()(QString SettingsValues::*field) const { return values.*field; }
    QJsonValue operator()(QFont SettingsValues::*field) const { return fontToJson(values.*field); }
    QJsonValue operator()(QStringList SettingsValues::*field) const {
        QJsonArray array;
        for (const QString& location : values.*field)
            array.append(QJsonObject{{QStringLiteral("location"), location}});
        return array;
    }
    QJsonValue operator()(QSize SettingsValues::*field) const {
        return position(QRect(QPoint(), values.*field));
    }
    QJsonValue operator()(QRect SettingsValues::*field) const { return position(values.*field); }

    static QJsonObject position(const QRect& place) {
        SetPosition position;
        position.top = place.top();
        position.left = place.left();
        position.height = place.height();
        position.width = place.width();
        return position.toJson();
    }
};

std::optional<int> wholeNumber(const QJsonValue& json, int least, int most) {
    const double number = json.toDouble(std::nan(""));
    if (!(number >= least && number <= most) || number != std::floor(number))
        return std::nullopt;
    return static_cast<int>(number);
}

int numberOr(const QJsonValue& json, int least, int most, int otherwise) {
    return wholeNumber(json, least, most).value_or(otherwise);
}

QSize sizeOr(const QJsonObject& position, const QSize& otherwise) {
    const auto side = [&position](const QString& name, int length) {
        return numberOr(position.value(name), 1, largestWindow, length);
    };
    return {side(QStringLiteral("width"), otherwise.width()),
            side(QStringLiteral("height"), otherwise.height())};
}

QPoint pointOr(const QJsonObject& position, const QPoint& otherwise) {
    const auto place = [&position](const QString& name, int offset) {
        return numberOr(position.value(name), -largestWindow, largestWindow, offset);
    };
    return {place(QStringLiteral("left"), otherwise.x()),
            place(QStringLiteral("top"), otherwise.y())};
}

struct Reader {
    SettingsValues& values;
    const SettingsKey& key;
    const QJsonValue& json;

    template <class Constant>
    void operator()(Constant) const {}

    void operator()(bool SettingsValues::*field) const {
        values.*field = json.toBool(values.*field);
    }
    void operator()(int SettingsValues::*field) const {
        values.*field = numberOr(json, key.least, key.most, values.*field);
    }
    void operator()(QString SettingsValues::*field) const {
        values.*field = json.toString(values.*field);
    }
    void operator()(QFont SettingsValues::*field) const {
        values.*field = fontFromJson(json.toObject(), values.*field);
    }
    void operator()(QStringList SettingsValues::*field) const {
        QStringList list;
        const QJsonArray array = json.toArray();
        for (auto entry = array.begin(); entry != array.end() && list.size() < longestList; ++entry)
            if (const QString location =
                    entry->toObject().value(QLatin1String("location")).toString();
                !location.isEmpty())
                list += location;
        values.*field = list;
    }
    void operator()(QSize SettingsValues::*field) const {
        values.*field = sizeOr(json.toObject(), values.*field);
    }
    void operator()(QRect SettingsValues::*field) const {
        const QJsonObject position = json.toObject();
        const QRect& old = values.*field;
        values.*field = QRect(pointOr(position, old.topLeft()), sizeOr(position, old.size()));
    }
};

void insertAt(QJsonObject& object, const Path& path, const QJsonValue& value) {
    if (path.isEmpty()) {
        object = value.toObject();
        return;
    }
    if (path.size() == 1) {
        object.insert(path.first(), value);
        return;
    }
    QJsonObject inner = object.value(path.first()).toObject();
    insertAt(inner, path.mid(1), value);
    object.insert(path.first(), inner);
}

QJsonValue valueAt(const QJsonObject& document, const QString& path) {
    QJsonValue value = document;
    for (const QStringView name : QStringView(path).split('/'))
        value = value.toObject().value(name);
    return value;
}

} // namespace

QJsonObject writeSettingsGroup(const QString& group, const SettingsValues& values) {
    QJsonObject object;
    for (const SettingsKey& key : settingsTable()) {
        const QString path = QLatin1String(key.path);
        const Path names = QStringView(path).split('/');
        if (names.first() == group && key.use != SettingsUse::OnlyRead)
            insertAt(object, names.mid(1), std::visit(Writer{values}, key.content));
    }
    return object;
}

void readSettings(const QJsonObject& document, SettingsValues& values) {
    for (const SettingsKey& key : settingsTable()) {
        const QJsonValue json = valueAt(document, QLatin1String(key.path));
        if (key.use != SettingsUse::OnlyWritten && !json.isUndefined())
            std::visit(Reader{values, key, json}, key.content);
    }
}
