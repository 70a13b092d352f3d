// SPDX-License-Identifier: GPL-3.0-or-later
// The start sequence of the workbench, and nothing else.
#include "app/Logging.h"
#include "app/MainWindow.h"
#include "app/Startup.h"
#include "app/settings/KelSystem.h"
#include "preferences/QUpdater.h"
#include "preferences/SelectorLanguageDlg.h"

#include <QApplication>

namespace {

void settleLanguage(KelSystem& system) {
    if (system.firstUse()) {
        system.selectLanguage(&SelectorLanguageDlg::ask);
        system.setFirstUse(false);
    } else {
        system.installTranslator(system.language());
    }
}

} // namespace

int main(int argc, char** argv) {
    scaleWithScreen();
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    logMessage(QStringLiteral("Starting..."), false);
    nameApplication();
    logMessage(QStringLiteral("Engine Starting"), false);
    startEngine();
    logMessage(QStringLiteral("Loading the initial setup"), false);
    settleLanguage(KelSystem::instance());
    logMessage(QStringLiteral("Preparing the main screen"), false);
    MainWindow window;
    window.setWindowState(Qt::WindowMaximized);
    nameWindow(window);
    window.show();
    logMessage(QStringLiteral("Loading the main screen settings"), false);
    window.loadLastOpened();
    window.offerRecovered();
    logMessage(QStringLiteral("Checking for new updates"), false);
    QUpdater updater;
    updater.setBusyTest([&window] { return window.isBusy(); });
    updater.start();
    logMessage(QStringLiteral("Kelvora X is now running"), false);
    return QApplication::exec();
}
