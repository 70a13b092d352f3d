// SPDX-License-Identifier: GPL-3.0-or-later
// The first run of the program, its own main() included, from the language question to the end.
#include "app/MainWindow.h"
#include "support/ModalAnswer.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QInputDialog>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

int kelvoraxMain(int argc, char** argv); // the program's main()

namespace {

QStringList logged;
QString firstPage;

void keepLine(QtMsgType, const QMessageLogContext&, const QString& text) {
    if (!text.contains("plugin does not support")) // the offscreen platform's own
        logged += text;
}

void chooseFrench(QDialog& dialog) {
    logged += "asks: " + dialog.windowTitle();
    const auto* list = dialog.findChild<QComboBox*>();
    for (int i = 0; i < list->count(); ++i)
        logged += "offers: " + list->itemText(i);
    qobject_cast<QInputDialog*>(&dialog)->setTextValue(QString::fromUtf8("Français"));
    dialog.accept();
}

/// Answers the question, and closes the window once it stands.
void drive() {
    answerNextDialog(chooseFrench);
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer] {
        if (!logged.contains("Kelvora X is now running"))
            return;
        timer->stop();
        firstPage = MainWindow::instance()->findChild<QTabWidget*>()->tabText(2).trimmed();
        MainWindow::instance()->close();
    });
    timer->start(10);
}

Q_COREAPP_STARTUP_FUNCTION(drive)

QString settingsPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           "/Ovantis/KelvoraX/KelProcess.json";
}

} // namespace

class TestFirstRun : public QObject {
    Q_OBJECT

private slots:
    void asksForTheLanguageAndLeavesSettings() {
        QFile::remove(settingsPath());
        qInstallMessageHandler(keepLine);
        QByteArray name = "kelvorax";
        char* arguments[] = {name.data(), nullptr};
        const int status = kelvoraxMain(1, arguments);
        qInstallMessageHandler(nullptr);
        QCOMPARE(status, 0);
        QCOMPARE(logged,
                 QStringList(
                     {"Starting...", "Engine Starting", "Loading the initial setup",
                      "asks: Language", "offers: English", "offers: Español", "offers: Português",
                      "offers: Français", "Preparing the main screen", "Defining the work Area",
                      "Getting the current Languague", "Initializing the MainController",
                      "Setup the toolbar", "Setup InfoProperties", "Setup the StatusBar",
                      "MainWindow processed successfully", "Loading the main screen settings",
                      "Checking for new updates", "Kelvora X is now running"}));
        QCOMPARE(firstPage, "FICHIER");
        QFile file(settingsPath());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QJsonObject settings =
            QJsonDocument::fromJson(file.readAll())["kelSystem"].toObject();
        QCOMPARE(settings["ftu"].toBool(true), false);
        QCOMPARE(settings["language"].toString(), "Process_fr");
    }
};

QTEST_APPLESS_MAIN(TestFirstRun)
#include "tst_firstrun.moc"
