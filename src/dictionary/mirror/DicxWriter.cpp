// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/mirror/DicxWriter.h"

#include "TKelDictionary.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

#include <optional>

namespace {

/// How a value stands in its file.
struct Storage {
    QString type = QStringLiteral("CHR");
    int size = 0;
    std::optional<int> decimals;
};

QString exact(double value) {
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

/// Nothing where there is no code.
QString codeText(const std::optional<double>& code) {
    return code ? exact(*code) : QString();
}

bool isAllowed(char32_t c) {
    return c == '\t' || c == '\n' || c == '\r' || (c >= 0x20 && c <= 0xD7FF) ||
           (c >= 0xE000 && c <= 0xFFFD) || c >= 0x10000;
}

QString legal(const QString& text) {
    QString result;
    result.reserve(text.size());
    for (const char32_t c : text.toUcs4())
        result += QChar::fromUcs4(isAllowed(c) ? c : U'\uFFFD');
    return result;
}

bool holdsPlainValues(const TKpVariable& variable) {
    return variable.fileName.endsWith(QLatin1String(".bin"), Qt::CaseInsensitive);
}

/// A .bin file holds plain values, whose form the engine knows and no reader could guess.
Storage storageOf(const TKpVariable& variable) {
    Storage storage;
    storage.size = variable.size;
    storage.decimals = variable.TKelVariable::decimals();
    if (!holdsPlainValues(variable))
        return storage;
    TKelVariable copy(variable);
    const QJsonObject raw = QJsonDocument::fromJson(QByteArray::fromStdString(copy.asJson()))
                                .object()
                                .value(QLatin1String("raw"))
                                .toObject();
    if (raw.isEmpty())
        return storage;
    return {raw.value(QLatin1String("type")).toString(), raw.value(QLatin1String("size")).toInt(),
            raw.value(QLatin1String("decimals")).toInt()};
}

/// A column file tells what its values are; elsewhere only the dictionary does.
bool tellsItsType(const QString& fileName) {
    return fileName.trimmed().endsWith(QLatin1String(".kbf"), Qt::CaseInsensitive);
}

/// What varType says, nothing where the element is left out.
QString writtenType(const TKpVariable& variable) {
    const QString& type = variable.typeName;
    if (type == QLatin1String("NONE"))
        return {};
    const bool plain = type == QLatin1String("INTEGER") || type == QLatin1String("REAL") ||
                       type == QLatin1String("BOOLEAN");
    if (plain && tellsItsType(variable.fileName))
        return {};
    return type == QLatin1String("BOOLEAN") ? QStringLiteral("BOOL") : type;
}

/// What a virtual entity shows in the mirror is its parent's file.
QString ownFile(const TKpEntity& entity) {
    return entity.isVirtual && entity.engineEntity != nullptr
               ? QString::fromStdString(entity.engineEntity->fileName())
               : entity.fileName;
}

} // namespace

DicxWriter::DicxWriter(QIODevice* device) : xml_(device) {
    xml_.setAutoFormatting(true);
}

bool DicxWriter::write(TKelDictionary& dictionary, const TKpEntity& root) {
    xml_.writeStartDocument(QStringLiteral("1.0"));
    xml_.writeStartElement(QStringLiteral("kelDictionary_XML"));
    writeGeneral(dictionary);
    writeEntity(QStringLiteral("root"), root);
    xml_.writeEndElement();
    xml_.writeEndDocument();
    return !xml_.hasError();
}

void DicxWriter::writeGeneral(TKelDictionary& dictionary) {
    xml_.writeStartElement(QStringLiteral("general"));
    text(QStringLiteral("typeType"), QString::fromStdString(dictionary.typeType()));
    text(QStringLiteral("name"), QString::fromStdString(dictionary.name()));
    text(QStringLiteral("label"), QString::fromStdString(dictionary.label()));
    text(QStringLiteral("author"), QString::fromStdString(dictionary.author()));
    text(QStringLiteral("created"), QString::fromStdString(dictionary.created()));
    text(QStringLiteral("updated"), QString::fromStdString(dictionary.updated()));
    xml_.writeStartElement(QStringLiteral("version"));
    number(QStringLiteral("major"), 7);
    number(QStringLiteral("minor"), 0);
    number(QStringLiteral("revision"), 0);
    number(QStringLiteral("construction"), 0);
    xml_.writeEndElement();
    xml_.writeEmptyElement(QStringLiteral("security"));
    xml_.writeEndElement();
}

void DicxWriter::writeEntity(const QString& element, const TKpEntity& entity) {
    xml_.writeStartElement(element);
    text(QStringLiteral("name"), entity.name);
    text(QStringLiteral("alias"), entity.alias);
    text(QStringLiteral("label"), entity.label);
    trueIf(QStringLiteral("selectable"), entity.selectable);
    textUnlessEmpty(QStringLiteral("refCode"), entity.refCode);
    textUnlessEmpty(QStringLiteral("refLabel"), entity.refLabel);
    text(QStringLiteral("filename"), ownFile(entity));
    textUnlessEmpty(QStringLiteral("weightVar"), entity.weightVar);
    trueIf(QStringLiteral("isVirtual"), entity.isVirtual);
    textUnlessEmpty(QStringLiteral("documentation"), entity.documentation);
    if (entity.tag >= 0)
        number(QStringLiteral("tag"), entity.tag);
    writeMarks(entity);
    for (const TKpVariable* variable : entity.variables)
        writeVariable(*variable);
    for (const TKpEntity* child : entity.children)
        writeEntity(QStringLiteral("entity"), *child);
    xml_.writeEndElement();
}

/// What only the engine's entity knows.
void DicxWriter::writeMarks(const TKpEntity& entity) {
    if (entity.engineEntity == nullptr)
        return;
    trueIf(QStringLiteral("hidden"), entity.engineEntity->hidden());
    if (const auto cases = entity.engineEntity->sensitive())
        number(QStringLiteral("sensitive"), *cases);
}

void DicxWriter::writeVariable(const TKpVariable& variable) {
    xml_.writeStartElement(QStringLiteral("variable"));
    text(QStringLiteral("name"), variable.name);
    textUnlessEmpty(QStringLiteral("alias"), variable.alias);
    textUnlessEmpty(QStringLiteral("label"), variable.label);
    textUnlessEmpty(QStringLiteral("group"), variable.group);
    textUnlessEmpty(QStringLiteral("varType"), writtenType(variable));
    number(QStringLiteral("fieldSize"), variable.size);
    writeRanges(variable);
    writeCodes(variable);
    if (const auto decimals = storageOf(variable).decimals)
        number(QStringLiteral("decimals"), *decimals);
    textUnlessEmpty(QStringLiteral("documentation"), variable.documentation);
    number(QStringLiteral("tag"), variable.tag);
    if (const auto cases = variable.sensitive())
        number(QStringLiteral("sensitive"), *cases);
    writeValueLabels(variable);
    xml_.writeEmptyElement(QStringLiteral("datasetID"));
    text(QStringLiteral("filename"), variable.fileName);
    writeStorage(variable);
    xml_.writeEndElement();
}

/// Readers take the one from 0 to 9999 for no range at all, but where a type of numbers is told.
void DicxWriter::writeRanges(const TKpVariable& variable) {
    QList<TKelRange> ranges = variable.ranges ? *variable.ranges : QList<TKelRange>();
    const QString type = writtenType(variable);
    if (ranges.isEmpty() && (type.isEmpty() || type == QLatin1String("STRING")))
        ranges.append({4, 0, 9999});
    for (const TKelRange& range : ranges) {
        xml_.writeStartElement(QStringLiteral("range"));
        number(QStringLiteral("rangeItemType"), range.kind);
        text(QStringLiteral("rangeMin"), exact(range.minimum));
        text(QStringLiteral("rangeMax"), exact(range.maximum));
        xml_.writeEndElement();
    }
}

/// Empty where there is no such code: 0 may be a real value. A text rarely has one. Others write
/// two plain zeros for no codes; two that are codes have a fraction.
void DicxWriter::writeCodes(const TKpVariable& variable) {
    const bool bothZero = variable.notapp() == 0.0 && variable.TKelVariable::missing() == 0.0;
    const auto write = [&](const QString& element, const std::optional<double>& code) {
        if (code)
            text(element, bothZero ? QStringLiteral("0.0") : codeText(code));
        else if (variable.typeName != QLatin1String("STRING"))
            xml_.writeEmptyElement(element);
    };
    write(QStringLiteral("notappl"), variable.notapp());
    write(QStringLiteral("missing"), variable.TKelVariable::missing());
}

void DicxWriter::writeValueLabels(const TKpVariable& variable) {
    if (!variable.valueLabels || variable.valueLabels->isEmpty()) {
        xml_.writeEmptyElement(QStringLiteral("valueLabels"));
        return;
    }
    xml_.writeStartElement(QStringLiteral("valueLabels"));
    for (const ValueLabelElement& element : *variable.valueLabels) {
        if (element.value.isEmpty())
            continue; // begun, but never filled in
        xml_.writeStartElement(QStringLiteral("valueLabelElement"));
        text(QStringLiteral("value"), element.value);
        text(QStringLiteral("label"), element.label);
        xml_.writeEndElement();
    }
    xml_.writeEndElement();
}

void DicxWriter::writeStorage(const TKpVariable& variable) {
    const Storage storage = storageOf(variable);
    xml_.writeStartElement(QStringLiteral("varDicChoice"));
    text(QStringLiteral("datasetType"), storage.type);
    number(QStringLiteral("datasetSize"), storage.size);
    trueIf(QStringLiteral("hidden"), variable.hidden);
    if (variable.local)
        text(QStringLiteral("isOriginal"), QStringLiteral("false"));
    xml_.writeEndElement();
}

void DicxWriter::text(const QString& element, const QString& value) {
    xml_.writeTextElement(element, legal(value));
}

void DicxWriter::textUnlessEmpty(const QString& element, const QString& value) {
    if (!value.isEmpty())
        text(element, value);
}

void DicxWriter::number(const QString& element, int value) {
    text(element, QString::number(value));
}

void DicxWriter::trueIf(const QString& element, bool value) {
    if (value)
        text(element, QStringLiteral("true"));
}
