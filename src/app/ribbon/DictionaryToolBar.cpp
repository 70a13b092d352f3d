// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ribbon/DictionaryToolBar.h"

#include "app/dialogs/KelvoraFileDialog.h"
#include "app/messages/Messages.h"
#include "app/ribbon/OpenDictionaryButtonMenu.h"
#include "app/ribbon/RibbonState.h"

#include <QFileInfo>

#include <exception>

DictionaryToolBar::DictionaryToolBar(tt::TabToolbar& toolbar, const RibbonState& state)
    : RibbonPage(toolbar, "Dictionary"), canSave_(state.dictionaryOpen && !state.loading),
      canCheck_(state.dictionaryOpen) {
    tt::Group& file = addGroup(tr("File"));
    makeOpenButton(file, state);
    save_ = add(file, "save", tr("Save"), tr("Save the dictionary"), QKeySequence::Save);
    QAction* saveAs =
        add(file, "saveas", tr("Save As"), tr("Save the dictionary under another name"),
            QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    tt::Group& dictionary = addGroup(tr("Dictionary"));
    QAction* locate = add(dictionary, "locate", tr("Locate"),
                          tr("Find the data files that are missing where the dictionary says"));
    addLater(dictionary, "consistency", tr("Consistency"),
             tr("Check the data files against the dictionary"));
    addLater(dictionary, "report", tr("Report"), tr("Make a report of the dictionary"));
    QAction* close = add(dictionary, "close", tr("Close"), tr("Close the dictionary"));
    on_enableSaveButton(state.dictionaryDirty);
    for (QAction* action : {saveAs, locate, close})
        action->setEnabled(canSave_);
    connect(save_, &QAction::triggered, this, &DictionaryToolBar::on_saveOpenDictionary);
    connect(saveAs, &QAction::triggered, this, &DictionaryToolBar::on_saveAsOpenDictionary);
    connect(locate, &QAction::triggered, this, &DictionaryToolBar::on_locateFile);
    connect(close, &QAction::triggered, this, &DictionaryToolBar::on_closeAllDictionary);
}

void DictionaryToolBar::makeOpenButton(tt::Group& group, const RibbonState& state) {
    auto* menu = new OpenDictionaryButtonMenu(state.recentDictionaries, page());
    QAction* open = addMenuButton(group, "open", tr("Open"),
                                  tr("Open a dictionary, or one of the recent ones"), menu);
    open->setEnabled(!state.loading);
    // The shortcut is the menu entry's, and counts while the menu is closed too.
    menu->openAction()->setEnabled(!state.loading);
    tt::TabToolbar::Around(page())->ListenTo(menu->openAction());
    connect(menu, &OpenDictionaryButtonMenu::openDictionary, this,
            &DictionaryToolBar::on_readingDictionary);
    connect(menu, &OpenDictionaryButtonMenu::recentDictionary, this,
            &DictionaryToolBar::on_dictionaryFile);
}

void DictionaryToolBar::on_dictionaryFile(const QString& path) {
    emit dictionaryFile(path);
}

void DictionaryToolBar::on_readingDictionary() {
    QString path;
    try {
        const KelvoraFileDialog dialog(QStringLiteral("DICTIONARY"), {}, tr("Open Dictionary"));
        path = dialog.openFile(tr("KelX Dictionary (*.kxdb);;Kel7 Dictionary (*.dicx)"));
    } catch (const std::exception& fault) {
        showError(tr("Error %s sending event").replace(QLatin1String("%s"), fault.what()));
    }
    if (!path.isEmpty())
        emit readingDictionary(path, QFileInfo(path).suffix());
}

void DictionaryToolBar::on_saveOpenDictionary() {
    emit saveDictionary();
}

void DictionaryToolBar::on_saveAsOpenDictionary() {
    emit saveAsDictionary();
}

void DictionaryToolBar::on_consistencyDictionary() {
    if (canCheck_)
        emit checkDictionary();
    else
        showError(tr("Please, you must open a dictionary beforehand"));
}

void DictionaryToolBar::on_printDictionary() {
    emit printDictionary();
}

void DictionaryToolBar::on_closeAllDictionary() {
    emit closeAllDictionary();
}

void DictionaryToolBar::on_locateFile() {
    emit locateDictionary();
}

void DictionaryToolBar::on_enableSaveButton(bool enable) {
    save_->setEnabled(enable && canSave_);
}
