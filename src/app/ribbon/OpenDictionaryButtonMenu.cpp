// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ribbon/OpenDictionaryButtonMenu.h"

#include "app/ribbon/RecentFiles.h"

OpenDictionaryButtonMenu::OpenDictionaryButtonMenu(const QStringList& recent, QWidget* parent)
    : QMenu(parent), open_(addAction(tr("&Open..."))) {
    setToolTipsVisible(true);
    open_->setObjectName(QStringLiteral("openDictionary"));
    open_->setShortcut(QKeySequence::Open);
    open_->setToolTip(tr("Choose a dictionary file"));
    connect(open_, &QAction::triggered, this, &OpenDictionaryButtonMenu::openDictionary);
    addRecentFiles(*this, tr("Recent dictionaries"), recent,
                   [this](const QString& path) { emit recentDictionary(path); });
}
