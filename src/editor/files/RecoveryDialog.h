// SPDX-License-Identifier: GPL-3.0-or-later
// Offers the texts that an earlier run of the program left unsaved.
#pragma once

#include "editor/files/RecoveryStore.h"

#include <QDialog>

class QDialogButtonBox;
class QPushButton;
class QTreeWidget;

/// Rows that are ticked are restored or discarded; the others, and all after "Later", are offered
/// again at the next start.
class RecoveryDialog : public QDialog {
    Q_OBJECT

public:
    /// Shows nothing where there is nothing to offer. Gives what the user wants to open again:
    /// documents that are modified, to whose RecoveryWriter adopt() is to be told the id.
    static QList<RecoveryCopy> ask(RecoveryStore& store, QWidget* parent);

    RecoveryDialog(RecoveryStore& store, const QList<RecoveryCopy>& copies,
                   QWidget* parent = nullptr);
    QList<RecoveryCopy> chosen() const;

private:
    void setUpList(const QList<RecoveryCopy>& copies);
    QDialogButtonBox* makeButtons();
    void addRow(const RecoveryCopy& copy);
    void discardChosen();
    void enableButtons();
    void fitSize();

    RecoveryStore& store_;
    QList<RecoveryCopy> copies_; ///< as the rows
    QTreeWidget* list_;
    QPushButton* restore_ = nullptr;
    QPushButton* discard_ = nullptr;
};
