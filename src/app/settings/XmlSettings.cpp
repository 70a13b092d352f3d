// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings/XmlSettings.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace {

const QLatin1String rootName("kelxAllModules_RCF");
constexpr qsizetype deepestKey = 32; // elements

bool isElementName(const QString& name) {
    const auto belongs = [](QChar c) {
        return c.isLetterOrNumber() || c == '_' || c == '-' || c == '.';
    };
    return !name.isEmpty() && (name.front().isLetter() || name.front() == '_') &&
           std::all_of(name.begin(), name.end(), belongs);
}

qsizetype commonLength(const QStringList& a, const QStringList& b) {
    return std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin();
}

void moveTo(const QStringList& target, QStringList& open, QXmlStreamWriter& xml) {
    const qsizetype kept = commonLength(open, target);
    for (; open.size() > kept; open.removeLast())
        xml.writeEndElement();
    for (; open.size() < target.size(); open += target.at(open.size()))
        xml.writeStartElement(target.at(open.size()));
}

bool writeXml(QIODevice& device, const QSettings::SettingsMap& map) {
    QXmlStreamWriter xml(&device);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(rootName);
    QStringList open;
    for (auto value = map.begin(); value != map.end(); ++value) {
        const QStringList names = value.key().split('/');
        if (!std::all_of(names.begin(), names.end(), isElementName))
            return false;
        moveTo(names, open, xml);
        xml.writeCharacters(value.value().toString());
    }
    xml.writeEndDocument();
    return !xml.hasError();
}

bool readXml(QIODevice& device, QSettings::SettingsMap& map) {
    QXmlStreamReader xml(&device);
    if (!xml.readNextStartElement() || xml.name() != rootName)
        return false;
    QStringList open;
    while (!xml.atEnd() && open.size() <= deepestKey) {
        xml.readNext();
        if (xml.isStartElement())
            open += xml.name().toString();
        else if (xml.isEndElement() && !open.isEmpty())
            open.removeLast();
        else if (xml.isCharacters() && !xml.isWhitespace() && !open.isEmpty())
            map.insert(open.join('/'), xml.text().toString());
    }
    return !xml.hasError() && open.isEmpty();
}

} // namespace

QSettings::Format xmlSettingsFormat() {
    static const QSettings::Format format =
        QSettings::registerFormat(QStringLiteral("xml"), readXml, writeXml);
    return format;
}
