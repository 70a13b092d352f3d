// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/workbook/WorkbookAppender.h"

#include "results/workbook/PackageRelations.h"
#include "results/workbook/SheetRestyling.h"
#include "results/workbook/StyleMerge.h"
#include "results/workbook/WorkbookError.h"

#include <QDir>
#include <QFile>
#include <QSet>

#include <algorithm>
#include <optional>

namespace {

constexpr uint maxSheetId = 65534;

const QString titles = QStringLiteral("docProps/app.xml");
const QString sheetContent =
    QStringLiteral("application/vnd.openxmlformats-officedocument.spreadsheetml.worksheet+xml");
const QString stylesContent =
    QStringLiteral("application/vnd.openxmlformats-officedocument.spreadsheetml.styles+xml");

/// The parts of the sheets that Workbook wrote.
QStringList ourSheets(qsizetype count) {
    QStringList parts;
    for (qsizetype number = 1; number <= count; ++number)
        parts += QStringLiteral("xl/worksheets/sheet%1.xml").arg(number);
    return parts;
}

void writeRestyled(const ZipPackage& ours, const QString& sheet, const QString& path,
                   const QList<int>& formats, const std::function<bool()>& goOn) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        throw WorkbookError::notWritten(file.errorString());
    SheetRestyling restyling(formats);
    ours.readInPieces(sheet, [&](QByteArrayView piece) {
        if (!goOn())
            throw WritingCancelled();
        const QByteArray text = restyling.take(piece);
        if (file.write(text) != text.size())
            throw WorkbookError::cutOff();
    });
    if (!file.flush())
        throw WorkbookError::cutOff();
}

/// What file managers show of the workbook. Other ways to keep the list than the usual one are left
/// alone: no program relies on it.
struct TitleLists {
    static constexpr int depth = 5;

    static std::optional<TitleLists> find(const XmlPart& facts) {
        const auto inner = [&facts](const XmlElement* element, qsizetype index) {
            return element != nullptr ? facts.children(*element).value(index) : nullptr;
        };
        const XmlElement* const list = inner(facts.child(facts.root(), "TitlesOfParts"), 0);
        const XmlElement* const pairs = inner(facts.child(facts.root(), "HeadingPairs"), 0);
        const XmlElement* const count = inner(inner(pairs, 1), 0);
        if (list == nullptr || count == nullptr)
            return {};
        const XmlElement* const last = inner(list, facts.content(*count).toLongLong() - 1);
        return last != nullptr ? std::optional(TitleLists{*count, *list, *last}) : std::nullopt;
    }

    void append(XmlPart& facts, const QStringList& names) const {
        const auto raised = [&](const QString& number) {
            return QString::number(number.toLongLong() + names.size());
        };
        QString added;
        for (const QString& name : names)
            added += QStringLiteral("<%1lpstr>%2</%1lpstr>").arg(list.prefix, name.toHtmlEscaped());
        facts.replaceContent(count, raised(facts.content(count)));
        facts.changeAttribute(list, "size", raised(list.attribute("size")));
        facts.insertAfter(last, added);
    }

    const XmlElement& count; ///< of the sheets
    const XmlElement& list;  ///< titles of the sheets, then those of other parts
    const XmlElement& last;  ///< title of a sheet
};

/// The prefix of the namespace of relations where it is declared for the whole part, else one that
/// the element declares itself.
struct RelationPrefix {
    explicit RelationPrefix(const XmlPart& book) {
        for (const auto& declared : book.root().declarations)
            if (declared.namespaceUri() == relationTypes && !declared.prefix().isEmpty())
                name = declared.prefix().toString();
        if (name.isEmpty()) {
            name = QStringLiteral("r");
            declaration = QStringLiteral(" xmlns:r=\"%1\"").arg(relationTypes);
        }
    }
    QString name;
    QString declaration;
};

} // namespace

WorkbookAppender::WorkbookAppender(const QString& path)
    : path_(path), package_(path), book_(workbookPart(package_)),
      styles_(targetOf(part(relationsOf(book_)), QStringLiteral("styles"), book_)) {}

XmlPart WorkbookAppender::part(const QString& name, int depth) const {
    return {package_.read(name, maxPartSize), name, depth};
}

QStringList WorkbookAppender::sheetNames() const {
    const XmlPart book = part(book_);
    QStringList names;
    for (const XmlElement* sheet : book.children(*book.child(book.root(), "sheets"), "sheet"))
        names += sheet->attribute("name");
    return names;
}

void WorkbookAppender::append(const QString& newBook, const QStringList& names, const QDir& folder,
                              const std::function<bool()>& goOn) {
    const ZipPackage ours(newBook);
    const auto before = package_.checksums();
    QList<qint64> cells;
    for (const QString& sheet : ourSheets(names.size()))
        cells += countCells(ours, sheet, goOn);
    const bool hadStyles = !styles_.isEmpty();
    const QList<int> formats = mergeStyles(ours);
    const QStringList parts = addParts(ours, names, folder, formats, goOn);
    declareParts(parts, !hadStyles);
    listSheets(names, relate(parts, !hadStyles));
    listTitles(names);
    package_.close(goOn);
    checkKept(before, parts, cells, goOn);
}

void WorkbookAppender::change(const QString& name, const XmlPart& part) {
    package_.replace(name, part.bytes());
    changed_ += name;
}

QList<int> WorkbookAppender::mergeStyles(const ZipPackage& ours) {
    const QByteArray our = ours.read(QStringLiteral("xl/styles.xml"), maxPartSize);
    if (styles_.isEmpty()) {
        const QString usual = folderOf(book_) + QStringLiteral("styles.xml");
        styles_ = package_.contains(usual) ? freePart(QStringLiteral("styles%1.xml"), {}) : usual;
        package_.replace(styles_, our);
        return StyleMerge(our, our).formats();
    }
    const StyleMerge merge(our, package_.read(styles_, maxPartSize));
    package_.replace(styles_, merge.merged());
    changed_ += styles_;
    return merge.formats();
}

QString WorkbookAppender::freePart(const QString& pattern, const QStringList& taken) const {
    for (int number = 1;; ++number) {
        QString candidate = folderOf(book_) + pattern.arg(number);
        if (!package_.contains(candidate) && !taken.contains(candidate))
            return candidate;
    }
}

QStringList WorkbookAppender::addParts(const ZipPackage& ours, const QStringList& names,
                                       const QDir& folder, const QList<int>& formats,
                                       const std::function<bool()>& goOn) {
    QStringList parts;
    for (const QString& sheet : ourSheets(names.size())) {
        const QString file = folder.filePath(QStringLiteral("added%1.xml").arg(parts.size()));
        writeRestyled(ours, sheet, file, formats, goOn);
        parts += freePart(QStringLiteral("worksheets/sheet%1.xml"), parts);
        package_.addFile(parts.last(), file);
    }
    return parts;
}

void WorkbookAppender::declareParts(const QStringList& parts, bool withStyles) {
    XmlPart types = part(contentTypes);
    const QString line = QStringLiteral("<Override PartName=\"/%1\" ContentType=\"%2\"/>");
    QString added;
    for (const QString& sheet : parts)
        added += line.arg(sheet.toHtmlEscaped(), sheetContent);
    if (withStyles)
        added += line.arg(styles_.toHtmlEscaped(), stylesContent);
    types.append(types.root(), withPrefix(added, types.root().prefix));
    change(contentTypes, types);
}

QStringList WorkbookAppender::relate(const QStringList& parts, bool withStyles) {
    XmlPart relations = part(relationsOf(book_));
    QSet<QString> taken;
    for (const XmlElement* relation : relations.children(relations.root()))
        taken += relation->attribute("Id");
    QStringList ids;
    for (int number = 1; ids.size() <= parts.size(); ++number)
        if (const QString id = QStringLiteral("rId%1").arg(number); !taken.contains(id))
            ids += id;
    const QString line = QStringLiteral("<Relationship Id=\"%1\" Type=\"%2/%3\" Target=\"%4\"/>");
    const auto relative = [this](const QString& part) {
        return part.mid(folderOf(book_).size()).toHtmlEscaped();
    };
    QString added;
    for (qsizetype i = 0; i < parts.size(); ++i)
        added += line.arg(ids[i], relationTypes, QStringLiteral("worksheet"), relative(parts[i]));
    if (withStyles)
        added += line.arg(ids.last(), relationTypes, QStringLiteral("styles"), relative(styles_));
    relations.append(relations.root(), withPrefix(added, relations.root().prefix));
    change(relationsOf(book_), relations);
    return ids;
}

void WorkbookAppender::listSheets(const QStringList& names, const QStringList& relations) {
    XmlPart book = part(book_);
    const XmlElement& sheets = *book.child(book.root(), "sheets");
    const RelationPrefix relation(book);
    uint lastId = 0;
    for (const XmlElement* sheet : book.children(sheets, "sheet"))
        lastId = std::max(lastId, sheet->attribute("sheetId").toUInt());
    if (lastId + names.size() > maxSheetId)
        throw WorkbookError::tooLarge(book_);
    QString added;
    for (qsizetype i = 0; i < names.size(); ++i)
        added += QStringLiteral("<%1sheet name=\"%2\" sheetId=\"%3\"%4 %5:id=\"%6\"/>")
                     .arg(sheets.prefix, names[i].toHtmlEscaped(), QString::number(++lastId),
                          relation.declaration, relation.name, relations[i]);
    book.append(sheets, added);
    change(book_, book);
}

void WorkbookAppender::listTitles(const QStringList& names) {
    if (!package_.contains(titles))
        return;
    XmlPart facts = part(titles, TitleLists::depth);
    if (const auto lists = TitleLists::find(facts)) {
        lists->append(facts, names);
        change(titles, facts);
    }
}

void WorkbookAppender::checkKept(const QHash<QString, quint32>& before, const QStringList& added,
                                 const QList<qint64>& cells,
                                 const std::function<bool()>& goOn) const {
    const ZipPackage written(path_);
    const auto now = written.checksums();
    for (auto part = before.cbegin(); part != before.cend(); ++part)
        if (!now.contains(part.key()) || (now.value(part.key()) != part.value() &&
                                          !changed_.contains(part.key(), Qt::CaseInsensitive)))
            throw WorkbookError::cutOff();
    for (qsizetype i = 0; i < added.size(); ++i)
        if (countCells(written, added[i], goOn) != cells[i])
            throw WorkbookError::cutOff();
}
