// SPDX-License-Identifier: GPL-3.0-or-later
// The two docks of the dictionary window, by the names under which the shell finds them.
#pragma once

#include <QSize>
#include <QString>

class QDockWidget;

QString dictionaryDockName(); ///< "Dictionary"
QString variablesDockName();  ///< "Variables"

/// The dock of the entities, as wide as it was when it was closed. Its title follows the language.
QDockWidget* makeDictionaryDock(int width);
/// The dock of the variables, at least as large as it was.
QDockWidget* makeVariablesDock(QSize size);
