// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/language/QSyntaxStyle.h"

#include <QDebug>
#include <QFile>
#include <QXmlStreamReader>

#include <array>

namespace {

constexpr std::array underlineWords{"SingleUnderline",    "DashUnderline",  "DotLine",
                                    "DashDotLine",        "DashDotDotLine", "WaveUnderline",
                                    "SpellCheckUnderline"};

QTextCharFormat::UnderlineStyle underlineStyle(QStringView word) {
    for (std::size_t i = 0; i < underlineWords.size(); ++i)
        if (word == QLatin1String(underlineWords[i]))
            return QTextCharFormat::UnderlineStyle(i + 1);
    qDebug("Unknown underline value %s", qUtf8Printable(word.toString()));
    return QTextCharFormat::NoUnderline;
}

/// Not a solid brush where the attribute is missing or no colour.
QBrush brush(const QXmlStreamAttributes& attributes, const char* name) {
    const QStringView value = attributes.value(QLatin1String(name));
    return QColor::isValidColorName(value) ? QBrush(QColor(value)) : QBrush();
}

QTextCharFormat readFormat(const QXmlStreamAttributes& attributes) {
    QTextCharFormat format;
    const QBrush background = brush(attributes, "background");
    if (background != Qt::NoBrush)
        format.setBackground(background);
    const QBrush foreground = brush(attributes, "foreground");
    if (foreground != Qt::NoBrush)
        format.setForeground(foreground);
    if (attributes.value(QLatin1String("bold")) == QLatin1String("true"))
        format.setFontWeight(QFont::Bold);
    if (attributes.value(QLatin1String("italic")) == QLatin1String("true"))
        format.setFontItalic(true);
    if (attributes.hasAttribute(QLatin1String("underlineStyle")))
        format.setUnderlineStyle(underlineStyle(attributes.value(QLatin1String("underlineStyle"))));
    return format;
}

} // namespace

QSyntaxStyle::QSyntaxStyle(QObject* parent) : QObject(parent) {}

bool QSyntaxStyle::load(const QString& xml) {
    QXmlStreamReader reader(xml);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes attributes = reader.attributes();
        const QString name = attributes.value(QLatin1String("name")).toString();
        if (reader.name() == QLatin1String("style"))
            formats_.insert(name, readFormat(attributes));
        else if (reader.name() == QLatin1String("style-scheme") && !name.isEmpty())
            name_ = name;
    }
    loaded_ = !reader.hasError();
    return loaded_;
}

QTextCharFormat QSyntaxStyle::getFormat(const QString& name) const {
    return formats_.value(name);
}

QSyntaxStyle* QSyntaxStyle::defaultStyle() {
    static QSyntaxStyle style;
    static const bool tried = [] {
        QFile file(QStringLiteral(":/default_style.xml"));
        if (!file.open(QIODevice::ReadOnly) || !style.load(QString::fromUtf8(file.readAll())))
            qDebug("Can't load default style.");
        return true;
    }();
    Q_UNUSED(tried)
    return &style;
}
