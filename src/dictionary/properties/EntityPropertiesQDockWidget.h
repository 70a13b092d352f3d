// SPDX-License-Identifier: GPL-3.0-or-later
// The dock in which the current entity is seen and edited.
// Label, tag and documentation are stored when their edit is left, the alias with Return.
#pragma once

#include "dictionary/properties/EntityDraft.h"
#include "dictionary/properties/PropertyDock.h"
#include "dictionary/views/Validate.h"

#include <memory>

class ElidedLabel;
class FactComboBox;
class QCheckBox;
class QFormLayout;
class QLineEdit;
class TKelVariable;
class TKpEntity;

class EntityPropertiesQDockWidget : public PropertyDock {
    Q_OBJECT

public:
    explicit EntityPropertiesQDockWidget(QWidget* parent = nullptr);

    /// Shows the entity and drops what was typed about another. Null empties the dock.
    void setEntity(const std::shared_ptr<TKpEntity>& root, TKpEntity* entity);
    /// The same entity, changed elsewhere or rebuilt: what was typed stays.
    void rebind(const std::shared_ptr<TKpEntity>& root, TKpEntity* entity);
    TKpEntity* entity() const { return entity_; }

    bool isModified() const; ///< something typed is not in the dictionary
    /// Stores what needs no question: label, tag and documentation.
    void storeTexts();
    /// Stores everything. False, after a message, where the alias breaks a rule.
    bool save();
    void discard();

signals:
    void entitychanged(bool value); ///< the dictionary was changed

private slots:
    void on_LabelTextChanged(const QString& text);
    void on_AliasTextChanged(const QString& text);
    void on_AliasReturnPressed();
    void on_TagTextChanged(const QString& text);
    void on_DocumentationTextChanged();

private:
    void makeEdits(QFormLayout* form);
    void makeVariables(QFormLayout* form);
    void makeFacts(QFormLayout* form);
    void connectEdits();
    void fill();
    void fillFacts();
    void fillVariables();
    bool storeAlias();
    void rejectAlias();

    std::shared_ptr<TKpEntity> root_; ///< keeps the entity alive
    TKpEntity* entity_ = nullptr;
    EntityDraft stored_; ///< as the dictionary has it
    EntityDraft pending_;
    NameVerdict aliasVerdict_;

    QLineEdit* label_;
    QLineEdit* alias_;
    QLineEdit* tag_;
    DocumentationEdit* documentation_;
    FactComboBox* codeVar_;
    FactComboBox* labelVar_;
    FactComboBox* weightVar_;
    FactComboBox* cmpCodeVar_;
    FactComboBox* sdcVar_;
    ElidedLabel* codeSize_;
    QLabel* total_;
    ElidedLabel* file_;
    QCheckBox* selectable_;
    QCheckBox* virtual_;
    QCheckBox* onDisk_;
    QCheckBox* sensitive_;
};
