// SPDX-License-Identifier: GPL-3.0-or-later
// Asks how a result table is to be laid out, in the dialog that suits it.
#pragma once

class QWidget;
class TableBase;

/// Rebuilds the table as the user wishes; leaves it alone where the dialog is cancelled.
void askViewOptions(TableBase& table, QWidget* parent);
