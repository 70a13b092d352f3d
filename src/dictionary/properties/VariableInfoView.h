// SPDX-License-Identifier: GPL-3.0-or-later
// The page of the quick view about a variable.
#pragma once

#include "dictionary/properties/InfoView.h"
#include "dictionary/properties/VariableInfo.h"

class QTableView;
class VarValueLabelDiccionaryModel;

class VariableInfoView : public InfoView {
    Q_OBJECT

public:
    explicit VariableInfoView(QWidget* parent = nullptr);

    void setInfo(const VariableInfo& info);
    void retranslate();

private:
    QList<InfoLine> lines() const;

    VariableInfo info_;
    QLabel* properties_;
    QFormLayout* lines_;
    QLabel* categoriesCaption_;
    VarValueLabelDiccionaryModel* categories_;
    QTableView* table_;
    QLabel* documentationCaption_;
    QPlainTextEdit* documentation_;
};
