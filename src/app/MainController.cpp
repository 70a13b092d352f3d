// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MainController.h"

#include "app/MainWindow.h"
#include "app/settings/KelSystem.h"

QStringList MainController::recentProjects() const {
    return system_.recentProjects();
}

QStringList MainController::recentDictionaries() const {
    return system_.recentDictionaries();
}

void MainController::openRecentDictionary(int number) const {
    const QString path = recentDictionaries().value(number);
    if (!path.isEmpty())
        window_.on_openRecentDictionary(path);
}

void MainController::openRecentProject(int number) const {
    const QString path = recentProjects().value(number);
    if (!path.isEmpty())
        window_.on_openRecentProject(path, false);
}
