// SPDX-License-Identifier: GPL-3.0-or-later
// All colour schemes that the program brings, loaded once for the process.
#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

class QSyntaxStyle;
class QWidget;

using SyntaxStyleList = QList<QPair<QString, QSyntaxStyle*>>;

/// "Default" first, then the files in their fixed order under the names that they give; one that
/// cannot be read is left out. The styles live as long as the process.
const SyntaxStyleList& syntaxStyles();
/// The style at the index, or the default one where there is none.
QSyntaxStyle* syntaxStyle(int index);
/// The same list from other files. The styles after the default one are the caller's.
SyntaxStyleList readSyntaxStyles(const QStringList& files);
/// Text, base and highlight colour of the style, in all groups of the widget's palette. Selected
/// text keeps the text colour. What the style lacks stays as it is.
void applyStyleColors(QWidget& widget, const QSyntaxStyle& style);
