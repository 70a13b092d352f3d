// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/VariablePropertiesQDockWidget.h"

#include "app/messages/Messages.h"
#include "app/widgets/ElidedLabel.h"
#include "app/widgets/ReadOnlyCheckBox.h"
#include "dictionary/mirror/DictionaryEdit.h"
#include "dictionary/mirror/TKpVariable.h"
#include "dictionary/properties/CategoryTable.h"
#include "dictionary/properties/DocumentationEdit.h"
#include "dictionary/properties/NameEdit.h"
#include "dictionary/properties/TechnicalFacts.h"
#include "dictionary/properties/VarValueLabelDiccionaryModel.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QVBoxLayout>

#include <exception>
#include <utility>

namespace {

template <class Widget>
Widget* named(const char* objectName) {
    auto* widget = new Widget;
    widget->setObjectName(QLatin1String(objectName));
    return widget;
}

QLabel* makeFact(const char* objectName) {
    auto* label = named<QLabel>(objectName);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

/// What a button does may fail in the engine.
template <class Work>
void guarded(Work work) {
    try {
        work();
    } catch (const std::exception& fault) {
        showError(VariablePropertiesQDockWidget::tr("Error %1 sending event")
                      .arg(QString::fromStdString(fault.what())));
    }
}

} // namespace

VariablePropertiesQDockWidget::VariablePropertiesQDockWidget(QWidget* parent)
    : PropertyDock(QT_TR_NOOP("Variable Properties"), parent) {
    makeGeneralPage();
    makeTechnicalPage();
    documentation_ =
        addDocumentationPage(QT_TR_NOOP("Documentation"), QStringLiteral("teVarDocumentation"));
    makeSaveButton();
    connectEdits();
    connectCategories();
    retranslate();
    setVariable(nullptr, nullptr);
}

void VariablePropertiesQDockWidget::makeGeneralPage() {
    label_ = named<QLineEdit>("leVarLabel");
    alias_ = {named<QLineEdit>("leVarAlias"), &VariableDraft::alias, Validate::Field::Alias};
    group_ = {named<QLineEdit>("leVarGroup"), &VariableDraft::group, Validate::Field::Group};
    tag_ = named<QLineEdit>("leVarTag");
    hidden_ = named<QCheckBox>("cbHidden");
    NameEdit::acceptNames(alias_.edit);
    NameEdit::acceptNames(group_.edit);
    NameEdit::acceptDigits(tag_);
    QFormLayout* form = makeForm();
    addRow(form, QT_TR_NOOP("Label:"), label_, nullptr);
    addRow(form, QT_TR_NOOP("Alias:"), alias_.edit,
           QT_TR_NOOP("Another name of the variable; Return stores it"));
    addRow(form, QT_TR_NOOP("Group:"), group_.edit,
           QT_TR_NOOP("Variables of one group belong together; Return stores it"));
    addRow(form, QT_TR_NOOP("Tag:"), tag_, QT_TR_NOOP("A number of yours, 9999 at most"));
    caption(hidden_, QT_TR_NOOP("Hidden"), QT_TR_NOOP("Marks the variable as hidden in lists"));
    form->addRow(hidden_);
    QVBoxLayout* page = addPage(QT_TR_NOOP("General"));
    page->addLayout(form);
    categories_ = new CategoryTable;
    auto* categoriesLayout = new QVBoxLayout;
    categoriesLayout->addWidget(categories_);
    page->addWidget(makeGroup(QT_TR_NOOP("Variable Categories"), categoriesLayout), 1);
}

void VariablePropertiesQDockWidget::makeTechnicalPage() {
    type_ = makeFact("lbVarTypeValue");
    minimum_ = makeFact("lbVarMinValue");
    maximum_ = makeFact("lbVarMaxValue");
    notApp_ = makeFact("lbVarNotAppValue");
    missing_ = makeFact("lbVarMissingValue");
    file_ = named<ElidedLabel>("lbVarFileValue");
    onDisk_ = named<ReadOnlyCheckBox>("cbVarOnDisk");
    QFormLayout* range = makeForm();
    addRow(range, QT_TR_NOOP("Type"), type_, nullptr);
    addRow(range, QT_TR_NOOP("Min"), minimum_, nullptr);
    addRow(range, QT_TR_NOOP("Max"), maximum_, nullptr);
    addRow(range, QT_TR_NOOP("No applicable"), notApp_, nullptr);
    addRow(range, QT_TR_NOOP("Missing value"), missing_, nullptr);
    QFormLayout* file = makeForm();
    addRow(file, QT_TR_NOOP("File Name"), file_, nullptr);
    caption(onDisk_, QT_TR_NOOP("Found on Disk"), nullptr);
    file->addRow(onDisk_);
    QVBoxLayout* page = addPage(QT_TR_NOOP("Technical Spec."));
    page->addWidget(makeGroup(QT_TR_NOOP("Range"), range));
    page->addWidget(makeGroup(QT_TR_NOOP("Kelvora native file format"), file));
    page->addStretch(1);
}

/// Below the tabs: it saves what stands in any of them.
void VariablePropertiesQDockWidget::makeSaveButton() {
    save_ = named<QPushButton>("btnSave");
    save_->setAutoDefault(false);
    caption(save_, QT_TR_NOOP("Save"), QT_TR_NOOP("Save changes"));
    outer_->addWidget(save_, 0, Qt::AlignRight);
}

void VariablePropertiesQDockWidget::connectEdits() {
    using Self = VariablePropertiesQDockWidget;
    connect(label_, &QLineEdit::textChanged, this, &Self::on_VarLabelTextChanged);
    connect(alias_.edit, &QLineEdit::textChanged, this, &Self::on_VarAliasTextChanged);
    connect(alias_.edit, &QLineEdit::returnPressed, this, &Self::on_VarAliasReturnPressed);
    connect(group_.edit, &QLineEdit::textChanged, this, &Self::on_VarGroupTextChanged);
    connect(group_.edit, &QLineEdit::returnPressed, this, &Self::on_VarGroupReturnPressed);
    connect(tag_, &QLineEdit::textChanged, this, &Self::on_VarTagTextChanged);
    connect(documentation_, &QPlainTextEdit::textChanged, this,
            &Self::on_VarDocumentationTextChanged);
    connect(hidden_, &QCheckBox::toggled, this, [this](bool hidden) {
        pending_.hidden = hidden;
        refreshSave();
    });
    connect(label_, &QLineEdit::returnPressed, this, &Self::on_VarBtnSaveClicked);
    connect(tag_, &QLineEdit::returnPressed, this, &Self::on_VarBtnSaveClicked);
    connect(save_, &QPushButton::clicked, this, &Self::on_VarBtnSaveClicked);
}

void VariablePropertiesQDockWidget::connectCategories() {
    using Self = VariablePropertiesQDockWidget;
    const auto button = [this](QPushButton* pressed, void (Self::*slot)()) {
        connect(pressed, &QPushButton::clicked, this, slot);
    };
    button(categories_->addButton(), &Self::on_VarBtnAddClicked);
    button(categories_->copyButton(), &Self::on_VarBtnCopyClicked);
    button(categories_->pasteButton(), &Self::on_VarBtnPasteClicked);
    button(categories_->removeButton(), &Self::on_VarBtnRemoveClicked);
    button(categories_->clearButton(), &Self::on_VarBtnClearClicked);
    button(categories_->undoButton(), &Self::on_VarBtnUndoClicked);
    connect(categories_->model(), &VarValueLabelDiccionaryModel::changed, this,
            &Self::on_VarCategoryEdited);
}

void VariablePropertiesQDockWidget::setVariable(const std::shared_ptr<TKpEntity>& root,
                                                TKpVariable* variable) {
    root_ = root;
    variable_ = variable;
    stored_ = variable != nullptr ? VariableDraft::of(*variable) : VariableDraft();
    pending_ = stored_;
    // Also where the lists are equal: what was done to another variable's cannot be taken back
    // here.
    fillCategories();
    fill();
}

void VariablePropertiesQDockWidget::rebind(const std::shared_ptr<TKpEntity>& root,
                                           TKpVariable* variable) {
    root_ = root;
    variable_ = variable;
    const VariableDraft now = VariableDraft::of(*variable);
    pending_.rebase(stored_, now);
    stored_ = now;
    fill();
    check(alias_);
    check(group_);
}

void VariablePropertiesQDockWidget::fill() {
    NameEdit::show(label_, pending_.label);
    NameEdit::show(alias_.edit, pending_.alias);
    NameEdit::show(group_.edit, pending_.group);
    NameEdit::show(tag_, pending_.tag);
    alias_.verdict = group_.verdict = {};
    const QSignalBlocker hiddenBlocker(hidden_);
    hidden_->setChecked(pending_.hidden);
    if (documentation_->toPlainText() != pending_.documentation) {
        const QSignalBlocker blocker(documentation_);
        documentation_->setPlainText(pending_.documentation);
    }
    if (categories_->list() != pending_.categories)
        fillCategories();
    tabs_->setEnabled(variable_ != nullptr);
    setSubject(variable_ != nullptr ? variable_->fullName : QString());
    fillFacts();
    refreshSave();
}

void VariablePropertiesQDockWidget::fillCategories() {
    const bool numeric = variable_ != nullptr && variable_->typeName == QLatin1String("INTEGER");
    categories_->setList(pending_.categories, numeric);
}

void VariablePropertiesQDockWidget::fillFacts() {
    const TechnicalFacts facts =
        variable_ != nullptr ? TechnicalFacts::of(*variable_) : TechnicalFacts();
    type_->setText(facts.type);
    minimum_->setText(facts.minimum);
    maximum_->setText(facts.maximum);
    notApp_->setText(facts.notApp);
    missing_->setText(facts.missing);
    file_->setFullText(facts.file);
    onDisk_->setChecked(facts.fileExists);
}

void VariablePropertiesQDockWidget::commitEditor() {
    categories_->commitEditor();
}

bool VariablePropertiesQDockWidget::isModified() const {
    return variable_ != nullptr && pending_ != stored_;
}

void VariablePropertiesQDockWidget::refreshSave() {
    save_->setEnabled(isModified());
}

bool VariablePropertiesQDockWidget::save() {
    commitEditor();
    if (!isModified())
        return true;
    if (!accept(alias_) || !accept(group_))
        return false;
    if (pending_.categories != stored_.categories) {
        const QString fault = categories_->showFirstFault();
        if (!fault.isEmpty()) {
            showError(fault);
            return false;
        }
    }
    pending_.applyTo(*variable_);
    setVariable(root_, variable_);
    emit variablechanged(true);
    return true;
}

void VariablePropertiesQDockWidget::discard() {
    setVariable(root_, variable_);
}

void VariablePropertiesQDockWidget::check(NameField& field) {
    const QString& text = pending_.*field.text;
    field.verdict = variable_ != nullptr && text != stored_.*field.text
                        ? Validate::check(root_.get(), *variable_, field.rule, text)
                        : NameVerdict();
}

/// What was in force before stays the variable's. The edit's signals rest while the box takes the
/// focus, so that it raises no second one.
bool VariablePropertiesQDockWidget::accept(NameField& field) {
    if (field.verdict.isFine())
        return true;
    const NameVerdict verdict = std::exchange(field.verdict, {});
    pending_.*field.text = stored_.*field.text;
    const QSignalBlocker blocker(field.edit);
    Validate::showMessage(verdict.code, verdict.name);
    NameEdit::clear(field.edit, stored_.*field.text);
    refreshSave();
    return false;
}

void VariablePropertiesQDockWidget::storeName(NameField& field) {
    if (variable_ == nullptr || !accept(field) || pending_.*field.text == stored_.*field.text)
        return;
    VariableDraft named = stored_;
    named.*field.text = pending_.*field.text;
    named.applyTo(*variable_);
    stored_ = named;
    setSubject(variable_->fullName);
    refreshSave();
    emit variablechanged(true);
}

void VariablePropertiesQDockWidget::on_VarLabelTextChanged(const QString& text) {
    pending_.label = text;
    refreshSave();
}

void VariablePropertiesQDockWidget::on_VarAliasTextChanged(const QString& text) {
    alias_.edit->setPlaceholderText({});
    pending_.alias = text;
    check(alias_);
    refreshSave();
}

void VariablePropertiesQDockWidget::on_VarGroupTextChanged(const QString& text) {
    group_.edit->setPlaceholderText({});
    pending_.group = text;
    check(group_);
    refreshSave();
}

void VariablePropertiesQDockWidget::on_VarTagTextChanged(const QString& text) {
    pending_.tag = text;
    refreshSave();
}

void VariablePropertiesQDockWidget::on_VarDocumentationTextChanged() {
    pending_.documentation = documentation_->toPlainText();
    refreshSave();
}

void VariablePropertiesQDockWidget::on_VarAliasReturnPressed() {
    guarded([this] { storeName(alias_); });
}

void VariablePropertiesQDockWidget::on_VarGroupReturnPressed() {
    guarded([this] { storeName(group_); });
}

void VariablePropertiesQDockWidget::on_VarBtnSaveClicked() {
    guarded([this] { save(); });
}

void VariablePropertiesQDockWidget::on_VarBtnAddClicked() {
    guarded([this] { categories_->addRow(); });
}

void VariablePropertiesQDockWidget::on_VarBtnCopyClicked() {
    guarded([this] { categories_->copy(); });
}

void VariablePropertiesQDockWidget::on_VarBtnPasteClicked() {
    guarded([this] { categories_->paste(); });
}

void VariablePropertiesQDockWidget::on_VarBtnRemoveClicked() {
    guarded([this] { categories_->removeCurrent(); });
}

void VariablePropertiesQDockWidget::on_VarBtnClearClicked() {
    guarded([this] { categories_->clear(); });
}

void VariablePropertiesQDockWidget::on_VarBtnUndoClicked() {
    guarded([this] { categories_->undo(); });
}

void VariablePropertiesQDockWidget::on_VarCategoryEdited() {
    pending_.categories = categories_->list();
    refreshSave();
}

void VariablePropertiesQDockWidget::retranslate() {
    PropertyDock::retranslate();
    categories_->retranslate();
}
