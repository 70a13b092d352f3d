// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/CategoryEdits.h"

#include <QHash>
#include <QStringList>

namespace {

constexpr qsizetype longestPast = 100;

bool isEmpty(const ValueLabelElement& element) {
    return element.value.isEmpty() && element.label.isEmpty();
}

QString oneLine(QString text) {
    for (const char breaking : {'\t', '\r', '\n'})
        text.replace(QLatin1Char(breaking), QLatin1Char(' '));
    return text.trimmed();
}

} // namespace

QList<Categories::Fault> Categories::faults(const List& list) {
    QHash<QString, int> uses;
    for (const ValueLabelElement& element : list)
        ++uses[element.value.trimmed()];
    QList<Fault> result;
    result.reserve(list.size());
    for (const ValueLabelElement& element : list) {
        const QString code = element.value.trimmed();
        if (code.isEmpty())
            result.append(element.label.isEmpty() ? Fault::None : Fault::NoCode);
        else
            result.append(uses.value(code) > 1 ? Fault::DuplicateCode : Fault::None);
    }
    return result;
}

Categories::List Categories::withoutEmptyRows(const List& list) {
    List result = list;
    result.removeIf(isEmpty);
    return result;
}

QString Categories::toText(const List& list) {
    QString text;
    for (const ValueLabelElement& element : list)
        text += oneLine(element.value) + '\t' + oneLine(element.label) + QLatin1String("\r\n");
    return text;
}

Categories::List Categories::fromText(const QString& text, int* ignored) {
    List result;
    int others = 0;
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        const QStringList parts = line.split(QLatin1Char('\t'));
        if (parts.size() == 2)
            result.append({parts[0].trimmed(), parts[1].trimmed()});
        else if (!line.trimmed().isEmpty())
            ++others;
    }
    if (ignored != nullptr)
        *ignored = others;
    return result;
}

void CategoryEdits::reset(const Categories::List& list) {
    list_ = list;
    past_.clear();
}

void CategoryEdits::remember() {
    if (past_.size() == longestPast)
        past_.removeFirst();
    past_.append(list_);
}

void CategoryEdits::append(const Categories::List& added) {
    if (added.isEmpty())
        return;
    remember();
    list_ += added;
}

void CategoryEdits::remove(qsizetype row) {
    remember();
    list_.removeAt(row);
}

void CategoryEdits::clear() {
    if (list_.isEmpty())
        return;
    remember();
    list_.clear();
}

void CategoryEdits::setCode(qsizetype row, const QString& code) {
    const QString trimmed = code.trimmed();
    if (list_[row].value == trimmed)
        return;
    remember();
    list_[row].value = trimmed;
}

void CategoryEdits::setLabel(qsizetype row, const QString& label) {
    if (list_[row].label == label)
        return;
    remember();
    list_[row].label = label;
}

void CategoryEdits::undo() {
    if (!past_.isEmpty())
        list_ = past_.takeLast();
}
