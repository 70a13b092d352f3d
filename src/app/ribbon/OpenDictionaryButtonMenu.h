// SPDX-License-Identifier: GPL-3.0-or-later
// The menu of the button that opens dictionaries: a plain open, and the recent ones.
#pragma once

#include <QMenu>
#include <QStringList>

class OpenDictionaryButtonMenu : public QMenu {
    Q_OBJECT

public:
    OpenDictionaryButtonMenu(const QStringList& recent, QWidget* parent);

    /// The plain open, with its shortcut.
    QAction* openAction() const { return open_; }

    /// The text of a recent entry (from 1): its number as mnemonic up to 9, and the path with its
    /// middle left out where it is wider than that many pixels.
    static QString entryText(const QString& path, int number, const QFontMetrics& metrics,
                             int width);

signals:
    void openDictionary();
    void recentDictionary(const QString& path);

private:
    QAction* open_;
};
