// SPDX-License-Identifier: GPL-3.0-or-later
// What the docks of properties share: tabs with forms, their captions, and the title.
// Captions are given as source texts, so that they follow the language.
#pragma once

#include "app/widgets/ClosableQDockedWidget.h"

#include <QList>

class DocumentationEdit;
class QAbstractButton;
class QFormLayout;
class QGroupBox;
class QLabel;
class QTabWidget;
class QVBoxLayout;

class PropertyDock : public ClosableQDockedWidget {
    Q_OBJECT

protected:
    /// title: source text in the class of the dock, as all captions below.
    PropertyDock(const char* title, QWidget* parent);

    /// What the title names after its own words; empty for nothing.
    void setSubject(const QString& subject);
    /// A new tab that scrolls where it is higher than the dock.
    QVBoxLayout* addPage(const char* title);
    DocumentationEdit* addDocumentationPage(const char* title, const QString& objectName);
    QFormLayout* makeForm() const;
    QGroupBox* makeGroup(const char* title, QLayout* layout);
    /// The caption is the buddy of the field; the tool tip may be null.
    void addRow(QFormLayout* form, const char* caption, QWidget* field, const char* toolTip);
    /// A button or check box says its own caption.
    void caption(QAbstractButton* button, const char* text, const char* toolTip);

    QTabWidget* tabs_;
    QVBoxLayout* outer_; ///< tabs, and below them what belongs to all

    virtual void retranslate();
    void changeEvent(QEvent* event) override;

private:
    struct Caption {
        QWidget* widget;
        const char* text; ///< null for none
        const char* toolTip;
    };
    QString translated(const char* source) const;
    void retranslate(const Caption& caption) const;

    const char* title_;
    QString subject_;
    QList<const char*> pageTitles_;
    QList<Caption> captions_;
};
