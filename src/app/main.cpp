// SPDX-License-Identifier: GPL-3.0-or-later
// The start sequence of the workbench, and nothing else.
#include "app/Logging.h"
#include "app/MainWindow.h"
#include "app/settings/KelSystem.h"
#include "engine/TKelConfigImpl.h"
#include "engine/UIInvoker.h"
#include "kel.h"

#include <QApplication>
#include <QIcon>

namespace {

/// Before the application object exists; this toolkit scales anyway and calls the switch obsolete.
void scaleWithScreen() {
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    QT_WARNING_POP
}

void nameApplication() {
    QApplication::setWindowIcon(
        QIcon(QStringLiteral(":/icons/res/icons/190px_KelProcessIcon.png")));
    QApplication::setApplicationName(QStringLiteral("KelXProcess"));
    QApplication::setOrganizationName(QStringLiteral("Ovantis"));
    QApplication::setOrganizationDomain(QStringLiteral("ovantis.example"));
    QApplication::setApplicationVersion(QStringLiteral("67f53c7a"));
}

void startEngine() {
    UIInvoker::instance();
    kel::init(std::make_shared<TKelConfigImpl>());
    kel::setupLocale("en");
}

void settleLanguage(KelSystem& system) {
    if (system.firstUse()) {
        system.selectLanguage();
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
    window.setWindowTitle(QApplication::applicationName() + ' ' +
                          QApplication::applicationVersion());
    window.show();
    logMessage(QStringLiteral("Loading the main screen settings"), false);
    window.loadLastOpened();
    logMessage(QStringLiteral("Checking for new updates"), false);
    logMessage(QStringLiteral("Kelvora X is now running"), false);
    return QApplication::exec();
}
