// SPDX-License-Identifier: GPL-3.0-or-later
// The edits in which names and marks are typed.
#pragma once

class QLineEdit;
class QString;

namespace NameEdit {

/// A letter, then letters, digits and underscores; or nothing, which takes the name away.
void acceptNames(QLineEdit* edit);
void acceptDigits(QLineEdit* edit);
/// Empties the edit, which then shows in grey what stays in force.
void clear(QLineEdit* edit, const QString& inForce);
/// Sets the text where it is another, so that the cursor stays.
void show(QLineEdit* edit, const QString& text);

/// An edit that shows the text, which must outlive it, and writes back what is typed.
QLineEdit* bound(const char* objectName, QString& text);

} // namespace NameEdit
