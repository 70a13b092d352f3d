// SPDX-License-Identifier: GPL-3.0-or-later
// The texts above a result, which the user can select and copy.
#pragma once

#include <QString>

class QLabel;

/// Plain text that wraps.
QLabel* makeResultNote(const QString& objectName);
/// The same, larger and bold.
QLabel* makeResultTitle(const QString& objectName);
