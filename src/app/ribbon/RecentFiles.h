// SPDX-License-Identifier: GPL-3.0-or-later
// Files as entries of a menu: numbered from 1, up to 9 by mnemonics, with the whole path as tool
// tip.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QFontMetrics;
class QMenu;

/// Adds a section with an entry for each file, and nothing where there are none. The numbers go on
/// from first; the last one used is given back.
int addRecentFiles(QMenu& menu, const QString& title, const QStringList& paths,
                   const std::function<void(const QString& path)>& choose, int first = 1);

/// The text of an entry, its middle left out where it is wider than that many pixels.
QString recentEntryText(const QString& path, int number, const QFontMetrics& metrics, int width);
