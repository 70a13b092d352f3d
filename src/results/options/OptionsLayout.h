// SPDX-License-Identifier: GPL-3.0-or-later
// What the dialogs of view options share: a group of controls over OK and Cancel.
#pragma once

class QDialog;
class QGroupBox;
class QString;

/// The group, with an empty column of controls.
QGroupBox* addOptionsGroup(QDialog& dialog, const QString& title);
