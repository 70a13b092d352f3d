// SPDX-License-Identifier: GPL-3.0-or-later
// The lists of recent files as the main window shows them.
#pragma once

#include <QStringList>

class KelSystem;
class MainWindow;

class MainController {
public:
    MainController(MainWindow& window, KelSystem& system) : window_(window), system_(system) {}

    QStringList recentProjects() const;
    QStringList recentDictionaries() const;
    void openRecentDictionary(int number) const;
    void openRecentProject(int number) const;

private:
    MainWindow& window_;
    KelSystem& system_;
};
