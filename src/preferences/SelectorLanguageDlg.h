// SPDX-License-Identifier: GPL-3.0-or-later
// Asks for the interface language, at a first start.
#pragma once

#include <QInputDialog>

class SelectorLanguageDlg : public QInputDialog {
    Q_OBJECT

public:
    using QInputDialog::QInputDialog;

    /// Process_en, Process_es, Process_pt or Process_fr; English where the user cancels.
    static QString ask();
};
