// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ribbon/OpenDictionaryButtonMenu.h"

#include <QDir>

OpenDictionaryButtonMenu::OpenDictionaryButtonMenu(const QStringList& recent, QWidget* parent)
    : QMenu(parent), open_(addAction(tr("&Open..."))) {
    setToolTipsVisible(true);
    open_->setObjectName(QStringLiteral("openDictionary"));
    open_->setShortcut(QKeySequence::Open);
    open_->setToolTip(tr("Choose a dictionary file"));
    connect(open_, &QAction::triggered, this, &OpenDictionaryButtonMenu::openDictionary);
    if (recent.isEmpty())
        return;
    addSection(tr("Recent dictionaries"));
    const int width = 60 * fontMetrics().averageCharWidth();
    int number = 0;
    for (const QString& path : recent) {
        QAction* action = addAction(entryText(path, ++number, fontMetrics(), width));
        action->setToolTip(QDir::toNativeSeparators(path));
        connect(action, &QAction::triggered, this, [this, path] { emit recentDictionary(path); });
    }
}

QString OpenDictionaryButtonMenu::entryText(const QString& path, int number,
                                            const QFontMetrics& metrics, int width) {
    QString text = metrics.elidedText(QDir::toNativeSeparators(path), Qt::ElideMiddle, width);
    text.replace('&', QLatin1String("&&"));
    return number > 9 ? text : QStringLiteral("&%1  ").arg(number) + text;
}
