// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/workbook/StyleMerge.h"

#include "results/workbook/WorkbookError.h"

#include <algorithm>
#include <array>

namespace {

constexpr qsizetype maxFormats = 64000;
const QString partName = QStringLiteral("styles.xml");

/// The lists of a styles part stand in this order.
constexpr std::array sections{"numFmts", "fonts", "fills", "borders", "cellStyleXfs", "cellXfs"};

} // namespace

int StyleMerge::Section::indexOf(const QString& item) {
    const qsizetype found = items.indexOf(item);
    if (found >= 0)
        return static_cast<int>(found);
    if (items.size() >= maxFormats)
        throw WorkbookError::tooLarge(partName);
    items += item;
    return static_cast<int>(items.size()) - 1;
}

StyleMerge::StyleMerge(const QByteArray& ours, const QByteArray& theirs)
    : ours_(ours, partName), theirs_(theirs, partName), numbers_(section("numFmts", 0)),
      fonts_(section("fonts", 1)), fills_(section("fills", 2)), borders_(section("borders", 1)),
      cells_(section("cellXfs", 1)) {
    if (numbers_.element != nullptr)
        for (const XmlElement* number : theirs_.children(*numbers_.element)) {
            numberFormats_.insert(number->attribute("formatCode"), number->attribute("numFmtId"));
            lastNumberFormat_ = std::max(lastNumberFormat_, number->attribute("numFmtId").toInt());
        }
    const auto formats = ours_.children(*ours_.child(ours_.root(), "cellXfs"));
    formats_ += 0; // cells without a format have that of the workbook
    for (qsizetype i = 1; i < formats.size(); ++i)
        formats_ += cells_.indexOf(cellFormat(*formats[i]));
    for (const Section* changed : {&numbers_, &fonts_, &fills_, &borders_, &cells_})
        write(*changed);
    merged_ = theirs_.bytes();
}

/// A list that theirs lacks starts with the first items of ours, which every program counts on.
StyleMerge::Section StyleMerge::section(const char* name, int startWith) const {
    Section section{name, theirs_.child(theirs_.root(), name), {}, 0};
    if (section.element != nullptr)
        for (const XmlElement* item : theirs_.children(*section.element))
            section.items += theirs_.source(*item);
    section.before = section.items.size();
    for (int i = 0; section.items.isEmpty() && i < startWith; ++i)
        section.items += ourItem(name, i);
    return section;
}

QString StyleMerge::ourItem(const char* section, int index) const {
    const auto items = ours_.children(*ours_.child(ours_.root(), section));
    return withPrefix(ours_.source(*items.at(index)), theirs_.root().prefix);
}

QString StyleMerge::numberFormat(const QString& ourId) {
    const XmlElement* const list = ours_.child(ours_.root(), "numFmts");
    const auto known = list != nullptr ? ours_.children(*list) : QList<const XmlElement*>();
    for (const XmlElement* number : known) {
        if (number->attribute("numFmtId") != ourId)
            continue;
        const QString code = number->attribute("formatCode");
        if (const auto theirs = numberFormats_.constFind(code); theirs != numberFormats_.cend())
            return *theirs;
        QString id = QString::number(++lastNumberFormat_);
        numberFormats_.insert(code, id);
        numbers_.items +=
            withPrefix(withAttribute(ours_.source(*number), "numFmtId", id), theirs_.root().prefix);
        return id;
    }
    return ourId;
}

QString StyleMerge::cellFormat(const XmlElement& ours) {
    const auto item = [&](Section& section, const char* attribute) {
        return QString::number(
            section.indexOf(ourItem(section.name, ours.attribute(attribute).toInt())));
    };
    QString format = withPrefix(ours_.source(ours), theirs_.root().prefix);
    format = withAttribute(format, "numFmtId", numberFormat(ours.attribute("numFmtId")));
    format = withAttribute(format, "fontId", item(fonts_, "fontId"));
    format = withAttribute(format, "fillId", item(fills_, "fillId"));
    format = withAttribute(format, "borderId", item(borders_, "borderId"));
    if (theirs_.child(theirs_.root(), "cellStyleXfs") == nullptr)
        format.remove(QStringLiteral(" xfId=\"0\""));
    return format;
}

/// What theirs has last of the lists that stand before this one.
const XmlElement* StyleMerge::predecessor(const char* name) const {
    const XmlElement* last = nullptr;
    for (const char* const section : sections) {
        if (QLatin1String(section) == QLatin1String(name))
            break;
        if (const XmlElement* const element = theirs_.child(theirs_.root(), section))
            last = element;
    }
    return last;
}

void StyleMerge::write(const Section& section) {
    const QString added = section.items.mid(section.before).join(QString());
    const QString count = QString::number(section.items.size());
    if (added.isEmpty())
        return;
    if (section.element != nullptr) {
        theirs_.changeAttribute(*section.element, "count", count);
        return theirs_.append(*section.element, added);
    }
    const QString tag = theirs_.root().prefix + QLatin1String(section.name);
    const QString list = QStringLiteral("<%1 count=\"%2\">%3</%1>").arg(tag, count, added);
    if (const XmlElement* const before = predecessor(section.name))
        theirs_.insertAfter(*before, list);
    else
        theirs_.insertFirst(theirs_.root(), list);
}
