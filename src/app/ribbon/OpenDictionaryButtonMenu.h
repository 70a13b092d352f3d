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

signals:
    void openDictionary();
    void recentDictionary(const QString& path);

private:
    QAction* open_;
};
