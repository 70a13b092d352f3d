// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/program/ProcessProgramSPC.h"

#include "app/settings/KelSystem.h"
#include "app/shell/Shell.h"
#include "editor/language/KelvoraCompleter.h"
#include "editor/program/BottomPanel.h"
#include "editor/program/ErrorList.h"
#include "editor/program/ProgramFiles.h"
#include "editor/program/ProgramKeys.h"
#include "editor/program/ProgramParts.h"
#include "editor/program/ProgramTitle.h"
#include "editor/program/SyntaxClue.h"
#include "editor/search/FindDialog.h"
#include "editor/search/GotoDialog.h"
#include "editor/text/MetricReporter.h"
#include "engine/execution/RunGuard.h"
#include "projects/TfrmProject.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCloseEvent>
#include <QLabel>
#include <QMenu>
#include <QSplitter>
#include <QStatusBar>
#include <QTabBar>
#include <QToolBar>

namespace {

constexpr int editorShare = 90; ///< per cent of the height; the rest is the panel's

EditorLook lookOf(const KelSystem& system) {
    return {system.fixedFont(), system.editorColorScheme(), system.gutterVisible(),
            system.showGutterLineNumbers()};
}

} // namespace

ProcessProgramSPC::ProcessProgramSPC(Shell& shell, KelSystem& system, QWidget* parent)
    : ProcessProgramSPC(shell, system, Kind::Programs, QString(), parent) {}

ProcessProgramSPC::ProcessProgramSPC(Shell& shell, KelSystem& system, const QString& path,
                                     QWidget* parent)
    : ProcessProgramSPC(shell, system, Kind::Programs, path, parent) {}

ProcessProgramSPC::ProcessProgramSPC(Shell& shell, KelSystem& system, Kind kind,
                                     const QString& path, QWidget* parent)
    : QMainWindow(parent), system_(system), executeWindow_(kind == Kind::ProgramLists),
      parts_(std::make_unique<Parts>()) {
    setObjectName(executeWindow_ ? QStringLiteral("executeProgramWindow")
                                 : QStringLiteral("programWindow"));
    setWindowIcon(QIcon(executeWindow_
                            ? QStringLiteral(":/icons/res/icons/48px-File-execute.png")
                            : QStringLiteral(":/icons/res/icons/48px-File-programs.png")));
    build(shell);
    connectParts();
    connectActions();
    fetchVocabulary();
    parts_->place->apply();
    parts_->actions->action(Command::ToolBar)->setChecked(isToolBarVisible());
    parts_->actions->action(Command::StatusBar)->setChecked(isStatusBarVisible());
    parts_->actions->action(Command::Splitter)->setChecked(true);
    on_currentTabChanged(0);
    if (!path.isEmpty())
        read_ = openFile(path);
    if (currentEditor()->filePath().isEmpty())
        parts_->files->nameFirst();
}

ProcessProgramSPC::~ProcessProgramSPC() {
    // The tabs tell of their end, when this object is a plain widget already.
    parts_->connections->end();
    parts_->tabs->disconnect(this);
    parts_->files->disconnect(this);
}

void ProcessProgramSPC::build(Shell& shell) {
    Parts& parts = *parts_;
    parts.actions = new ProgramActions(*this);
    parts.splitter = new QSplitter(Qt::Vertical, this);
    parts.splitter->setObjectName(QStringLiteral("programSplitter"));
    parts.tabs = new TabbedEditor(lookOf(system_), this, parts.splitter);
    parts.tabs->setContextMenuPolicy(Qt::CustomContextMenu);
    parts.bottom = new BottomPanel(parts.splitter);
    parts.splitter->setChildrenCollapsible(false);
    parts.splitter->setStretchFactor(0, editorShare);
    parts.splitter->setStretchFactor(1, 100 - editorShare);
    setCentralWidget(parts.splitter);
    parts.goTo = new GotoDialog(this);
    parts.metrics = new MetricReporter(statusBar());
    parts.language = new QLabel(statusBar());
    parts.language->setObjectName(QStringLiteral("languageLabel"));
    statusBar()->addPermanentWidget(parts.metrics);
    statusBar()->addPermanentWidget(parts.language);
    showLanguage();
    parts.files = new ProgramFiles(*parts.tabs, executeWindow_, this);
    parts.runner = new ProgramRunner(shell, system_.shortLanguage(), errorList(), this);
    parts.clue = new SyntaxClue(this);
    parts.keys = new ProgramKeys(*parts.actions, *this);
    parts.keys->watchList(parts.clue->list());
    parts.format.emplace(*parts.tabs, *parts.actions, *this);
    parts.connections.emplace(*this, parts.bottom->find(), *parts.goTo, *parts.metrics);
    parts.scheme.emplace(*this);
    parts.place.emplace(system_, *this, *parts.actions->toolBar());
}

void ProcessProgramSPC::connectParts() {
    connect(parts_->tabs, &QTabWidget::currentChanged, this,
            &ProcessProgramSPC::on_currentTabChanged);
    connect(parts_->tabs, &QTabWidget::tabCloseRequested, this,
            qOverload<int>(&ProcessProgramSPC::closeTab));
    connect(parts_->files, &ProgramFiles::editorAdded, this,
            [this](const Editor* editor) { watchKeys(*editor); });
    watchKeys(*currentEditor());
    connect(parts_->files, &ProgramFiles::titlesChanged, this,
            &ProcessProgramSPC::updateTabAndWindowTitle);
    connect(parts_->files, &ProgramFiles::savedTabToClose, this,
            &ProcessProgramSPC::savedTabToClose);
    connect(parts_->files, &ProgramFiles::fileUsed, this, &ProcessProgramSPC::fileUsed);
    connect(parts_->files, &ProgramFiles::statusTold, this,
            [this](const QString& text) { statusBar()->showMessage(text, 2000); });
    connect(parts_->runner, &ProgramRunner::busyChanged, this, &ProcessProgramSPC::setBusy);
    connect(parts_->runner, &ProgramRunner::listed, this, &ProcessProgramSPC::showList);
    connect(parts_->clue, &SyntaxClue::inserted, this, &ProcessProgramSPC::onCompleterSelection,
            Qt::QueuedConnection);
    connect(parts_->bottom, &BottomPanel::left, this, [this] { currentEditor()->setFocus(); });
    connect(&TfrmProject::instance(), &TfrmProject::mirrorRebuilt, this,
            &ProcessProgramSPC::fetchVocabulary);
    ErrorList& errors = errorList();
    connect(&errors, &QListWidget::itemClicked, this,
            &ProcessProgramSPC::on_errorListWidget_itemClicked);
    connect(&errors, &ErrorList::chosen, this, &ProcessProgramSPC::on_errorListWidget_itemClicked);
    connect(&errors, &ErrorList::passed, this, &ProcessProgramSPC::showPassedRow);
    connect(&errors, &QWidget::customContextMenuRequested, this,
            &ProcessProgramSPC::slotListViewCustomMenuRequested);
}

Editor* ProcessProgramSPC::currentEditor() const {
    return parts_->tabs->currentEditor();
}

ProgramRunner& ProcessProgramSPC::runner() const {
    return *parts_->runner;
}

ErrorList& ProcessProgramSPC::errorList() const {
    return parts_->bottom->errors();
}

bool ProcessProgramSPC::openFile(const QString& path) {
    return parts_->files->openPath(path);
}

bool ProcessProgramSPC::hasFile(const QString& path) const {
    return parts_->files->editorOf(path) != nullptr;
}

void ProcessProgramSPC::setOtherWindows(OtherWindows others) {
    parts_->files->setOtherWindows(std::move(others));
}

void ProcessProgramSPC::restore(const RecoveryCopy& copy) {
    parts_->files->restore(copy);
}

QStringList ProcessProgramSPC::variablesOf(const QString& entity) const {
    return variablesOfEntity(entity);
}

void ProcessProgramSPC::fetchVocabulary() {
    parts_->words = Vocabulary::ofOpenDictionary();
    parts_->scheme->setWords(parts_->words);
    for (Editor* editor : parts_->tabs->editors())
        hand(*editor);
}

void ProcessProgramSPC::watchKeys(const Editor& editor) const {
    if (editor.completer() != nullptr)
        parts_->keys->watchList(*editor.completer()->popup());
}

void ProcessProgramSPC::hand(Editor& editor) const {
    editor.setLowerCase(true);
    editor.setEntityList(parts_->words.entities);
    editor.setVariableList(parts_->words.variables);
}

void ProcessProgramSPC::on_currentTabChanged(int index) {
    if (index < 0) {
        parts_->connections->end();
        return;
    }
    Editor& editor = *currentEditor();
    parts_->clue->close();
    parts_->connections->follow(editor);
    editor.setFocus();
    errorList().setPalette(editor.palette());
    hand(editor);
    toggleUndo(editor.document()->isUndoAvailable());
    toggleRedo(editor.document()->isRedoAvailable());
    toggleCopyAndCut(editor.textCursor().hasSelection());
    parts_->format->showStateOf(editor);
    updateTabAndWindowTitle();
    editor.tellMetrics();
}

void ProcessProgramSPC::updateTabAndWindowTitle() {
    bool modified = false;
    for (int index = 0; index < parts_->tabs->count(); ++index) {
        Editor& editor = *parts_->tabs->editor(index);
        modified |= editor.document()->isModified();
        if (const QString title = tabTitle(editor); parts_->tabs->tabText(index) != title)
            parts_->tabs->setTabText(index, title);
        parts_->tabs->setTabToolTip(index, tabToolTip(editor));
    }
    setWindowModified(modified);
    if (Editor* editor = currentEditor())
        setWindowTitle(windowTitleOf(*editor, width()));
}

void ProcessProgramSPC::showLanguage() {
    parts_->language->setText(tr("Language:") + QStringLiteral(" Kelx"));
}

void ProcessProgramSPC::setBusy(bool busy) {
    if (busy)
        parts_->files->keepCopies(); // what runs may take the whole program with it
    parts_->actions->action(Command::Compile)->setEnabled(!busy);
    parts_->actions->action(Command::Run)->setEnabled(!busy);
}

void ProcessProgramSPC::showList(bool faults) {
    parts_->bottom->showErrors();
    if (faults)
        setErrorListVisible(true);
}

void ProcessProgramSPC::applySplit() {
    const int total = height();
    const int above = isErrorListVisible() ? total * editorShare / 100 : total;
    parts_->splitter->setSizes({above, total - above});
}

void ProcessProgramSPC::applyPreferences() {
    const EditorLook look = lookOf(system_);
    parts_->tabs->setLook(look);
    parts_->scheme->setLook(look);
    errorList().setPalette(currentEditor()->palette());
}

void ProcessProgramSPC::showEvent(QShowEvent* event) {
    applyPreferences();
    QMainWindow::showEvent(event);
}

void ProcessProgramSPC::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    applySplit();
    updateTabAndWindowTitle();
}

void ProcessProgramSPC::closeEvent(QCloseEvent* event) {
    closing_ = true;
    while (parts_->tabs->count() > 0 && closing_)
        closing_ = closeTab(parts_->tabs->editor(0));
    if (!closing_) {
        event->ignore();
        return;
    }
    parts_->place->write();
    event->accept();
}

void ProcessProgramSPC::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange && parts_->language != nullptr) {
        parts_->actions->retranslate();
        parts_->bottom->retranslate();
        showLanguage();
        updateTabAndWindowTitle();
    }
    QMainWindow::changeEvent(event);
}

QMenu* ProcessProgramSPC::createPopupMenu() {
    return nullptr; // the bars have their place in the menu View, whose marks would not follow
}
