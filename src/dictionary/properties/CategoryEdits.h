// SPDX-License-Identifier: GPL-3.0-or-later
// The categories of a variable while a user works on them: each change can be taken back.
#pragma once

#include "dictionary/mirror/ValueLabelElement.h"

#include <QList>
#include <QString>

/// Rules and texts of a list of categories.
namespace Categories {

using List = QList<ValueLabelElement>;

/// Why a category cannot be stored.
enum class Fault { None, NoCode, DuplicateCode };

/// One for each category. Of those with the same code all are faulty, since only one of them could
/// be kept. A row without code and label is no fault: it is left out.
QList<Fault> faults(const List& list);
List withoutEmptyRows(const List& list);

/// A line "code, tab, label" for each, both trimmed; line breaks and tabs in a label become blanks.
QString toText(const List& list);
/// The lines of exactly two parts; ignored gets the number of other lines that are not blank.
List fromText(const QString& text, int* ignored = nullptr);

} // namespace Categories

class CategoryEdits {
public:
    void reset(const Categories::List& list); ///< the past is forgotten
    const Categories::List& list() const { return list_; }

    void append(const Categories::List& added);
    void remove(qsizetype row);
    void clear();
    void setCode(qsizetype row, const QString& code); ///< trimmed
    void setLabel(qsizetype row, const QString& label);

    bool canUndo() const { return !past_.isEmpty(); }
    void undo(); ///< takes the last change back; nothing where there is none

private:
    void remember();

    Categories::List list_;
    QList<Categories::List> past_;
};
