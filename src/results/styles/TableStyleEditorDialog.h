// SPDX-License-Identifier: GPL-3.0-or-later
// Edits a file of a table style.
#pragma once

#include "results/styles/TableStyleData.h"

#include <QDialog>

class QListWidgetItem;

class TableStyleEditorDialog : public QDialog {
    Q_OBJECT

public:
    /// An empty path begins a new style.
    explicit TableStyleEditorDialog(const QString& path, QWidget* parent = nullptr);

signals:
    void styleSaved(const QString& filePath);

private slots:
    void onSectionChanged(QListWidgetItem* current, QListWidgetItem* previous);
    void onSave();
    void onSaveAs();

private:
    QString path_;
};
