// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/views/VariableCellDelegate.h"

#include "dictionary/views/VariableDiccionaryModel.h"

#include <QLineEdit>
#include <QRegularExpressionValidator>

QWidget* VariableCellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                            const QModelIndex& index) const {
    auto* editor = new QLineEdit(parent);
    editor->setFrame(false);
    editor->setAutoFillBackground(true);
    editor->setAccessibleName(index.model()->headerData(index.column(), Qt::Horizontal).toString());
    if (index.column() == VariableDiccionaryModel::TagColumn)
        editor->setValidator(new QRegularExpressionValidator(
            QRegularExpression(QStringLiteral("-?[0-9]{0,9}")), editor));
    return editor;
}
