// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/views/DraggedItems.h"

#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"

#include <QDataStream>
#include <QIODevice>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMimeData>

#include <algorithm>
#include <utility>

namespace {

QString treeMark() {
    return QStringLiteral("*Tree*");
}

QString compact(const QJsonValue& value) {
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(list.mid(1, list.size() - 2));
}

bool needsEscape(QChar c) {
    return c < u' ' || c == u'"' || c == u'\\' || c.isSurrogate();
}

/// The text of a JSON object whose keys keep the order in which they are added.
class JsonText {
public:
    JsonText() { text_.reserve(usualLength); }
    void add(QLatin1String key, const QString& value) {
        begin(key);
        // Plain texts are by far the most, and quoting them is all that they need.
        if (std::none_of(value.begin(), value.end(), needsEscape))
            text_.append(u'"').append(value).append(u'"');
        else
            text_ += compact(value);
    }
    void add(QLatin1String key, int value) {
        begin(key);
        text_ += QString::number(value);
    }
    void add(QLatin1String key, bool value) {
        begin(key);
        text_ += value ? QLatin1String("true") : QLatin1String("false");
    }
    void add(QLatin1String key, const QJsonArray& value) {
        begin(key);
        text_ += value.isEmpty()
                     ? QStringLiteral("[]")
                     : QString::fromUtf8(QJsonDocument(value).toJson(QJsonDocument::Compact));
    }
    /// Ends the object.
    QString take() {
        text_ += u'}';
        return std::exchange(text_, {});
    }

private:
    static constexpr qsizetype usualLength = 512;

    void begin(QLatin1String key) {
        text_ += text_.isEmpty() ? u'{' : u',';
        text_ += u'"';
        text_ += key;
        text_ += QLatin1String("\":");
    }

    QString text_;
};

QJsonArray rangesOf(const TKpVariable& variable) {
    QJsonArray array;
    if (variable.ranges)
        for (const TKelRange& range : *variable.ranges)
            array.append(QJsonObject{{QStringLiteral("type"), range.kind},
                                     {QStringLiteral("min"), range.minimum},
                                     {QStringLiteral("max"), range.maximum}});
    return array;
}

QJsonArray valueLabelsOf(const TKpVariable& variable) {
    QJsonArray array;
    if (variable.valueLabels)
        for (const ValueLabelElement& element : *variable.valueLabels)
            array.append(QJsonObject{{QStringLiteral("value"), element.value},
                                     {QStringLiteral("label"), element.label}});
    return array;
}

QString itemText(const TKpEntity& entity) {
    JsonText json;
    json.add(QLatin1String("name"), entity.name);
    json.add(QLatin1String("fullName"), entity.name);
    json.add(QLatin1String("level"), entity.level);
    json.add(QLatin1String("label"), entity.label);
    json.add(QLatin1String("entity"), treeMark());
    return json.take();
}

QString itemText(const TKpVariable& variable) {
    JsonText json;
    json.add(QLatin1String("entity"), variable.entityName);
    json.add(QLatin1String("name"), variable.name);
    json.add(QLatin1String("label"), variable.label);
    json.add(QLatin1String("group"), variable.group);
    json.add(QLatin1String("alias"), variable.alias);
    json.add(QLatin1String("tag"), variable.tag);
    json.add(QLatin1String("fullName"), variable.fullName);
    json.add(QLatin1String("type"), variable.typeName);
    json.add(QLatin1String("size"), variable.size);
    json.add(QLatin1String("path"), variable.path);
    json.add(QLatin1String("local"), variable.local);
    json.add(QLatin1String("position"), variable.position);
    json.add(QLatin1String("decimals"), variable.decimals);
    json.add(QLatin1String("missing"), variable.missing);
    json.add(QLatin1String("notapp"), variable.notApp);
    json.add(QLatin1String("level"), variable.owner != nullptr ? variable.owner->level : 0);
    json.add(QLatin1String("range"), rangesOf(variable));
    json.add(QLatin1String("categoria"), valueLabelsOf(variable));
    json.add(QLatin1String("documentation"), variable.documentation);
    return json.take();
}

const QString& fullNameOf(const TKpEntity& entity) {
    return entity.name;
}

const QString& fullNameOf(const TKpVariable& variable) {
    return variable.fullName;
}

template <class Item>
QMimeData* dataOf(const QList<Item*>& items) {
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    QStringList names;
    for (const Item* item : items) {
        stream << itemText(*item);
        names += fullNameOf(*item);
    }
    auto* data = new QMimeData;
    data->setData(draggedItemsType(), bytes);
    data->setText(names.join(QLatin1String(", ")));
    return data;
}

QList<ValueLabelElement> readValueLabels(const QJsonArray& array) {
    QList<ValueLabelElement> labels;
    for (const QJsonValue& value : array)
        labels.append(
            {value[QLatin1String("value")].toString(), value[QLatin1String("label")].toString()});
    return labels;
}

DraggedItem readItem(const QJsonObject& json) {
    const auto text = [&](const char* key) { return json[QLatin1String(key)].toString(); };
    const auto number = [&](const char* key) { return json[QLatin1String(key)].toInt(); };
    DraggedItem item;
    item.isEntity = text("entity") == treeMark();
    item.name = text("name");
    item.entity = item.isEntity ? item.name : text("entity");
    item.fullName = text("fullName");
    item.label = text("label");
    item.level = number("level");
    item.group = text("group");
    item.alias = text("alias");
    item.type = text("type");
    item.path = text("path");
    item.documentation = text("documentation");
    item.tag = json[QLatin1String("tag")].toInt(-1);
    item.size = number("size");
    item.position = number("position");
    item.decimals = number("decimals");
    item.missing = number("missing");
    item.notApp = number("notapp");
    item.local = json[QLatin1String("local")].toBool();
    item.valueLabels = readValueLabels(json[QLatin1String("categoria")].toArray());
    return item;
}

} // namespace

QString draggedItemsType() {
    return QStringLiteral("application/vnd.text.list");
}

QMimeData* dragData(const QList<TKpEntity*>& entities) {
    return dataOf(entities);
}

QMimeData* dragData(const QList<TKpVariable*>& variables) {
    return dataOf(variables);
}

QList<DraggedItem> readDraggedItems(const QMimeData* data) {
    QList<DraggedItem> items;
    if (data == nullptr)
        return items;
    // Other programs may offer the type too: nothing in it is taken for granted.
    QDataStream stream(data->data(draggedItemsType()));
    while (!stream.atEnd()) {
        QString text;
        stream >> text;
        if (stream.status() != QDataStream::Ok)
            break;
        const DraggedItem item = readItem(QJsonDocument::fromJson(text.toUtf8()).object());
        if (!item.name.isEmpty())
            items.append(item);
    }
    return items;
}
