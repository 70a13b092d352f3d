// SPDX-License-Identifier: GPL-3.0-or-later
// Asks the user where one missing data file is, and walks through all of them.
#pragma once

#include "dictionary/loading/PathLocator.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

/// One missing file. Accepted with a file that fits the item, Skipped for No; Cancel, Escape and
/// the window's own button reject, which ends the whole walk.
class LocatePaths : public QDialog {
    Q_OBJECT

public:
    static constexpr int Skipped = 2;

    /// number counts from 1.
    LocatePaths(const PathLocator::Item& item, int number, int total, QWidget* parent = nullptr);

    QString newPath() const;
    void accept() override; ///< refuses, with a word, what does not fit

private slots:
    void onFindCliced();

private:
    QLineEdit* addFact(const QString& name, const QString& value);
    void addNewPath();
    void addButtons();
    bool isUsable(const QString& path) const;

    PathLocator::Item item_;
    QLineEdit* newPath_ = nullptr;
    QPushButton* relocate_ = nullptr;
};

/// Goes through the missing files of the tree, one dialog each, and says so where none is missing
/// in the end. True where a file name was changed. What was relocated before a Cancel stays.
bool locateMissing(QWidget* parent, TKelDictionary& dictionary, TKpEntity& root);
