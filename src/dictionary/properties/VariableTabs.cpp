// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/VariableTabs.h"

#include "app/widgets/ElidedLabel.h"
#include "dictionary/mirror/TKpVariable.h"
#include "dictionary/properties/DocumentationEdit.h"
#include "dictionary/properties/NameEdit.h"
#include "dictionary/properties/VariableDetails.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QSpinBox>

#include <limits>

namespace {

QSpinBox* makeNumber(const char* objectName, int value) {
    auto* box = new QSpinBox;
    box->setObjectName(QLatin1String(objectName));
    box->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    box->setValue(value);
    box->setReadOnly(true);
    box->setFrame(false);
    box->setButtonSymbols(QAbstractSpinBox::NoButtons);
    return box;
}

QLabel* makeText(const char* objectName, const QString& text) {
    auto* label = new ElidedLabel;
    label->setObjectName(QLatin1String(objectName));
    label->setFullText(text);
    return label;
}

} // namespace

GeneralVariablelTab::GeneralVariablelTab(VariableDraft& draft, QWidget* parent) : BaseTab(parent) {
    QLineEdit* alias = NameEdit::bound("leVarAlias", draft.alias);
    QLineEdit* group = NameEdit::bound("leVarGroup", draft.group);
    QLineEdit* tag = NameEdit::bound("leVarTag", draft.tag);
    NameEdit::acceptNames(alias);
    NameEdit::acceptNames(group);
    NameEdit::acceptDigits(tag);
    form_->addRow(tr("Label:"), NameEdit::bound("leVarLabel", draft.label));
    form_->addRow(tr("Alias:"), alias);
    form_->addRow(tr("Group:"), group);
    form_->addRow(tr("Tag:"), tag);
    auto* hidden = new QCheckBox(tr("Hidden"));
    hidden->setObjectName(QStringLiteral("cbHidden"));
    hidden->setChecked(draft.hidden);
    connect(hidden, &QCheckBox::toggled, this, [&draft](bool on) { draft.hidden = on; });
    form_->addRow(hidden);
}

TecnicalVariableTab::TecnicalVariableTab(const TKpVariable& variable, QWidget* parent)
    : BaseTab(parent) {
    auto* type = new QComboBox;
    type->setObjectName(QStringLiteral("comboBoxType"));
    type->addItems({QStringLiteral("INTEGER"), QStringLiteral("REAL"), QStringLiteral("STRING"),
                    QStringLiteral("BOOL")});
    type->setCurrentIndex(type->findText(variable.typeName == QLatin1String("BOOLEAN")
                                             ? QStringLiteral("BOOL")
                                             : variable.typeName));
    type->setEnabled(false);
    form_->addRow(tr("Type"), type);
    form_->addRow(tr("Size"), makeNumber("spinBoxSize", variable.size));
    form_->addRow(tr("Decimals"), makeNumber("spinBoxDecimals", variable.decimals));
    form_->addRow(tr("No applicable"), makeNumber("spinBoxNotAplica", variable.notApp));
    form_->addRow(tr("Missing value"), makeNumber("spinBoxMising", variable.missing));
}

DataSourceVariableTab::DataSourceVariableTab(const TKpVariable& variable, QWidget* parent)
    : BaseTab(parent), details_(new VariableDetails(variable)) {
    QSpinBox* position = makeNumber("spinBoxPosition", variable.position + 1);
    position->setToolTip(tr("The relative position should be from 1 to n, where n is the size"));
    form_->addRow(tr("Format"), makeText("lbFormat", tr("Kelvora native file format")));
    form_->addRow(tr("Identifier"), makeText("lbIdentifier", variable.fullName));
    form_->addRow(tr("Field"), makeText("lbField", variable.name));
    form_->addRow(tr("Relative position"), position);
    form_->addRow(tr("Size"), makeNumber("spinBoxSourceSize", variable.size));
    form_->addRow(details_);
}

QString DataSourceVariableTab::path() const {
    return details_->path();
}

DocumentationVariableTab::DocumentationVariableTab(QString& documentation, QWidget* parent)
    : BaseTab(parent) {
    auto* edit = new DocumentationEdit;
    edit->setObjectName(QStringLiteral("teVarDocumentation"));
    edit->setAccessibleName(title());
    edit->setPlainText(documentation);
    connect(edit, &QPlainTextEdit::textChanged, this,
            [edit, &documentation] { documentation = edit->toPlainText(); });
    form_->setRowWrapPolicy(QFormLayout::WrapAllRows);
    form_->addRow(edit);
}
