// SPDX-License-Identifier: GPL-3.0-or-later
// The dock in which the current variable is seen and edited.
// Alias and group are stored with Return, everything with Save.
#pragma once

#include "dictionary/properties/PropertyDock.h"
#include "dictionary/properties/VariableDraft.h"
#include "dictionary/views/Validate.h"

#include <memory>

class CategoryTable;
class ElidedLabel;
class QCheckBox;
class QFormLayout;
class QLineEdit;
class QPushButton;
class TKpEntity;
class TKpVariable;

class VariablePropertiesQDockWidget : public PropertyDock {
    Q_OBJECT

public:
    explicit VariablePropertiesQDockWidget(QWidget* parent = nullptr);

    /// Shows the variable and drops what was typed about another. Null empties the dock.
    void setVariable(const std::shared_ptr<TKpEntity>& root, TKpVariable* variable);
    /// The same variable, changed elsewhere or rebuilt: what was typed stays.
    void rebind(const std::shared_ptr<TKpEntity>& root, TKpVariable* variable);
    TKpVariable* variable() const { return variable_; }

    void commitEditor();     ///< takes what is being typed into the table
    bool isModified() const; ///< something typed is not in the dictionary
    /// Stores everything, or nothing: then false, after a message that says what to mend.
    bool save();
    void discard();

signals:
    void variablechanged(bool value); ///< the dictionary was changed

protected:
    void retranslate() override;

private slots:
    void on_VarLabelTextChanged(const QString& text);
    void on_VarAliasTextChanged(const QString& text);
    void on_VarGroupTextChanged(const QString& text);
    void on_VarTagTextChanged(const QString& text);
    void on_VarDocumentationTextChanged();
    void on_VarAliasReturnPressed();
    void on_VarGroupReturnPressed();
    void on_VarBtnSaveClicked();
    void on_VarBtnAddClicked();
    void on_VarBtnCopyClicked();
    void on_VarBtnPasteClicked();
    void on_VarBtnRemoveClicked();
    void on_VarBtnClearClicked();
    void on_VarBtnUndoClicked();
    void on_VarCategoryEdited();

private:
    /// An edit whose text must be a name, and what is wrong with the text in it.
    struct NameField {
        QLineEdit* edit = nullptr;
        QString VariableDraft::*text;
        Validate::Field rule;
        NameVerdict verdict = {};
    };

    void makeGeneralPage();
    void makeTechnicalPage();
    void makeSaveButton();
    void connectEdits();
    void connectCategories();
    void fill();
    void fillCategories();
    void fillFacts();
    void refreshSave();
    void check(NameField& field);
    bool accept(NameField& field); ///< false, after the message, where the text breaks a rule
    void storeName(NameField& field);

    std::shared_ptr<TKpEntity> root_; ///< keeps the variable alive
    TKpVariable* variable_ = nullptr;
    VariableDraft stored_; ///< as the dictionary has it
    VariableDraft pending_;

    QLineEdit* label_;
    NameField alias_;
    NameField group_;
    QLineEdit* tag_;
    QCheckBox* hidden_;
    CategoryTable* categories_;
    DocumentationEdit* documentation_;
    QPushButton* save_;
    QLabel* type_;
    QLabel* minimum_;
    QLabel* maximum_;
    QLabel* notApp_;
    QLabel* missing_;
    ElidedLabel* file_;
    QCheckBox* onDisk_;
};
