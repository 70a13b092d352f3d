// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tour.h"
#include "app/MainWindow.h"
#include "app/dialogs/Messages.h"
#include "engine/TKelConfigImpl.h"
#include "engine/UIInvoker.h"
#include "kel.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QIcon>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>
#include <stdexcept>

namespace {

/// The user's own settings stay out of it, and no screen is needed.
void separateFromUser(const QTemporaryDir& home) {
    qputenv("XDG_DATA_HOME", home.filePath(QStringLiteral("data")).toUtf8());
    qputenv("HOME", home.path().toUtf8());
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

QString makeSample(const QString& folder) {
    const QString tool = QCoreApplication::applicationDirPath() + QStringLiteral("/kelx");
    if (QProcess::execute(tool, {QStringLiteral("sample"), folder, QStringLiteral("--persons"),
                                 QStringLiteral("20000")}) != 0)
        throw std::runtime_error("kelx made no sample; name a dictionary with --dictionary");
    const QStringList found = QDir(folder).entryList({QStringLiteral("*.kxdb")});
    if (found.isEmpty())
        throw std::runtime_error("the sample holds no dictionary");
    return QDir(folder).filePath(found.first());
}

void startWorkbench() {
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setApplicationName(QStringLiteral("KelXProcess"));
    QApplication::setApplicationVersion(QStringLiteral("67f53c7a"));
    QApplication::setWindowIcon(
        QIcon(QStringLiteral(":/icons/res/icons/190px_KelProcessIcon.png")));
    UIInvoker::instance();
    kel::init(std::make_shared<TKelConfigImpl>());
    kel::setupLocale("en");
}

void nameWindow(MainWindow& window) {
    window.setWindowTitle(QApplication::applicationName() + ' ' +
                          QApplication::applicationVersion());
}

/// Nobody is there to answer: messages go to the standard error, and the step then fails.
bool refuse(MessageKind /*kind*/, const QString& text) {
    std::fprintf(stderr, "%s\n", qPrintable(text));
    return false;
}

int takePictures(const QString& folder, const QString& dictionary) {
    if (!QDir().mkpath(folder))
        throw std::runtime_error("cannot make the folder " + folder.toStdString());
    answerMessages(refuse);
    MainWindow window;
    nameWindow(window);
    window.resize(1280, 760);
    window.show();
    window.activateWindow();
    Tour steps(window, folder);
    steps.run(dictionary);
    window.close();
    std::printf("%d pictures in %s\n", steps.pictures(), qPrintable(folder));
    return 0;
}

/// Leaves the window with a first table to the user.
int stay(const QString& dictionary) {
    MainWindow window;
    nameWindow(window);
    window.showMaximized();
    window.activateWindow();
    Tour(window, QString()).firstTable(dictionary);
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    const QTemporaryDir home;
    separateFromUser(home);
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Drives the workbench through its main job and keeps pictures of it."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("folder"), QStringLiteral("where pictures go"));
    const QCommandLineOption dictionary(QStringLiteral("dictionary"),
                                        QStringLiteral("what to open instead of a new sample"),
                                        QStringLiteral("file"));
    const QCommandLineOption staying(
        QStringLiteral("stay"),
        QStringLiteral("take no pictures; leave the window with a first table"));
    parser.addOptions({dictionary, staying});
    parser.process(application);
    const QStringList folders = parser.positionalArguments();
    if (folders.size() != (parser.isSet(staying) ? 0 : 1))
        parser.showHelp(2);
    try {
        const QTemporaryDir sample;
        const QString file =
            parser.isSet(dictionary) ? parser.value(dictionary) : makeSample(sample.path());
        startWorkbench();
        return parser.isSet(staying) ? stay(file) : takePictures(folders.first(), file);
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "kelvorax-tour: %s\n", fault.what());
        return 1;
    }
}
