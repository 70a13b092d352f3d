// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/workbook/XmlPart.h"

#include "results/workbook/WorkbookError.h"

#include <QRegularExpression>
#include <QStringDecoder>
#include <QStringEncoder>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

QRegularExpressionMatch matchAttribute(const QString& tag, const char* name) {
    const QRegularExpression attribute(
        QStringLiteral("\\s%1\\s*=\\s*(?:\"([^\"]*)\"|'([^']*)')").arg(QLatin1String(name)));
    return attribute.match(tag);
}

int valueGroup(const QRegularExpressionMatch& match) {
    return match.capturedStart(1) >= 0 ? 1 : 2;
}

XmlElement elementAt(const QXmlStreamReader& reader, const QString& text) {
    XmlElement element;
    element.name = reader.name().toString();
    element.prefix = reader.prefix().isEmpty() ? QString() : reader.prefix().toString() + u':';
    element.space = reader.namespaceUri().toString();
    element.attributes = reader.attributes();
    element.declarations = reader.namespaceDeclarations();
    element.contentBegin = reader.characterOffset();
    element.begin = text.lastIndexOf(u'<', element.contentBegin - 1);
    return element;
}

/// Longer ones hold so many attributes that reading them takes for ever.
constexpr qsizetype longestTag = 65536;
constexpr std::size_t mostElements = 500'000;
constexpr std::size_t deepest = 256;

bool hasEndlessTag(const QString& text) {
    qsizetype end = 0;
    for (qsizetype begin = text.indexOf(u'<'); begin >= 0; begin = text.indexOf(u'<', end)) {
        end = text.indexOf(u'>', begin);
        if (end < 0 || end - begin > longestTag)
            return true;
    }
    return false;
}

bool isWellFormed(const QString& text) {
    QXmlStreamReader reader(text);
    while (!reader.atEnd())
        reader.readNext();
    return !reader.hasError();
}

} // namespace

XmlPart::XmlPart(const QByteArray& bytes, const QString& name, int depth) : name_(name) {
    hasMark_ = QStringConverter::encodingForData(bytes).has_value();
    encoding_ = QStringConverter::encodingForData(bytes, u'<').value_or(QStringConverter::Utf8);
    QStringDecoder decoder(encoding_);
    text_ = decoder.decode(bytes);
    if (decoder.hasError() || hasEndlessTag(text_))
        throw WorkbookError::damaged(name_);
    parse(depth);
}

void XmlPart::parse(int depth) {
    QXmlStreamReader reader(text_);
    std::vector<int> open; // places in elements_; -1 for those too deep
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::DTD)
            throw WorkbookError::damaged(name_);
        if (open.size() > deepest || elements_.size() > mostElements)
            throw WorkbookError::tooLarge(name_);
        if (token == QXmlStreamReader::StartElement) {
            const bool isListed = static_cast<int>(open.size()) < depth;
            if (isListed) {
                elements_.push_back(elementAt(reader, text_));
                elements_.back().parent = open.empty() ? -1 : open.back();
            }
            open.push_back(isListed ? static_cast<int>(elements_.size()) - 1 : -1);
        } else if (token == QXmlStreamReader::EndElement) {
            if (open.back() >= 0) {
                XmlElement& element = elements_[static_cast<std::size_t>(open.back())];
                element.end = reader.characterOffset();
                element.contentEnd = element.end == element.contentBegin
                                         ? element.end
                                         : text_.lastIndexOf(u'<', element.end - 1);
            }
            open.pop_back();
        }
    }
    if (reader.hasError() || elements_.empty())
        throw WorkbookError::damaged(name_);
}

QList<const XmlElement*> XmlPart::children(const XmlElement& parent, const char* name) const {
    const auto index = static_cast<int>(&parent - elements_.data());
    QList<const XmlElement*> found;
    for (const XmlElement& element : elements_)
        if (element.parent == index && (name == nullptr || (element.name == QLatin1String(name) &&
                                                            element.space == parent.space)))
            found += &element;
    return found;
}

const XmlElement* XmlPart::child(const XmlElement& parent, const char* name) const {
    const auto found = children(parent, name);
    return found.isEmpty() ? nullptr : found.first();
}

QString XmlPart::source(const XmlElement& element) const {
    return text_.mid(element.begin, element.end - element.begin);
}

QString XmlPart::content(const XmlElement& element) const {
    return text_.mid(element.contentBegin, element.contentEnd - element.contentBegin);
}

void XmlPart::append(const XmlElement& parent, const QString& markup) {
    if (!parent.isEmptyTag())
        return edits_.push_back({parent.contentEnd, 0, markup});
    const QString tag = parent.prefix + parent.name;
    edits_.push_back({parent.end - 2, 2, QStringLiteral(">%1</%2>").arg(markup, tag)});
}

void XmlPart::insertAfter(const XmlElement& element, const QString& markup) {
    edits_.push_back({element.end, 0, markup});
}

void XmlPart::insertFirst(const XmlElement& parent, const QString& markup) {
    if (parent.isEmptyTag())
        return append(parent, markup);
    edits_.push_back({parent.contentBegin, 0, markup});
}

void XmlPart::replaceContent(const XmlElement& element, const QString& text) {
    edits_.push_back({element.contentBegin, element.contentEnd - element.contentBegin, text});
}

void XmlPart::changeAttribute(const XmlElement& element, const char* name, const QString& value) {
    const auto match =
        matchAttribute(text_.mid(element.begin, element.contentBegin - element.begin), name);
    if (!match.hasMatch())
        return;
    const int group = valueGroup(match);
    edits_.push_back({element.begin + match.capturedStart(group), match.capturedLength(group),
                      value.toHtmlEscaped()});
}

QByteArray XmlPart::bytes() const {
    std::vector<Edit> edits = edits_;
    std::stable_sort(edits.begin(), edits.end(),
                     [](const Edit& a, const Edit& b) { return a.at < b.at; });
    QString edited;
    qsizetype done = 0;
    for (const Edit& edit : edits) {
        edited += QStringView(text_).mid(done, edit.at - done);
        edited += edit.text;
        done = edit.at + edit.length;
    }
    edited += QStringView(text_).mid(done);
    if (!isWellFormed(edited))
        throw WorkbookError::damaged(name_);
    QStringEncoder encoder(encoding_, hasMark_ ? QStringConverter::Flag::WriteBom
                                               : QStringConverter::Flag::Default);
    return encoder.encode(edited);
}

QString withPrefix(QString markup, const QString& prefix) {
    static const QRegularExpression tag(QStringLiteral("<(/?)(?=[A-Za-z])"));
    return prefix.isEmpty() ? markup : markup.replace(tag, QStringLiteral("<\\1") + prefix);
}

QString withAttribute(const QString& markup, const char* name, const QString& value) {
    const auto match = matchAttribute(markup.left(markup.indexOf(u'>')), name);
    if (!match.hasMatch())
        return markup;
    const int group = valueGroup(match);
    QString changed = markup;
    return changed.replace(match.capturedStart(group), match.capturedLength(group), value);
}
