// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/workbook/PackageRelations.h"

#include "results/workbook/WorkbookError.h"
#include "results/workbook/XmlPart.h"
#include "results/workbook/ZipPackage.h"

#include <QDir>

#include <algorithm>

namespace {

const QString strictPrefix = QStringLiteral("http://purl.oclc.org/ooxml/");
const QString bookSpace =
    QStringLiteral("http://schemas.openxmlformats.org/spreadsheetml/2006/main");

/// A relation's target, from the part that has it.
QString resolved(const QString& target, const QString& part) {
    return QDir::cleanPath(u'/' + (target.startsWith(u'/') ? target : folderOf(part) + target))
        .mid(1);
}

bool hasRelation(const XmlPart& relations, const std::function<bool(const QString&)>& isSought) {
    const auto all = relations.children(relations.root(), "Relationship");
    return std::any_of(all.cbegin(), all.cend(), [&](const XmlElement* relation) {
        return isSought(relation->attribute("Type"));
    });
}

bool isStrict(const QString& address) {
    return address.startsWith(strictPrefix);
}

bool isSignature(const QString& type) {
    return type.endsWith(QLatin1String("/digital-signature/origin"));
}

void checkBook(const XmlPart& book) {
    const XmlElement& root = book.root();
    if (isStrict(root.space))
        throw WorkbookError::strict();
    if (root.name != QLatin1String("workbook") || root.space != bookSpace ||
        book.child(root, "sheets") == nullptr)
        throw WorkbookError::noWorkbook();
}

} // namespace

QString folderOf(const QString& part) {
    return part.left(part.lastIndexOf(u'/') + 1);
}

QString relationsOf(const QString& part) {
    return folderOf(part) + QStringLiteral("_rels/") + part.mid(folderOf(part).size()) +
           QStringLiteral(".rels");
}

QString targetOf(const XmlPart& relations, const QString& type, const QString& part) {
    for (const XmlElement* relation : relations.children(relations.root(), "Relationship"))
        if (relation->attribute("Type") == relationTypes + u'/' + type)
            return resolved(relation->attribute("Target"), part);
    return {};
}

QString workbookPart(const ZipPackage& package) {
    const QString name = QStringLiteral("_rels/.rels");
    if (!package.contains(name) || !package.contains(contentTypes))
        throw WorkbookError::noWorkbook();
    const XmlPart relations(package.read(name, maxPartSize), name);
    if (hasRelation(relations, isSignature))
        throw WorkbookError::isSigned();
    QString book = targetOf(relations, QStringLiteral("officeDocument"), {});
    if (book.isEmpty())
        throw hasRelation(relations, isStrict) ? WorkbookError::strict()
                                               : WorkbookError::noWorkbook();
    checkBook(XmlPart(package.read(book, maxPartSize), book, 2));
    return book;
}
