// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tour.h"
#include "app/MainWindow.h"
#include "app/Startup.h"
#include "app/messages/Messages.h"
#include "app/settings/KelSystem.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cstdio>
#include <span>
#include <stdexcept>
#include <string_view>

namespace {

/// A screen that has room for the largest window.
const QByteArray screen = R"({"screens": [{"name": "tour", "x": 0, "y": 0, "width": 1920,
    "height": 1080, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";

QByteArray offscreenPlatform(const QTemporaryDir& home) {
    QFile file(home.filePath(QStringLiteral("screen.json")));
    if (!file.open(QIODevice::WriteOnly) || file.write(screen) != screen.size())
        return "offscreen";
    return "offscreen:configfile=" + file.fileName().toUtf8();
}

/// The user's own settings stay out of it, and no screen is needed.
void separateFromUser(const QTemporaryDir& home) {
    qputenv("XDG_DATA_HOME", home.filePath(QStringLiteral("data")).toUtf8());
    qputenv("HOME", home.path().toUtf8());
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (platform == "offscreen" || (platform.isEmpty() && qEnvironmentVariableIsEmpty("DISPLAY")))
        qputenv("QT_QPA_PLATFORM", offscreenPlatform(home));
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

/// Nobody is there to answer: messages go to the standard error, and the step then fails.
Choice refuse(MessageKind /*kind*/, const QString& text) {
    std::fprintf(stderr, "%s\n", qPrintable(text));
    return Choice::No;
}

int takePictures(const QString& folder, const QString& dictionary) {
    if (!QDir().mkpath(folder))
        throw std::runtime_error("cannot make the folder " + folder.toStdString());
    answerMessages(refuse);
    KelSystem::instance().installTranslator(QStringLiteral("Process_en"));
    startEngine();
    MainWindow window;
    nameWindow(window);
    window.resize(1280, 800);
    window.show();
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window))
        throw std::runtime_error("the window does not become active; take the offscreen platform");
    Tour steps(window, folder);
    steps.run(dictionary);
    window.close();
    std::printf("%d pictures in %s\n", steps.pictures(), qPrintable(folder));
    return 0;
}

/// Leaves the window with a first table to the user.
int stay(const QString& dictionary) {
    startEngine();
    KelSystem& system = KelSystem::instance();
    system.installTranslator(system.language());
    MainWindow window;
    nameWindow(window);
    window.showMaximized();
    window.activateWindow();
    Tour(window, QString()).firstTable(dictionary);
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    static const QTemporaryDir home; // outlives what keeps files in it
    const std::span arguments(argv, static_cast<std::size_t>(argc));
    const bool staying = std::any_of(arguments.begin(), arguments.end(), [](const char* argument) {
        return std::string_view(argument) == "--stay";
    });
    if (!staying)
        separateFromUser(home);
    scaleWithScreen();
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    nameApplication();
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Drives the workbench through its main job and keeps pictures of it."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("folder"), QStringLiteral("where pictures go"));
    const QCommandLineOption dictionary(QStringLiteral("dictionary"),
                                        QStringLiteral("what to open instead of a new sample"),
                                        QStringLiteral("file"));
    const QCommandLineOption stayOption(
        QStringLiteral("stay"),
        QStringLiteral("take no pictures; leave the window with a first table"));
    parser.addOptions({dictionary, stayOption});
    parser.process(application);
    const QStringList folders = parser.positionalArguments();
    if (folders.size() != (staying ? 0 : 1))
        parser.showHelp(2);
    try {
        const QTemporaryDir sample;
        const QString file =
            parser.isSet(dictionary) ? parser.value(dictionary) : makeSample(sample.path());
        return staying ? stay(file) : takePictures(folders.first(), file);
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "kelvorax-tour: %s\n", fault.what());
        return 1;
    }
}
