// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ribbon/RibbonPages.h"

#include "app/ribbon/DictionaryToolBar.h"
#include "app/ribbon/FileToolBar.h"
#include "app/ribbon/GeneralToolBar.h"
#include "app/ribbon/ProjectToolBar.h"
#include "app/ribbon/StatisticalToolBar.h"
#include "app/ribbon/WindowToolBar.h"

RibbonPages::RibbonPages(tt::TabToolbar& toolbar, const RibbonState& state, QMdiArea& workArea)
    : QObject(&toolbar), toolbar_(toolbar) {
    auto* project = new ProjectToolBar(toolbar);
    dictionary_ = new DictionaryToolBar(toolbar, state);
    auto* file = new FileToolBar(toolbar, state);
    new StatisticalToolBar(toolbar);
    toolbar.AddPage({}); // EASY INDICATORS
    auto* window = new WindowToolBar(toolbar, workArea, state);
    auto* general = new GeneralToolBar(toolbar, state);
    connect(project, &ProjectToolBar::projectFile, this, &RibbonPages::projectFile);
    connect(file, &FileToolBar::newProgram, this, &RibbonPages::newProgram);
    connect(file, &FileToolBar::programFile, this, &RibbonPages::programFile);
    connect(window, &WindowToolBar::showResults, this, &RibbonPages::showResults);
    connect(general, &GeneralToolBar::preferences, this, &RibbonPages::preferences);
    connectDictionary();
    retitle();
}

void RibbonPages::connectDictionary() {
    using Page = DictionaryToolBar;
    connect(dictionary_, &Page::readingDictionary, this, &RibbonPages::readingDictionary);
    connect(dictionary_, &Page::dictionaryFile, this, &RibbonPages::dictionaryFile);
    connect(dictionary_, &Page::saveDictionary, this, &RibbonPages::saveDictionary);
    connect(dictionary_, &Page::saveAsDictionary, this, &RibbonPages::saveAsDictionary);
    connect(dictionary_, &Page::locateDictionary, this, &RibbonPages::locateDictionary);
    connect(dictionary_, &Page::checkDictionary, this, &RibbonPages::checkDictionary);
    connect(dictionary_, &Page::printDictionary, this, &RibbonPages::printDictionary);
    connect(dictionary_, &Page::closeAllDictionary, this, &RibbonPages::closeAllDictionary);
}

void RibbonPages::retitle() {
    const QString titles[] = {
        tr("  PROJECT  "),          tr("  DICTIONARY  "),      tr("  FILE  "),
        tr("  BASIC STATISTICS  "), tr("  EASY INDICATORS  "), tr("  WINDOW  "),
        tr("  GENERAL  ")};
    int index = 0;
    for (const QString& title : titles)
        toolbar_.SetPageTitle(index++, title);
}

void RibbonPages::enableSaveDictionary(bool enable) {
    dictionary_->on_enableSaveButton(enable);
}
