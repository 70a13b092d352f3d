// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ribbon/RecentFiles.h"

#include <QAction>
#include <QDir>
#include <QFontMetrics>
#include <QMenu>

int addRecentFiles(QMenu& menu, const QString& title, const QStringList& paths,
                   const std::function<void(const QString& path)>& choose, int first) {
    if (paths.isEmpty())
        return first - 1;
    menu.setToolTipsVisible(true);
    menu.addSection(title);
    const int width = 60 * menu.fontMetrics().averageCharWidth();
    int number = first;
    for (const QString& path : paths) {
        QAction* action =
            menu.addAction(recentEntryText(path, number++, menu.fontMetrics(), width));
        action->setToolTip(QDir::toNativeSeparators(path));
        QObject::connect(action, &QAction::triggered, &menu, [choose, path] { choose(path); });
    }
    return number - 1;
}

QString recentEntryText(const QString& path, int number, const QFontMetrics& metrics, int width) {
    QString text = metrics.elidedText(QDir::toNativeSeparators(path), Qt::ElideMiddle, width);
    text.replace('&', QLatin1String("&&"));
    return number > 9 ? text : QStringLiteral("&%1  ").arg(number) + text;
}
