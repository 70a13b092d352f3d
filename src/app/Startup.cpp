// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Startup.h"

#include "app/MainWindow.h"
#include "engine/TKelConfigImpl.h"
#include "engine/UIInvoker.h"
#include "kel.h"

#include <QApplication>
#include <QIcon>

void scaleWithScreen() {
    // This toolkit scales anyway and calls the switch obsolete.
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

void nameWindow(MainWindow& window) {
    window.setWindowTitle(QApplication::applicationName() + ' ' +
                          QApplication::applicationVersion());
}
