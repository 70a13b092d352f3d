// SPDX-License-Identifier: GPL-3.0-or-later
// Keys for the texts of a form that carry no mark of their own.
#pragma once

#include <QString>

/// Marks the letter, of either case, as the mnemonic: where a word begins with it if one does. A
/// text that has one already, or lacks the letter, as a translation may, stays as it is.
QString withMnemonic(const QString& text, QChar letter);
