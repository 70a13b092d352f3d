// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramFixture.h"

#include "dictionary/mirror/MirrorBuilder.h"
#include "dictionary/mirror/TKpEntity.h"
#include "editor/text/Editor.h"
#include "engine/TKelConfigImpl.h"
#include "kel.h"
#include "projects/TfrmProject.h"
#include "support/OwnSettings.h"
#include "support/SmallDatabase.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QScopedValueRollback>
#include <QTabWidget>
#include <QTest>

RecordingShell::RecordingShell() : area(new QMdiArea(&main)) {
    main.setCentralWidget(area);
    main.resize(1100, 700);
}

void RecordingShell::showStatus(const QString& text, bool) {
    statuses += text;
}

QMdiSubWindow* RecordingShell::addWindow(QWidget* content) {
    QMdiSubWindow* frame = area->addSubWindow(content);
    frame->setAttribute(Qt::WA_DeleteOnClose);
    frame->showMaximized();
    return frame;
}

QStringList RecordingShell::showResults(const std::vector<TKelOutput*>& made,
                                        const std::shared_ptr<TKelSession>&,
                                        const QString& programText) {
    outputs = static_cast<int>(made.size());
    programs += programText;
    return {};
}

ProgramFixture::ProgramFixture() {
    const QString own = takeOwnSettings();
    if (!KelSystem::instance().filePath().startsWith(own + '/'))
        qFatal("the settings were read before the test had its own");
    kel::init(std::make_shared<TKelConfigImpl>());
    kel::setupLocale("en");
    writeSmallDatabase(folder());
    answerMessages([this](MessageKind kind, const QString& text) {
        messages += text;
        if (closing_)
            return Choice::No;
        return kind == MessageKind::Question && !answers.isEmpty() ? answers.takeFirst()
                                                                   : Choice::Cancel;
    });
    openDictionary();
}

ProgramFixture::~ProgramFixture() {
    closeWindows();
    answerMessages({});
    closeDictionary();
    kel::destroy();
}

void ProgramFixture::openDictionary(const QString& name) {
    TfrmProject& project = TfrmProject::instance();
    const QString file = path(name);
    project.beginOpening(file, DictionaryKind::Kxdb);
    project.stageDictionary(kel::readDictionary(file.toStdString(), nullptr, true));
    project.adoptStagedDictionary();
    project.setRoot(buildMirror(*project.dictionary()));
}

void ProgramFixture::closeDictionary() {
    TfrmProject::instance().close();
}

QString ProgramFixture::write(const QString& name, const QByteArray& text) const {
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("cannot write %s", qPrintable(name));
    return file.fileName();
}

QByteArray ProgramFixture::read(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void ProgramFixture::place(ProcessProgramSPC& window) {
    shell.main.show();
    shell.addWindow(&window);
    shell.main.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&shell.main));
    window.currentEditor()->setFocus();
    QTRY_VERIFY(window.currentEditor()->hasFocus());
}

void ProgramFixture::closeWindows() {
    const QScopedValueRollback<bool> closing(closing_, true);
    shell.area->closeAllSubWindows();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!shell.hasWindows());
}

QStringList ProgramFixture::recoveryTexts() {
    QDir folder(QFileInfo(KelSystem::instance().filePath()).dir().filePath("recovery"));
    QStringList texts;
    for (const QString& name : folder.entryList({"*.json"}, QDir::Files))
        texts += QString::fromUtf8(read(folder.filePath(name)));
    return texts;
}

void ProgramFixture::type(Editor& editor, const QString& text) {
    for (const QChar letter : text)
        if (letter == QLatin1Char('\n'))
            QTest::keyClick(&editor, Qt::Key_Return);
        else
            QTest::keyClick(&editor, letter.toLatin1());
}

QAction* ProgramFixture::action(const ProcessProgramSPC& window, const char* name) {
    return window.findChild<QAction*>(QLatin1String(name));
}

QListWidget& ProgramFixture::errors(const ProcessProgramSPC& window) {
    return *window.findChild<QListWidget*>(QStringLiteral("errorListWidget"));
}

QStringList ProgramFixture::rows(const ProcessProgramSPC& window) {
    QStringList texts;
    for (int row = 0; row < errors(window).count(); ++row)
        texts += errors(window).item(row)->text();
    return texts;
}

void ProgramFixture::clickRow(const ProcessProgramSPC& window, int row) {
    QListWidget& list = errors(window);
    list.scrollToItem(list.item(row));
    const QRect place = list.visualItemRect(list.item(row));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place.center());
}

QTabWidget& ProgramFixture::tabs(const ProcessProgramSPC& window) {
    return *window.findChild<QTabWidget*>(QStringLiteral("tabbedEditor"));
}
