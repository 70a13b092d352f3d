// SPDX-License-Identifier: GPL-3.0-or-later
// An XML part of a workbook in which a few places change. All other text stays as it is, with the
// namespaces and extensions of whoever wrote it.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringConverter>
#include <QXmlStreamAttributes>

#include <vector>

struct XmlElement {
    QString name;   ///< without the prefix
    QString prefix; ///< with its colon; empty where there is none
    QString space;  ///< the namespace's address
    QXmlStreamAttributes attributes;
    QXmlStreamNamespaceDeclarations declarations; ///< of this very element
    int parent = -1;
    // Places in the text of the part.
    qsizetype begin = 0;
    qsizetype contentBegin = 0;
    qsizetype contentEnd = 0;
    qsizetype end = 0;

    bool isEmptyTag() const { return contentBegin == end; } ///< "<name/>"
    QString attribute(const char* name) const {
        return attributes.value(QLatin1String(name)).toString();
    }
};

/// Throws WorkbookError where it is no XML, or names entities of its own.
class XmlPart {
public:
    /// Elements deeper than that are not listed; the root is at 1.
    XmlPart(const QByteArray& bytes, const QString& name, int depth = 3);

    const XmlElement& root() const { return elements_.front(); }
    QList<const XmlElement*> children(const XmlElement& parent, const char* name = nullptr) const;
    /// The first of that name; null where there is none.
    const XmlElement* child(const XmlElement& parent, const char* name) const;
    QString source(const XmlElement& element) const;  ///< as it stands in the part
    QString content(const XmlElement& element) const; ///< what stands between its tags

    // Changes; the elements still tell of the part as it was. Each place changes once.
    void append(const XmlElement& parent, const QString& markup); ///< behind its other content
    void insertAfter(const XmlElement& element, const QString& markup);
    void insertFirst(const XmlElement& parent, const QString& markup);
    void replaceContent(const XmlElement& element, const QString& text);
    /// Where the element has the attribute.
    void changeAttribute(const XmlElement& element, const char* name, const QString& value);

    /// The part with its changes, in its own encoding.
    QByteArray bytes() const;

private:
    struct Edit {
        qsizetype at;
        qsizetype length;
        QString text;
    };

    void parse(int depth);

    QString name_;
    QString text_;
    QStringConverter::Encoding encoding_ = QStringConverter::Utf8;
    bool hasMark_ = false; ///< of the byte order
    std::vector<XmlElement> elements_;
    std::vector<Edit> edits_;
};

/// The tags of a piece of markup without prefixes, with this one.
QString withPrefix(QString markup, const QString& prefix);
/// The first tag's attribute with another value.
QString withAttribute(const QString& markup, const char* name, const QString& value);
