// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/EntityPropertiesQDockWidget.h"

#include "TKelVariable.h"
#include "app/widgets/ElidedLabel.h"
#include "app/widgets/ReadOnlyCheckBox.h"
#include "dictionary/mirror/DictionaryEdit.h"
#include "dictionary/mirror/DictionaryUtil.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/properties/DocumentationEdit.h"
#include "dictionary/properties/FactComboBox.h"
#include "dictionary/properties/NameEdit.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QVBoxLayout>

#include <utility>

namespace {

template <class Widget>
Widget* named(const char* objectName) {
    auto* widget = new Widget;
    widget->setObjectName(QLatin1String(objectName));
    return widget;
}

/// An empty field would look as if it were to be filled.
QString told(const QString& text) {
    return text.isEmpty() ? QStringLiteral("-") : text;
}

QString nameOf(const TKelVariable* variable) {
    return variable != nullptr ? QString::fromStdString(variable->name()) : QString();
}

} // namespace

EntityPropertiesQDockWidget::EntityPropertiesQDockWidget(QWidget* parent)
    : PropertyDock(QT_TR_NOOP("Entity Properties"), parent) {
    QFormLayout* edits = makeForm();
    QFormLayout* variables = makeForm();
    QFormLayout* facts = makeForm();
    makeEdits(edits);
    makeVariables(variables);
    makeFacts(facts);
    QVBoxLayout* page = addPage(QT_TR_NOOP("General"));
    page->addLayout(edits);
    page->addWidget(makeGroup(QT_TR_NOOP("Variables"), variables));
    page->addWidget(makeGroup(QT_TR_NOOP("Data"), facts));
    page->addStretch(1);
    documentation_ =
        addDocumentationPage(QT_TR_NOOP("Documentation"), QStringLiteral("teDocumentation"));
    connectEdits();
    retranslate();
    setEntity(nullptr, nullptr);
}

void EntityPropertiesQDockWidget::makeEdits(QFormLayout* form) {
    label_ = named<QLineEdit>("leLabel");
    alias_ = named<QLineEdit>("leAlias");
    tag_ = named<QLineEdit>("leTag");
    NameEdit::acceptNames(alias_);
    NameEdit::acceptDigits(tag_);
    addRow(form, QT_TR_NOOP("Label:"), label_, nullptr);
    addRow(form, QT_TR_NOOP("Alias:"), alias_,
           QT_TR_NOOP("Another name of the entity; Return stores it"));
    addRow(form, QT_TR_NOOP("Tag:"), tag_, QT_TR_NOOP("A number of yours, 9999 at most"));
}

void EntityPropertiesQDockWidget::makeVariables(QFormLayout* form) {
    codeVar_ = named<FactComboBox>("cbxCodeVar");
    codeSize_ = named<ElidedLabel>("lbGeoCodeValue");
    labelVar_ = named<FactComboBox>("cbxLabelVar");
    weightVar_ = named<FactComboBox>("cbxWeightVar");
    cmpCodeVar_ = named<FactComboBox>("cbxCmpcodeVar");
    sdcVar_ = named<FactComboBox>("cbxSdcVar");
    addRow(form, QT_TR_NOOP("Code:"), codeVar_, QT_TR_NOOP("The variable that holds the code"));
    addRow(form, QT_TR_NOOP("Code size:"), codeSize_,
           QT_TR_NOOP("One zero for each character of the code"));
    addRow(form, QT_TR_NOOP("Label:"), labelVar_, QT_TR_NOOP("The variable that holds the label"));
    addRow(form, QT_TR_NOOP("Weight:"), weightVar_,
           QT_TR_NOOP("The variable that weights tables by itself"));
    addRow(form, QT_TR_NOOP("Compound:"), cmpCodeVar_,
           QT_TR_NOOP("The codes from the top of the hierarchy down, joined"));
    addRow(form, QT_TR_NOOP("Disclosure:"), sdcVar_,
           QT_TR_NOOP("The variable that controls disclosure"));
}

void EntityPropertiesQDockWidget::makeFacts(QFormLayout* form) {
    total_ = named<QLabel>("lbTotalValue");
    total_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    file_ = named<ElidedLabel>("lbPointerValue");
    selectable_ = named<ReadOnlyCheckBox>("cbSelectable");
    virtual_ = named<ReadOnlyCheckBox>("cbVirtual");
    onDisk_ = named<ReadOnlyCheckBox>("cbOnDisk");
    sensitive_ = named<ReadOnlyCheckBox>("cbSensitive");
    addRow(form, QT_TR_NOOP("Elements:"), total_, QT_TR_NOOP("Number of records"));
    addRow(form, QT_TR_NOOP("File:"), file_, nullptr);
    caption(onDisk_, QT_TR_NOOP("Found on disk"), nullptr);
    caption(selectable_, QT_TR_NOOP("Selectable"),
            QT_TR_NOOP("May be used in selections and area lists"));
    caption(virtual_, QT_TR_NOOP("Virtual"), nullptr);
    caption(sensitive_, QT_TR_NOOP("SensitiveEntity"), nullptr);
    for (QCheckBox* box : {onDisk_, selectable_, virtual_, sensitive_})
        form->addRow(box);
}

void EntityPropertiesQDockWidget::connectEdits() {
    using Self = EntityPropertiesQDockWidget;
    connect(label_, &QLineEdit::textChanged, this, &Self::on_LabelTextChanged);
    connect(label_, &QLineEdit::editingFinished, this, &Self::storeTexts);
    connect(alias_, &QLineEdit::textChanged, this, &Self::on_AliasTextChanged);
    connect(alias_, &QLineEdit::returnPressed, this, &Self::on_AliasReturnPressed);
    connect(tag_, &QLineEdit::textChanged, this, &Self::on_TagTextChanged);
    connect(tag_, &QLineEdit::editingFinished, this, &Self::storeTexts);
    connect(documentation_, &QPlainTextEdit::textChanged, this, &Self::on_DocumentationTextChanged);
    connect(documentation_, &DocumentationEdit::editingFinished, this, &Self::storeTexts);
}

void EntityPropertiesQDockWidget::setEntity(const std::shared_ptr<TKpEntity>& root,
                                            TKpEntity* entity) {
    root_ = root;
    entity_ = entity;
    stored_ = entity != nullptr ? EntityDraft::of(*entity) : EntityDraft();
    pending_ = stored_;
    fill();
}

void EntityPropertiesQDockWidget::rebind(const std::shared_ptr<TKpEntity>& root,
                                         TKpEntity* entity) {
    root_ = root;
    entity_ = entity;
    const EntityDraft now = EntityDraft::of(*entity);
    pending_.rebase(stored_, now);
    stored_ = now;
    fill();
    on_AliasTextChanged(pending_.alias);
}

void EntityPropertiesQDockWidget::fill() {
    NameEdit::show(label_, pending_.label);
    NameEdit::show(alias_, pending_.alias);
    NameEdit::show(tag_, pending_.tag);
    if (documentation_->toPlainText() != pending_.documentation) {
        const QSignalBlocker blocker(documentation_);
        documentation_->setPlainText(pending_.documentation);
    }
    aliasVerdict_ = {};
    tabs_->setEnabled(entity_ != nullptr);
    setSubject(entity_ != nullptr ? entity_->name : QString());
    fillFacts();
}

void EntityPropertiesQDockWidget::fillVariables() {
    for (FactComboBox* combo : {codeVar_, labelVar_, weightVar_, cmpCodeVar_, sdcVar_})
        combo->clear();
    codeSize_->clear();
    if (entity_ == nullptr)
        return;
    codeVar_->showOnly(told(entity_->refCode));
    labelVar_->showOnly(told(entity_->refLabel));
    weightVar_->showOnly(told(entity_->weightVar));
    cmpCodeVar_->showOnly(told(nameOf(entity_->cmpCodeVar())));
    sdcVar_->showOnly(told(nameOf(entity_->sdcVar())));
    codeSize_->setText(told(QString(DictionaryUtil().codeSize(*entity_), QLatin1Char('0'))));
}

void EntityPropertiesQDockWidget::fillFacts() {
    const TKpEntity nothing(nullptr);
    const TKpEntity& entity = entity_ != nullptr ? *entity_ : nothing;
    fillVariables();
    total_->setText(entity_ != nullptr ? QLocale().toString(entity.instanceCount) : QString());
    file_->setFullText(entity.fullPath);
    selectable_->setChecked(entity.selectable);
    virtual_->setChecked(entity.isVirtual);
    onDisk_->setChecked(entity.fileExists);
    sensitive_->setChecked(entity.sensitive);
}

bool EntityPropertiesQDockWidget::isModified() const {
    return entity_ != nullptr && pending_ != stored_;
}

void EntityPropertiesQDockWidget::storeTexts() {
    EntityDraft texts = pending_;
    texts.alias = stored_.alias;
    if (entity_ == nullptr || texts == stored_)
        return;
    texts.applyTo(*entity_);
    stored_ = texts;
    // The dictionary may hold less than was typed.
    stored_.tag = EntityDraft::of(*entity_).tag;
    pending_.tag = stored_.tag;
    NameEdit::show(tag_, pending_.tag);
    emit entitychanged(true);
}

bool EntityPropertiesQDockWidget::save() {
    storeTexts();
    return entity_ == nullptr || storeAlias();
}

void EntityPropertiesQDockWidget::discard() {
    setEntity(root_, entity_);
}

bool EntityPropertiesQDockWidget::storeAlias() {
    if (pending_.alias == stored_.alias)
        return true;
    if (!aliasVerdict_.isFine()) {
        rejectAlias();
        return false;
    }
    DictionaryEdit::setAlias(*entity_, pending_.alias);
    stored_.alias = pending_.alias;
    setSubject(entity_->name);
    emit entitychanged(true);
    return true;
}

/// What was in force before stays the entity's; the edit's signals rest while the box takes the
/// focus, so that it raises no second one.
void EntityPropertiesQDockWidget::rejectAlias() {
    const NameVerdict verdict = std::exchange(aliasVerdict_, {});
    pending_.alias = stored_.alias;
    const QSignalBlocker blocker(alias_);
    Validate::showMessage(verdict.code, verdict.name);
    NameEdit::clear(alias_, stored_.alias);
}

void EntityPropertiesQDockWidget::on_LabelTextChanged(const QString& text) {
    pending_.label = text;
}

void EntityPropertiesQDockWidget::on_AliasTextChanged(const QString& text) {
    alias_->setPlaceholderText({});
    pending_.alias = text;
    aliasVerdict_ = entity_ != nullptr && text != stored_.alias
                        ? Validate::checkAlias(root_.get(), *entity_, text)
                        : NameVerdict();
}

void EntityPropertiesQDockWidget::on_AliasReturnPressed() {
    if (entity_ != nullptr)
        storeAlias();
}

void EntityPropertiesQDockWidget::on_TagTextChanged(const QString& text) {
    pending_.tag = text;
}

void EntityPropertiesQDockWidget::on_DocumentationTextChanged() {
    pending_.documentation = documentation_->toPlainText();
}
