// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MainWindow.h"

#include "app/Logging.h"
#include "app/MainActions.h"
#include "app/dialogs/KelvoraFileDialog.h"
#include "app/messages/Messages.h"
#include "app/settings/KelSystem.h"
#include "dictionary/DictionaryBrowser.h"
#include "dictionary/loading/DictionaryLoader.h"
#include "dictionary/mirror/TKpVariable.h"
#include "engine/ProgramRun.h"
#include "engine/UIInvoker.h"
#include "kel.h"
#include "projects/TfrmProject.h"
#include "results/FrequencyTable.h"
#include "results/FrequencyView.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QDockWidget>
#include <QFileInfo>
#include <QLabel>
#include <QProgressBar>
#include <QStatusBar>

namespace {

MainWindow* theWindow = nullptr;

/// The first names, and how many more there are.
QString shortList(const QStringList& names) {
    const qsizetype shown = 10;
    QString list = names.mid(0, shown).join('\n');
    if (names.size() > shown)
        list += '\n' + MainWindow::tr("and %1 more").arg(names.size() - shown);
    return list;
}

} // namespace

MainWindow::MainWindow(QWidget* parent) : QMainWindow(parent) {
    theWindow = this;
    setObjectName(QStringLiteral("MainWindow"));
    setWindowTitle(QStringLiteral("KelXProcess"));
    resize(1100, 700);
    logMessage(QStringLiteral("Defining the work Area"), true);
    setupWorkArea();
    logMessage(QStringLiteral("Getting the current Languague"), true);
    logMessage(QStringLiteral("Initializing the MainController"), true);
    connectLoader();
    logMessage(QStringLiteral("Setup the toolbar"), true);
    setupToolbar();
    logMessage(QStringLiteral("Setup InfoProperties"), true);
    setupResults();
    logMessage(QStringLiteral("Setup the StatusBar"), true);
    setupStatusBar();
    connectActions();
    retranslate();
    updateActions();
    logMessage(QStringLiteral("MainWindow processed successfully"), true);
}

MainWindow::~MainWindow() {
    theWindow = nullptr;
}

MainWindow* MainWindow::instance(QWidget* parent) {
    return theWindow != nullptr ? theWindow : new MainWindow(parent);
}

void MainWindow::setupWorkArea() {
    browser_ = new DictionaryBrowser(this);
    browser_->setContentsMargins(6, 6, 6, 6);
    setCentralWidget(browser_);
}

void MainWindow::setupToolbar() {
    actions_ = new MainActions(this);
    browser_->addVariableAction(actions_->frequency);
}

void MainWindow::setupResults() {
    resultDock_ = new QDockWidget(this);
    resultDock_->setObjectName(QStringLiteral("resultDock"));
    frequencyView_ = new FrequencyView;
    resultDock_->setWidget(frequencyView_);
    addDockWidget(Qt::RightDockWidgetArea, resultDock_);
    resizeDocks({resultDock_}, {64 * fontMetrics().averageCharWidth()}, Qt::Horizontal);
    resultDock_->hide();
    actions_->addViewAction(resultDock_->toggleViewAction());
}

void MainWindow::setupStatusBar() {
    dictionaryLabel_ = new QLabel;
    dictionaryLabel_->setObjectName(QStringLiteral("dictionaryLabel"));
    statusBar()->addPermanentWidget(dictionaryLabel_);
    progress_ = new QProgressBar;
    progress_->setObjectName(QStringLiteral("progress"));
    progress_->setTextVisible(false);
    progress_->setRange(0, 100);
    progress_->setFixedWidth(18 * fontMetrics().averageCharWidth());
    statusBar()->addPermanentWidget(progress_);
    progress_->hide();
}

void MainWindow::connectActions() {
    connect(actions_->open, &QAction::triggered, this, &MainWindow::chooseDictionary);
    connect(actions_->exit, &QAction::triggered, this, &MainWindow::close);
    connect(actions_->findVariable, &QAction::triggered, browser_, &DictionaryBrowser::focusFilter);
    connect(actions_->valueLabels, &QAction::toggled, browser_,
            &DictionaryBrowser::showValueLabels);
    connect(actions_->about, &QAction::triggered, this, &MainWindow::showAbout);
    connect(actions_->frequency, &QAction::triggered, this, [this] {
        if (const TKpVariable* variable = browser_->currentVariable())
            runFrequency(variable->fullName);
    });
    connect(browser_, &DictionaryBrowser::variableActivated, actions_->frequency,
            &QAction::trigger);
    connect(browser_, &DictionaryBrowser::currentVariableChanged, this, &MainWindow::updateActions);
}

void MainWindow::connectLoader() {
    loader_ = new DictionaryLoader(this);
    connect(loader_, &DictionaryLoader::aboutToReplace, this, &MainWindow::dropViews);
    connect(loader_, &DictionaryLoader::loaded, this, &MainWindow::showLoaded);
    connect(loader_, &DictionaryLoader::failed, this, &MainWindow::showLoadFailure);
    connect(loader_, &DictionaryLoader::validationFailed, this, &MainWindow::showLoadFailure);
    for (auto ended : {&DictionaryLoader::invalid, &DictionaryLoader::refused})
        connect(loader_, ended, this, [this] {
            showStatus(tr("Invalid Dictionary"), false);
            updateActions();
        });
}

void MainWindow::updateActions() {
    actions_->open->setEnabled(!isLoading());
    actions_->frequency->setEnabled(!isLoading() && browser_->currentVariable() != nullptr);
}

bool MainWindow::isLoading() const {
    return loader_->isRunning();
}

void MainWindow::showStatus(const QString& text, bool busy) {
    statusBar()->clearMessage();
    if (busy != busy_) {
        if (busy)
            QApplication::setOverrideCursor(Qt::WaitCursor);
        else
            QApplication::restoreOverrideCursor();
        busy_ = busy;
    }
    progress_->setRange(0, busy ? 0 : 100);
    progress_->setVisible(busy);
    statusBar()->showMessage(text, busy ? 0 : 2000);
}

void MainWindow::chooseDictionary() {
    const QString path =
        KelvoraFileDialog(QStringLiteral("DICTIONARY"), QString(), tr("Open Dictionary"))
            .openFile(tr("Dictionaries (*.kxdb *.dicx *.KXDB *.DICX)"));
    if (!path.isEmpty())
        openFile(path, QFileInfo(path).suffix());
}

void MainWindow::openFile(const QString& path, const QString& /*extension*/) {
    if (isLoading())
        return;
    askSaveDictionary();
    if (!loader_->start(path)) {
        showError(tr("Archivo no válido"));
        return;
    }
    showStatus(tr("Loading..."), true);
    updateActions();
}

void MainWindow::loadLastOpened() {
    const KelSystem& system = KelSystem::instance();
    const QFileInfo file(system.lastOpened());
    if (system.loadLast() && !system.lastOpened().isEmpty() && file.exists())
        openFile(QDir::toNativeSeparators(file.filePath()), file.suffix());
}

void MainWindow::dropViews() {
    frequencyView_->clear();
    resultDock_->hide();
    browser_->setRoot(nullptr);
}

void MainWindow::showLoaded(const QStringList& missing) {
    const TfrmProject& project = TfrmProject::instance();
    logMessage(QStringLiteral("Opening project: ") + project.dictionaryPath(), true);
    browser_->setRoot(project.root());
    const QFileInfo file(project.dictionaryPath());
    dictionaryLabel_->setText(file.fileName());
    dictionaryLabel_->setToolTip(QDir::toNativeSeparators(file.absoluteFilePath()));
    KelSystem::instance().setLastOpened(project.dictionaryPath());
    showStatus(tr("Dictionary Loaded"), false);
    updateActions();
    emit signalDictIsDirty(project.dictionary()->isDirty());
    if (!missing.isEmpty())
        showWarning(tr("Some variable and/or entity paths could not be found!") + "\n\n" +
                    shortList(missing));
}

void MainWindow::showLoadFailure(const QString& message) {
    showStatus(tr("The dictionary was not opened"), false);
    updateActions();
    showError(message);
}

void MainWindow::runFrequency(const QString& fullName) {
    TfrmProject& project = TfrmProject::instance();
    if (!project.isOpen() || isLoading())
        return;
    showStatus(tr("Running..."), true);
    statusBar()->repaint();
    const ProgramRun run = runProgram(project.dictionary(), QStringLiteral("FREQ ") + fullName);
    if (!run.succeeded) {
        showStatus(tr("The program has errors"), false);
        showError((run.messages + QStringList(run.failure)).join('\n'));
        return;
    }
    project.setRun(run.session, run.outputs);
    for (TKelOutput* output : run.outputs)
        if (const auto table = FrequencyTable::fromOutput(*output))
            frequencyView_->showTable(*table);
    resultDock_->show();
    resultDock_->raise();
    showStatus(tr("Finished in %1 s").arg(QString::number(run.seconds, 'f', 2)), false);
    if (!run.messages.isEmpty())
        showWarning(run.messages.join('\n'));
}

void MainWindow::showAbout() {
    showInformation(
        tr("Kelvora X, a workbench for census microdata.\n\nProgram version: %1\n"
           "Engine version: %2")
            .arg(QCoreApplication::applicationVersion(), QString::fromStdString(kel::version())));
}

void MainWindow::askSaveDictionary() {
    const TfrmProject& project = TfrmProject::instance();
    if (!project.isOpen() || !project.dictionary()->isDirty() ||
        !askYesNo(tr("Save Dictionary"), tr("Do you want to save the changes in the dictionary?")))
        return;
    try {
        kel::saveDictionary(project.dictionary(), project.dictionaryPath().toStdString());
        project.dictionary()->setDirty(false);
    } catch (const std::exception& fault) {
        showError(QString::fromStdString(fault.what()));
    }
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!engineEnded_ && !endLoading()) {
        event->ignore();
        QMetaObject::invokeMethod(this, "close", Qt::QueuedConnection);
        return;
    }
    showStatus(QString(), false);
    if (!engineEnded_)
        askSaveDictionary();
    QMainWindow::closeEvent(event);
    if (!engineEnded_) {
        engineEnded_ = true;
        dropViews();
        TfrmProject::instance().close();
        kel::destroy();
    }
    QCoreApplication::quit();
}

bool MainWindow::endLoading() {
    if (!isLoading())
        return true;
    UIInvoker::instance().refuseQuestions();
    if (UIInvoker::instance().isAsking())
        return false; // its dialog stands below this call and must end first
    setEnabled(false);
    loader_->finish();
    return true;
}

void MainWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange && actions_ != nullptr) {
        statusBar()->clearMessage();
        retranslate();
    }
    QMainWindow::changeEvent(event);
}

void MainWindow::retranslate() {
    actions_->retranslate();
    resultDock_->setWindowTitle(tr("Results"));
    progress_->setAccessibleName(tr("Progress"));
    dictionaryLabel_->setAccessibleName(tr("Open dictionary"));
}
