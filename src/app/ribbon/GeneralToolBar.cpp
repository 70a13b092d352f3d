// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ribbon/GeneralToolBar.h"

#include "app/messages/Messages.h"
#include "app/ribbon/RibbonState.h"

#include <QCoreApplication>
#include <QDate>
#include <QDesktopServices>
#include <QLocale>

GeneralToolBar::GeneralToolBar(tt::TabToolbar& toolbar, const RibbonState& state)
    : RibbonPage(toolbar, "General"), language_(state.language),
      engineVersion_(state.engineVersion) {
    tt::Group& application = addGroup(tr("Application"));
    QAction* preferences = add(application, "preferences", tr("Preferences"),
                               tr("Language, looks and habits of the program"),
                               QKeySequence(Qt::CTRL | Qt::Key_Comma));
    QAction* help = add(application, "help", tr("Help"), tr("Open the help pages in the browser"),
                        QKeySequence(Qt::Key_F1));
    QAction* about = add(application, "about", tr("About"), tr("Versions of the program"));
    connect(preferences, &QAction::triggered, this, &GeneralToolBar::on_preferences);
    connect(help, &QAction::triggered, this, &GeneralToolBar::on_help);
    connect(about, &QAction::triggered, this, &GeneralToolBar::on_about);
}

QUrl GeneralToolBar::helpUrl(const QString& language) {
    const bool spanish = language == QLatin1String("Process_es");
    return {QStringLiteral("https://help.kelvorax.example/kdc/help/kelx/process/") +
            (spanish ? "esp/" : "eng/")};
}

QString GeneralToolBar::aboutText(const QString& application, const QString& version,
                                  const QString& engineVersion) {
    const QString built = QLocale().toString(QDate(2026, 4, 27), QStringLiteral("MMM dd yyyy"));
    return QStringLiteral("%1 1.2.1\n\n%1 %2, Commit: 67f53c7a%3 on %4")
        .arg(application, version, built, engineVersion);
}

void GeneralToolBar::on_about() {
    showInformation(aboutText(QCoreApplication::applicationName(),
                              QCoreApplication::applicationVersion(), engineVersion_));
}

void GeneralToolBar::on_help() {
    const QUrl url = helpUrl(language_);
    if (!QDesktopServices::openUrl(url))
        showWarning(
            tr("The help pages could not be opened. You find them at %1").arg(url.toString()));
}

void GeneralToolBar::on_preferences() {
    emit preferences();
}
