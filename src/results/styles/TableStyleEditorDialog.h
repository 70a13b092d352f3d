// SPDX-License-Identifier: GPL-3.0-or-later
// Edits a file of a table style.
#pragma once

#include "results/styles/TableStyleData.h"

#include <QDialog>

class GeneralStylePage;
class OneVariableStylePage;
class QListWidget;
class QListWidgetItem;
class QStackedWidget;
class SeveralVariablesStylePage;

/// Closing it without saving asks where something was changed.
class TableStyleEditorDialog : public QDialog {
    Q_OBJECT

public:
    /// An empty path begins a new style. So does a file that cannot be read: it is not replaced
    /// unasked.
    explicit TableStyleEditorDialog(const QString& path, QWidget* parent = nullptr);

    TableStyleData edited() const; ///< as the controls stand

    void reject() override;

signals:
    void styleSaved(const QString& filePath);

private slots:
    void onSectionChanged(QListWidgetItem* current, QListWidgetItem* previous);
    void onSave();
    void onSaveAs();

private:
    void addSection(const QString& title, QWidget* page, const char* name);
    void makeSections();
    QWidget* makeButtons();
    void load(const QString& path);
    void addNote(const QString& text);
    void setFile(const QString& path);
    void write(const QString& path);

    QString path_; ///< empty where there is no file to write again
    TableStyleData saved_;
    QListWidget* sectionList_;
    QStackedWidget* pages_;
    GeneralStylePage* general_;
    OneVariableStylePage* oneVariable_;
    SeveralVariablesStylePage* severalVariables_;
};
