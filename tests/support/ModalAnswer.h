// SPDX-License-Identifier: GPL-3.0-or-later
// Answers the next modal dialog as a user would.
#pragma once

#include <QDialog>

#include <functional>

/// Calls act with the next modal dialog that appears; it must end the dialog.
void answerNextDialog(std::function<void(QDialog&)> act);
