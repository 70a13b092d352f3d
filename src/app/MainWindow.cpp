// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MainWindow.h"

#include "app/FileOpener.h"
#include "app/Logging.h"
#include "app/ProgramWindows.h"
#include "app/RibbonHost.h"
#include "app/StartPage.h"
#include "app/WorkArea.h"
#include "app/messages/Messages.h"
#include "app/ribbon/tt/Style.h"
#include "app/settings/KelSystem.h"
#include "dictionary/TfrmDictionary.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"
#include "dictionary/properties/InfoProperties.h"
#include "engine/UIInvoker.h"
#include "engine/execution/ProcessExecuter.h"
#include "engine/execution/RunGuard.h"
#include "kel.h"
#include "preferences/ConfigDialog.h"
#include "projects/TfrmProject.h"
#include "results/DirectOutputs.h"
#include "results/DirectWriter.h"
#include "results/ResultsManager.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QDockWidget>
#include <QFileInfo>
#include <QMdiSubWindow>
#include <QMenu>
#include <QRegularExpression>
#include <QStatusBar>

#include <utility>

namespace {

MainWindow* theWindow = nullptr;

const QString preferencesName = QStringLiteral("Preferences");
const QString quickViewName = QStringLiteral("VarProperties");

/// A program that is called may save as well.
bool maySave(const QString& program) {
    static const QRegularExpression save(QStringLiteral(R"(.*save\s+\"([^\"]*)\".*)"),
                                         QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression execute(QStringLiteral(R"(execute\s+\")"),
                                            QRegularExpression::CaseInsensitiveOption);
    return save.match(program).hasMatch() || execute.match(program).hasMatch();
}

} // namespace

MainWindow::MainWindow(QWidget* parent) : QMainWindow(parent), system_(KelSystem::instance()) {
    theWindow = this;
    setObjectName(QStringLiteral("MainWindow"));
    setWindowTitle(QStringLiteral("KelXProcess"));
    resize(800, 600);
    logMessage(QStringLiteral("Defining the work Area"), true);
    setupWorkArea();
    logMessage(QStringLiteral("Getting the current Languague"), true);
    language_ = system_.language();
    logMessage(QStringLiteral("Initializing the MainController"), true);
    mainController_ = std::make_unique<MainController>(*this, system_);
    connectOpener();
    logMessage(QStringLiteral("Setup the toolbar"), true);
    setupToolbar();
    logMessage(QStringLiteral("Setup InfoProperties"), true);
    setupInfoProperties();
    logMessage(QStringLiteral("Setup the StatusBar"), true);
    status_ = std::make_unique<StatusLine>(statusBar());
    showNothingOpen();
    logMessage(QStringLiteral("MainWindow processed successfully"), true);
}

MainWindow::~MainWindow() {
    theWindow = nullptr;
}

MainWindow* MainWindow::instance(QWidget* parent) {
    return theWindow != nullptr ? theWindow : new MainWindow(parent);
}

void MainWindow::setupWorkArea() {
    docks_ = std::make_unique<DockAreas>(*this);
    workArea_ = new WorkArea(this);
    startPage_ = new StartPage;
    workArea_->setEmptyPage(startPage_);
    setCentralWidget(workArea_);
    programs_ = new ProgramWindows(*this, *workArea_, system_, this);
    connect(startPage_, &StartPage::recentRequested, this, &MainWindow::on_openRecentDictionary);
}

void MainWindow::setupToolbar() {
    ribbon_ = new RibbonHost(*this, *workArea_, system_, [this] { return ribbonState(); });
    connect(startPage_, &StartPage::openRequested, ribbon_, &RibbonHost::chooseDictionary);
    connect(this, &MainWindow::signalDictIsDirty, ribbon_, &RibbonHost::setDirty);
    connect(this, &MainWindow::windowTitleChanged, this, &MainWindow::handle_window_title_change);
    connect(ribbon_, &RibbonHost::readingDictionary, this, &MainWindow::readingDictionary);
    connect(ribbon_, &RibbonHost::dictionaryFile, this, &MainWindow::on_openRecentDictionary);
    connect(ribbon_, &RibbonHost::projectFile, this, &MainWindow::on_openRecentProject);
    connect(ribbon_, &RibbonHost::saveDictionary, this, &MainWindow::saveOpenDictionary);
    connect(ribbon_, &RibbonHost::saveAsDictionary, this, &MainWindow::saveAsOpenDictionary);
    connect(ribbon_, &RibbonHost::locateDictionary, this, &MainWindow::locateFiles);
    connect(ribbon_, &RibbonHost::closeAllDictionary, this, &MainWindow::on_closeAllDictionary);
    connect(ribbon_, &RibbonHost::newProgram, programs_, &ProgramWindows::newProgram);
    connect(ribbon_, &RibbonHost::programFile, programs_, &ProgramWindows::openProgram);
    connect(programs_, &ProgramWindows::recentChanged, this, &MainWindow::rebuildToolbars);
    connect(ribbon_, &RibbonHost::preferences, this, &MainWindow::onClickInPreferences);
    connect(ribbon_, &RibbonHost::showResults, this, &MainWindow::onShowResults);
}

void MainWindow::setupInfoProperties() {
    infoProperties_ = new InfoProperties(this);
    infoProperties_->setObjectName(quickViewName);
    addDockRight(infoProperties_);
    infoProperties_->hide();
    connect(infoProperties_, &InfoProperties::closeEventCall, this,
            &MainWindow::onCloseInfoAppProperties);
}

void MainWindow::connectOpener() {
    opener_ = new FileOpener(*this, *workArea_, system_, this);
    connect(opener_, &FileOpener::opened, this, &MainWindow::onOpened);
    connect(opener_, &FileOpener::closed, this, &MainWindow::closeAll);
    connect(opener_, &FileOpener::failed, this, [this] {
        showNothingOpen();
        settleRecovery();
        if (closeAfterLoading_)
            QMetaObject::invokeMethod(this, "close", Qt::QueuedConnection);
    });
    connect(opener_, &FileOpener::began, this, [this] {
        startPage_->setEnabled(false);
        rebuildToolbars();
    });
    connect(opener_, &FileOpener::recentGone, this, &MainWindow::onRecentChanged);
    connect(opener_, &FileOpener::dirtyChanged, this, &MainWindow::on_dictIsDirtyReceived);
    connect(opener_, &FileOpener::quickViewVariable, this, &MainWindow::onQuickViewVariable);
    connect(opener_, &FileOpener::quickViewEntity, this, &MainWindow::onQuickViewEntity);
}

bool MainWindow::isLoading() const {
    return opener_->isLoading();
}

bool MainWindow::isBusy() const {
    return isLoading() || RunGuard::isRunning() || QApplication::activeModalWidget() != nullptr;
}

void MainWindow::showStatus(const QString& text, bool busy) {
    status_->show(text, busy);
}

void MainWindow::addDockLeft(QDockWidget* dock) {
    docks_->addLeft(dock);
}

void MainWindow::addDockRight(QDockWidget* dock) {
    docks_->addRight(dock);
}

QDockWidget* MainWindow::dock(const QString& name) const {
    return docks_->find(name);
}

bool MainWindow::dockExists(const QString& name) const {
    return dock(name) != nullptr;
}

void MainWindow::closeDock(const QString& name) {
    docks_->close(name);
}

QMdiSubWindow* MainWindow::addWindow(QWidget* content) {
    return workArea_->addWindow(content);
}

bool MainWindow::hasWindows() const {
    return !workArea_->isEmptyBut(QStringLiteral("KelxPreferencesDialog"));
}

void MainWindow::rebuildToolbars() {
    ribbon_->rebuild();
}

RibbonHost::State MainWindow::ribbonState() const {
    RibbonHost::State state;
    state.loading = isLoading();
    state.hasResults = hasResults_;
    state.dictionaryOpen = !state.loading && TfrmProject::instance().isOpen();
    state.dictionaryDirty = state.dictionaryOpen && opener_->dictionary() != nullptr &&
                            opener_->dictionary()->isDirty();
    state.recentDictionaries = mainController_->recentDictionaries();
    state.activeProgram = [this] { return programs_->activePath(); };
    if (state.dictionaryOpen)
        state.dictionaryPrograms =
            ProgramWindows::programsBeside(TfrmProject::instance().dictionaryPath());
    return state;
}

void MainWindow::openFile(const QString& path, const QString& extension) {
    opener_->openFile(path, extension);
}

void MainWindow::openRecentProcessFile(const QString& pathFile) {
    openFile(pathFile, QFileInfo(pathFile).suffix());
}

void MainWindow::openRecentDictionary(int id) {
    mainController_->openRecentDictionary(id);
}

void MainWindow::openRecentProject(int id) {
    mainController_->openRecentProject(id);
}

void MainWindow::on_openRecentDictionary(const QString& path) {
    opener_->openRecent(path);
}

void MainWindow::on_openRecentProject(const QString& path, bool /*fromDictionary*/) {
    opener_->openRecent(path);
}

void MainWindow::readingDictionary(const QString& path, const QString& extension) {
    openFile(path, extension);
}

void MainWindow::loadLastOpened() {
    const QFileInfo file(system_.lastOpened());
    if (!system_.loadLast() || system_.lastOpened().isEmpty() || !file.exists())
        return;
    openRecentProcessFile(QDir::toNativeSeparators(file.filePath()));
    ribbon_->select(ribbon::FilePage);
}

void MainWindow::offerRecovered() {
    recoveryDue_ = isLoading();
    if (!recoveryDue_)
        programs_->offerRecovered();
}

void MainWindow::settleRecovery() {
    if (recoveryDue_)
        QMetaObject::invokeMethod(this, &MainWindow::offerRecovered, Qt::QueuedConnection);
}

void MainWindow::onOpened(const QString& path, bool found) {
    const TfrmProject& project = TfrmProject::instance();
    const QFileInfo file(path);
    status_->showOpenFile(file.fileName(), QDir::toNativeSeparators(file.absoluteFilePath()));
    const QString label = QString::fromStdString(project.dictionary()->label());
    const QString name = QString::fromStdString(project.dictionary()->name());
    startPage_->showDictionary(label.isEmpty() ? name : label, path, *project.root());
    rebuildToolbars();
    startPage_->setEnabled(true);
    ribbon_->select(found ? ribbon::FilePage : ribbon::DictionaryPage);
    settleRecovery();
}

void MainWindow::closeAll() {
    docks_->closeAllBut(infoProperties_);
    infoProperties_->hide();
    infoProperties_->clear();
    workArea_->closeAllSubWindows();
    // Before the dictionary is released, of which its tables are.
    delete std::exchange(resultsManager_, nullptr);
    hasResults_ = false;
    showNothingOpen();
    ribbon_->select(ribbon::ProjectPage);
}

void MainWindow::showNothingOpen() {
    status_->showOpenFile(QString(), QString());
    startPage_->setEnabled(true);
    startPage_->showRecent(mainController_->recentDictionaries());
    rebuildToolbars();
}

void MainWindow::onRecentChanged() {
    if (!TfrmProject::instance().isOpen())
        startPage_->showRecent(mainController_->recentDictionaries());
    rebuildToolbars();
}

bool MainWindow::canChangeDictionary() const {
    return opener_->dictionary() != nullptr && !isLoading() && !RunGuard::isRunning();
}

void MainWindow::saveOpenDictionary() {
    emit saveClick();
    if (canChangeDictionary())
        opener_->dictionary()->on_saveDictionary();
}

void MainWindow::saveAsOpenDictionary() {
    emit saveAsClick();
    if (canChangeDictionary())
        opener_->dictionary()->on_saveAsDictionary();
}

void MainWindow::locateFiles() {
    if (canChangeDictionary())
        opener_->dictionary()->locateFiles();
}

void MainWindow::on_closeAllDictionary() {
    if (canChangeDictionary())
        opener_->closeDictionary();
}

void MainWindow::on_dictIsDirtyReceived(bool dirty) {
    if (infoProperties_->isVisible())
        infoProperties_->refresh(TfrmProject::instance().root());
    emit signalDictIsDirty(dirty);
}

void MainWindow::on_dictIsSaved() {
    emit signalDictIsDirty(false);
}

void MainWindow::runProgram(const QString& program) {
    if (!isLoading())
        ProcessExecuter(*this, system_.language()).execute(program);
}

QStringList MainWindow::showResults(const std::vector<TKelOutput*>& outputs,
                                    const std::shared_ptr<TKelSession>& session,
                                    const QString& programText) {
    QStringList notes = resultsManager().addOutputs(outputs, session, styleOfRun(outputs));
    onShowResults();
    rebuildToolbars();
    // A table that is saved leaves the dictionary as it is.
    const auto& dictionary = TfrmProject::instance().dictionary();
    if (maySave(programText) && dictionary != nullptr && dictionary->isDirty())
        reloadDictionary();
    return notes;
}

ResultsManager& MainWindow::resultsManager() {
    if (resultsManager_ == nullptr) {
        resultsManager_ =
            new ResultsManager(system_, TfrmProject::instance().dictionaryPath(), this);
        connect(resultsManager_, &ResultsManager::signalCloseWindow, this,
                &MainWindow::onHideResults);
        connect(resultsManager_, &ResultsManager::signalTableShowed, this,
                &MainWindow::onResultsManagerTableShowed);
        hasResults_ = true;
    }
    resultsManager_->setDatabasePath(TfrmProject::instance().dictionaryPath());
    return *resultsManager_;
}

void MainWindow::reloadDictionary() {
    if (opener_->dictionary() != nullptr)
        opener_->dictionary()->reloadAfterRun();
}

QStringList MainWindow::writeDirectOutputs(const std::vector<TKelOutput*>& outputs) {
    TfrmProject& project = TfrmProject::instance();
    if (project.dictionary() == nullptr)
        return {};
    return DirectOutputs(system_, *project.dictionary(), project.dictionaryPath())
        .write(outputs, this);
}

void MainWindow::onShowResults() {
    if (resultsManager_ == nullptr)
        return;
    QMdiSubWindow* frame = workArea_->find(resultsManager_->objectName());
    if (frame == nullptr) {
        frame = workArea_->addWindow(resultsManager_);
        frame->setAttribute(Qt::WA_DeleteOnClose, false);
    }
    resultsManager_->show();
    workArea_->setActiveSubWindow(frame);
    resultsManager_->setFocus();
}

void MainWindow::onHideResults() {
    QMdiSubWindow* frame =
        resultsManager_ != nullptr ? workArea_->find(resultsManager_->objectName()) : nullptr;
    if (frame == nullptr)
        return;
    // The tables outlive their sub-window, which is still within its own close event and hides
    // them.
    workArea_->removeSubWindow(resultsManager_);
    resultsManager_->setParent(this);
    resultsManager_->hide();
    frame->hide();
    frame->deleteLater();
}

void MainWindow::onResultsManagerTableShowed(TableBase* table) {
    emit resultTableShowed(table);
}

InfoProperties& MainWindow::quickView() {
    infoProperties_->show();
    infoProperties_->raise();
    return *infoProperties_;
}

void MainWindow::onQuickViewVariable(TKpVariable* variable) {
    if (variable != nullptr)
        quickView().showVariable(*variable);
}

void MainWindow::onQuickViewEntity(TKpEntity* entity) {
    if (entity != nullptr)
        quickView().showEntity(TfrmProject::instance().root(), *entity);
}

void MainWindow::onCloseInfoAppProperties() {
    infoProperties_->hide();
}

void MainWindow::handle_window_title_change(const QString& /*title*/) {
    ribbon_->retitle();
}

void MainWindow::onClickInPreferences() {
    if (QMdiSubWindow* open = workArea_->find(preferencesName)) {
        workArea_->setActiveSubWindow(open);
        return;
    }
    auto* preferences = new ConfigDialog(system_, tt::StyleNames());
    preferences->setWindowIcon(
        QIcon(QStringLiteral(":/icons/res/icons/48px-General-preferences.png")));
    connectPreferences(*preferences);
    QMdiSubWindow* frame = workArea_->addWindow(preferences);
    frame->setObjectName(preferencesName);
    connect(preferences, &ConfigDialog::closeRequested, frame, &QWidget::close);
}

void MainWindow::connectPreferences(ConfigDialog& preferences) {
    connect(&preferences, &ConfigDialog::menuColorChanged, this, &MainWindow::rebuildToolbars);
    connect(&preferences, &ConfigDialog::settingsReset, this, &MainWindow::onRecentChanged);
    connect(&preferences, &ConfigDialog::maxLastFilesChanged, this, &MainWindow::onRecentChanged);
}

bool MainWindow::askSaveDictionary() {
    TfrmDictionary* dictionary = opener_->dictionary();
    return dictionary == nullptr || !dictionary->isDirty() ||
           !askYesNo(tr("Save Dictionary"),
                     tr("Do you want to save the changes in the dictionary?")) ||
           dictionary->save();
}

bool MainWindow::endRun() {
    if (isLoading())
        UIInvoker::instance().refuseQuestions(); // nobody is left to answer them
    if (!opener_->endLoading()) {
        closeAfterLoading_ = true;
        hide();
        return false;
    }
    showStatus(QString(), false);
    if (!workArea_->closeModified())
        return false;
    if (TfrmDictionary* dictionary = opener_->dictionary())
        if (!dictionary->settlePending())
            return false;
    return askSaveDictionary();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (RunGuard::isRunning() || (!engineEnded_ && !endRun())) {
        event->ignore();
        return;
    }
    QMainWindow::closeEvent(event);
    if (!engineEnded_) {
        engineEnded_ = true;
        if (opener_->dictionary() != nullptr)
            opener_->dictionary()->saveWindowSizes();
        opener_->letGo();
        closeAll();
        TfrmProject::instance().close();
        kel::destroy();
    }
    QCoreApplication::quit();
}

void MainWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange && status_)
        changeLanguage();
    QMainWindow::changeEvent(event);
}

void MainWindow::changeLanguage() {
    if (std::exchange(language_, system_.language()) == system_.language())
        return;
    statusBar()->clearMessage();
    status_->retranslate();
    const QString title = windowTitle();
    setUpdatesEnabled(false);
    rebuildToolbars();
    setUpdatesEnabled(true);
    setWindowTitle(title);
}

QMenu* MainWindow::createPopupMenu() {
    return nullptr; // it would hide the ribbon, and close the dictionary without a question
}
