// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/TfrmDictionary.h"

#include "TKelDictionary.h"
#include "app/dialogs/KelvoraFileDialog.h"
#include "app/messages/Messages.h"
#include "app/settings/KelSystem.h"
#include "app/shell/Shell.h"
#include "app/widgets/ClosableQDockedWidget.h"
#include "dictionary/DictionaryDocks.h"
#include "dictionary/loading/DictionaryLoader.h"
#include "dictionary/loading/DictionarySaver.h"
#include "dictionary/loading/LoadedDictionary.h"
#include "dictionary/loading/LocatePaths.h"
#include "dictionary/mirror/DictionaryUtil.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"
#include "dictionary/properties/TfrmProperties.h"
#include "dictionary/views/KelTreeView.h"
#include "dictionary/views/KelVariablesTableView.h"
#include "dictionary/views/VariablesPane.h"
#include "projects/TfrmProject.h"

#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace {

/// The first one in pre-order that has variables; the root where none has.
QString entityToBeginWith(TKpEntity* root) {
    const QList<TKpEntity*> entities = DictionaryUtil().entities(root);
    const auto found = std::find_if(entities.begin(), entities.end(), [](const TKpEntity* entity) {
        return !entity->variables.isEmpty();
    });
    return found != entities.end() ? (*found)->name : root->name;
}

/// Of the mirror as it is now; null where there is none of that name.
TKpEntity* entityNamed(const QString& name) {
    TKpEntity* found = DictionaryUtil().findEntity(TfrmProject::instance().root(), name);
    return found != nullptr && found->name == name ? found : nullptr;
}

} // namespace

TfrmDictionary::TfrmDictionary(Shell& shell, KelSystem& system, QObject* parent)
    : QObject(parent), shell_(shell), system_(system), loader_(new DictionaryLoader(this)),
      properties_(new TfrmProperties(shell, this)) {
    connectLoader();
    connect(&TfrmProject::instance(), &TfrmProject::mirrorRebuilt, this,
            &TfrmDictionary::showMirror);
    connect(properties_, &TfrmProperties::varchanged, this, &TfrmDictionary::on_varchanged);
    connect(properties_, &TfrmProperties::entchanged, this, &TfrmDictionary::on_entchanged);
}

TfrmDictionary::~TfrmDictionary() = default;

void TfrmDictionary::connectLoader() {
    connect(loader_, &DictionaryLoader::loading, this,
            [this] { shell_.showStatus(tr("Loading..."), true); });
    connect(loader_, &DictionaryLoader::asking, this,
            [this] { shell_.showStatus(QString(), false); });
    connect(loader_, &DictionaryLoader::resumed, this,
            [this] { shell_.showStatus(tr("Loading..."), true); });
    connect(loader_, &DictionaryLoader::loaded, this, &TfrmDictionary::on_loadData);
    connect(loader_, &DictionaryLoader::invalid, this, [this] { on_finishedValidation(false); });
    connect(loader_, &DictionaryLoader::refused, this, [this] { fail(QString(), QString()); });
    connect(loader_, &DictionaryLoader::validationFailed, this,
            &TfrmDictionary::on_finishedErrorThread);
    connect(loader_, &DictionaryLoader::failed, this, &TfrmDictionary::on_errorReadingDictionary);
    connect(loader_, &DictionaryLoader::abandoned, this, [this] { fail(QString(), QString()); });
}

bool TfrmDictionary::openDictionary(const QString& path) {
    return loader_->start(path);
}

bool TfrmDictionary::isLoading() const {
    return loader_->isRunning();
}

bool TfrmDictionary::endLoading() {
    return !isLoading() || loader_->abandon();
}

void TfrmDictionary::fail(const QString& status, const QString& message) {
    shell_.showStatus(status, false);
    if (!message.isEmpty())
        showError(message);
    emit failed();
}

void TfrmDictionary::on_finishedValidation(bool valid) {
    if (!valid)
        fail(tr("Invalid Dictionary"), QString());
}

void TfrmDictionary::on_finishedErrorThread(const QString& message) {
    fail(tr("Invalid Dictionary"), tr("Error validating Dictionary:") + '\n' + message);
}

void TfrmDictionary::on_errorReadingDictionary(const QString& message) {
    fail(message.section('\n', 0, 0), message);
}

void TfrmDictionary::on_loadData(const QStringList& missing, bool clean) {
    showDictionary();
    shell_.showStatus(tr("Dictionary Loaded"), false);
    emit loaded(missing.isEmpty());
    setDirty(!clean);
    if (!missing.isEmpty())
        showWarning(tr("Some variable and/or entity paths could not be found!\nPlease, press "
                       "Locate button in the Dictionary ToolBar"));
}

void TfrmDictionary::showDictionary() {
    entityDock_ = makeDictionaryDock(system_.dictionarySize().width());
    treeView_ = new KelTreeView;
    entityDock_->setWidget(treeView_);
    connectTree();
    tellPath();
    shell_.addDockLeft(entityDock_);
    entityDock_->show();
    entityDock_->raise();
    entityDock_->setMinimumWidth(0);
    showMirror();
    treeView_->selectEntity(entityToBeginWith(TfrmProject::instance().root()));
}

void TfrmDictionary::connectTree() {
    auto* dock = qobject_cast<ClosableQDockedWidget*>(entityDock_);
    connect(dock, &ClosableQDockedWidget::closeEventCall, this, &TfrmDictionary::on_closeTreeView);
    connect(treeView_, &KelTreeView::selectedEntity, this,
            &TfrmDictionary::on_selectedEntityKelTreeView);
    connect(treeView_, &KelTreeView::entityDoubleClicked, this, [this](TKpEntity* entity) {
        const QDockWidget* dock = shell_.dock(properties_->entityDockName());
        if (dock != nullptr && dock->isVisible()) // not closed, and not behind another tab
            showProperties(entity);
        else
            emit quickViewEntity(entity);
    });
    connect(treeView_, &KelTreeView::quickViewRequested, this, &TfrmDictionary::quickViewEntity);
    connect(treeView_, &KelTreeView::propertiesRequested, this,
            [this](TKpEntity* entity) { showProperties(entity); });
    connect(treeView_, &KelTreeView::executeProgram, this, &TfrmDictionary::run,
            Qt::QueuedConnection);
}

void TfrmDictionary::tellPath() {
    if (entityDock_)
        entityDock_->setToolTip(QDir::toNativeSeparators(TfrmProject::instance().dictionaryPath()));
}

void TfrmDictionary::makeVariablesDock() {
    variablesDock_ = ::makeVariablesDock(system_.datasetPropertiesSize());
    variablesPane_ = new VariablesPane;
    variablesDock_->setWidget(variablesPane_);
    connectTable();
    shell_.addDockLeft(variablesDock_);
    variablesDock_->show();
    variablesDock_->setMinimumSize(0, 0);
}

void TfrmDictionary::connectTable() {
    KelVariablesTableView* table = variablesPane_->table();
    connect(table, &KelVariablesTableView::selectedItem, this,
            &TfrmDictionary::on_selectedVariableTableView);
    connect(table, &KelVariablesTableView::tableInfoChange, this,
            &TfrmDictionary::on_tableVariablesInfoChange);
    connect(table, &KelVariablesTableView::quickViewRequested, this,
            &TfrmDictionary::quickViewVariable);
    connect(table, &KelVariablesTableView::variableDoubleClicked, this,
            &TfrmDictionary::quickViewVariable);
    connect(table, &KelVariablesTableView::signalShowVariablesProperties, this,
            [this] { showProperties(variablesPane_->table()->currentVariable()); });
    connect(table, &KelVariablesTableView::executeProgram, this, &TfrmDictionary::run,
            Qt::QueuedConnection);
}

/// With the next events: a run processes some of its own, and with them goes the menu that is still
/// at work on the click.
void TfrmDictionary::run(const QString& program) {
    shell_.runProgram(program);
}

void TfrmDictionary::showMirror() {
    const std::shared_ptr<TKpEntity>& root = TfrmProject::instance().mirror();
    properties_->setRoot(root);
    if (treeView_)
        treeView_->setRoot(root);
}

void TfrmDictionary::on_selectedEntityKelTreeView(TKpEntity* entity) {
    if (entity == nullptr || closing_)
        return;
    if (!variablesDock_)
        makeVariablesDock();
    const bool first = currentEntity_.isEmpty();
    // Edits of a variable of the entity before are asked about here, not out of their context.
    const bool settled = entity->name == currentEntity_ || properties_->settlePending();
    if (!settled || !properties_->showEntity(entity)) {
        treeView_->selectEntity(currentEntity_); // its unsaved edits need mending
        return;
    }
    currentEntity_ = entity->name;
    variablesPane_->setEntity(TfrmProject::instance().mirror(), entity);
    if (first)
        variablesDock_->raise(); // before the properties, which share its place
}

void TfrmDictionary::on_selectedVariableTableView(TKpVariable* variable) {
    if (variable == nullptr || closing_)
        return;
    if (properties_->showVariable(variable))
        currentVariable_ = variable->name;
    else
        variablesPane_->table()->selectVariable(currentVariable_);
}

void TfrmDictionary::showProperties(TKpVariable* variable) {
    if (variable == nullptr || !properties_->showVariable(variable))
        return;
    if (QDockWidget* dock = shell_.dock(properties_->variableDockName())) {
        dock->show();
        dock->raise();
    }
}

void TfrmDictionary::showProperties(TKpEntity* entity) {
    if (entity == nullptr || !properties_->showEntity(entity))
        return;
    if (QDockWidget* dock = shell_.dock(properties_->entityDockName())) {
        dock->show();
        dock->raise();
    }
}

void TfrmDictionary::on_tableVariablesInfoChange(bool changed) {
    if (!changed)
        return;
    setDirty(true);
    if (const TKpVariable* variable = variablesPane_->table()->currentVariable())
        currentVariable_ = variable->name;                  // it may have been renamed
    properties_->setRoot(TfrmProject::instance().mirror()); // shows the edited cell too
}

void TfrmDictionary::on_varchanged(bool changed) {
    if (!changed)
        return;
    setDirty(true);
    TKpEntity* entity = entityNamed(currentEntity_);
    if (variablesPane_ && entity != nullptr)
        variablesPane_->setEntity(TfrmProject::instance().mirror(), entity);
}

void TfrmDictionary::on_entchanged(bool changed) {
    if (changed)
        setDirty(true);
}

void TfrmDictionary::setDirty(bool dirty) {
    dirty_ = dirty;
    emit signalDictIsDirty(isDirty());
}

bool TfrmDictionary::isDirty() const {
    const auto& dictionary = TfrmProject::instance().dictionary();
    return dirty_ || (dictionary && dictionary->isDirty());
}

bool TfrmDictionary::settlePending() {
    return properties_->settlePending();
}

void TfrmDictionary::on_saveDictionary() {
    save();
}

bool TfrmDictionary::save() {
    if (isBusy() || !TfrmProject::instance().isOpen() || !settlePending())
        return false;
    shell_.showStatus(tr("Saving..."), true);
    try {
        DictionarySaver(TfrmProject::instance()).save();
    } catch (const std::exception& fault) {
        shell_.showStatus(QString(), false);
        showError(QString::fromStdString(fault.what()));
        return false;
    }
    shell_.showStatus(tr("Dictionary saved"), false);
    dirty_ = false;
    properties_->setChanged(false);
    emit signalDictIsSaved();
    return true;
}

void TfrmDictionary::on_saveAsDictionary() {
    TfrmProject& project = TfrmProject::instance();
    if (isBusy() || !project.isOpen() || !settlePending())
        return;
    const QString suffix = DictionarySaver::suffixFor(project.dictionaryKind());
    const QString path = KelvoraFileDialog(QStringLiteral("DICTIONARY"), QString(), tr("Save file"))
                             .saveFile(tr("Files (*%1)").arg(suffix), suffix,
                                       QFileInfo(project.dictionaryPath()).fileName());
    if (path.isEmpty())
        return;
    shell_.showStatus(tr("Saving..."), true);
    try {
        DictionarySaver saver(project);
        saver.reopen(path, saver.saveAs(path));
    } catch (const std::exception& fault) {
        shell_.showStatus(QString(), false);
        showError(QString::fromStdString(fault.what()));
        return;
    }
    tellPath();
    dirty_ = false;
    properties_->setChanged(false);
    shell_.showStatus(tr("Dictionary saved"), false);
    emit savedAs(path);
    emit signalDictIsSaved();
}

void TfrmDictionary::locateFiles() {
    TfrmProject& project = TfrmProject::instance();
    if (isBusy() || !project.isOpen() || !settlePending() ||
        !locateMissing(shell_.window(), *project.dictionary(), *project.root()))
        return;
    project.setAllPathsFound(rebuildMirror().missing.isEmpty());
    setDirty(true);
}

void TfrmDictionary::reloadAfterRun() {
    rebuildMirror();
    setDirty(true);
}

bool TfrmDictionary::confirmClose() {
    if (shell_.hasWindows()) {
        showError(tr("Please, close all the windows from the application work area before exiting "
                     "from the project"));
        return false;
    }
    if (!settlePending())
        return false;
    if (!isDirty())
        return true;
    switch (
        askYesNoCancel(tr("Confirm"), tr("Dictionary has been modified. Save modifications?"))) {
    case Choice::Yes:
        return save();
    case Choice::No:
        return true;
    case Choice::Cancel:
        break;
    }
    return false;
}

bool TfrmDictionary::close() {
    if (isLoading() || closing_ || isBusy() || !confirmClose())
        return false;
    closing_ = true;
    saveWindowSizes();
    TfrmProject::instance().close();
    emit closed();
    return true;
}

void TfrmDictionary::on_closeTreeView(QCloseEvent* event) {
    if (closing_)
        return;
    if (!close())
        event->ignore();
}

void TfrmDictionary::saveWindowSizes() {
    if (entityDock_)
        system_.setDictionarySize(entityDock_->size());
    if (variablesDock_)
        system_.setDatasetPropertiesSize(variablesDock_->size());
    if (const QDockWidget* dock = shell_.dock(properties_->entityDockName()))
        system_.setEntPropertiesSize(dock->size());
    if (const QDockWidget* dock = shell_.dock(properties_->variableDockName()))
        system_.setVarPropertiesSize(dock->size());
    const QString path = TfrmProject::instance().dictionaryPath();
    if (!path.isEmpty()) {
        system_.setLastOpened(path);
        system_.setDirectoryFor(QStringLiteral("DICTIONARY"), QFileInfo(path).absolutePath());
    }
    system_.save();
}
