// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/RibbonHost.h"

#include "app/WorkArea.h"
#include "app/ribbon/DictionaryToolBar.h"
#include "app/ribbon/RibbonState.h"
#include "app/ribbon/RibbonStyle.h"
#include "app/ribbon/tt/TabToolbar.h"
#include "app/settings/KelSystem.h"
#include "engine/execution/RunGuard.h"
#include "kel.h"

#include <QAction>
#include <QIcon>
#include <QMainWindow>
#include <QTimer>

#include <utility>

namespace {

constexpr int ribbonHeight = 75;
constexpr int ribbonRows = 3;

} // namespace

RibbonHost::RibbonHost(QMainWindow& window, WorkArea& workArea, KelSystem& system,
                       std::function<State()> state)
    : QObject(&window), window_(window), workArea_(workArea), system_(system),
      state_(std::move(state)), modeAction_(makeCornerAction(QStringLiteral("modeAction"))),
      preferencesAction_(makeCornerAction(QStringLiteral("preferencesAction"))) {
    modeAction_->setText(QStringLiteral("M"));
    preferencesAction_->setIcon(
        QIcon(QStringLiteral(":/icons/res/icons/48px-General-preferences.png")));
    connect(modeAction_, &QAction::triggered, &workArea_, &WorkArea::toggleTabs);
    connect(preferencesAction_, &QAction::triggered, this, &RibbonHost::preferences);
    build();
}

QAction* RibbonHost::makeCornerAction(const QString& name) {
    auto* action = new QAction(this);
    action->setObjectName(name);
    return action;
}

void RibbonHost::rebuild() {
    if (std::exchange(rebuilding_, true))
        return;
    QTimer::singleShot(0, this, [this] {
        RunGuard::afterwards(this, [this] {
            rebuilding_ = false;
            build();
        });
    });
}

void RibbonHost::build() {
    const State state = state_();
    tt::TabToolbar* before = toolbar_;
    const int page = before != nullptr ? before->CurrentTab() : ribbon::ProjectPage;
    const bool minimized = before != nullptr && before->IsMinimized();
    if (before != nullptr) {
        window_.removeToolBar(before);
        before->setObjectName(QString());
        before->deleteLater(); // one of its buttons may have asked for the new one
    }
    toolbar_ = new tt::TabToolbar(&window_, ribbonHeight, ribbonRows);
    toolbar_->setObjectName(QStringLiteral("ribbon"));
    RibbonState told;
    told.dictionaryOpen = state.dictionaryOpen;
    told.dictionaryDirty = state.dictionaryDirty;
    told.loading = state.loading;
    told.hasResults = state.hasResults;
    told.recentDictionaries = state.recentDictionaries;
    told.recentPrograms = system_.recentPrograms(false);
    told.recentExecutes = system_.recentPrograms(true);
    told.dictionaryPrograms = state.dictionaryPrograms;
    told.activeProgram = state.activeProgram;
    told.language = system_.language();
    told.engineVersion = QString::fromStdString(kel::version());
    pages_ = new RibbonPages(*toolbar_, told, workArea_);
    connectPages();
    toolbar_->AddCornerAction(modeAction_);
    toolbar_->AddCornerAction(preferencesAction_);
    retranslate();
    applyRibbonStyle(*toolbar_, system_.menuColor());
    toolbar_->SetMinimized(minimized);
    toolbar_->SetCurrentTab(page);
    window_.addToolBar(Qt::TopToolBarArea, toolbar_);
    toolbar_->show(); // at once: its keys are heard only while it is seen
}

void RibbonHost::connectPages() {
    connect(pages_, &RibbonPages::readingDictionary, this, &RibbonHost::readingDictionary);
    connect(pages_, &RibbonPages::dictionaryFile, this, &RibbonHost::dictionaryFile);
    connect(pages_, &RibbonPages::projectFile, this, &RibbonHost::projectFile);
    connect(pages_, &RibbonPages::saveDictionary, this, &RibbonHost::saveDictionary);
    connect(pages_, &RibbonPages::saveAsDictionary, this, &RibbonHost::saveAsDictionary);
    connect(pages_, &RibbonPages::locateDictionary, this, &RibbonHost::locateDictionary);
    connect(pages_, &RibbonPages::closeAllDictionary, this, &RibbonHost::closeAllDictionary);
    connect(pages_, &RibbonPages::newProgram, this, &RibbonHost::newProgram);
    connect(pages_, &RibbonPages::programFile, this, &RibbonHost::programFile);
    connect(pages_, &RibbonPages::preferences, this, &RibbonHost::preferences);
    connect(pages_, &RibbonPages::showResults, this, &RibbonHost::showResults);
}

void RibbonHost::select(ribbon::PageIndex page) {
    if (toolbar_)
        toolbar_->SetCurrentTab(page);
}

void RibbonHost::setDirty(bool dirty) {
    if (pages_)
        pages_->enableSaveDictionary(dirty);
}

void RibbonHost::retitle() {
    if (pages_)
        pages_->retitle();
}

void RibbonHost::chooseDictionary() {
    if (pages_ && !state_().loading)
        pages_->dictionary()->on_readingDictionary();
}

void RibbonHost::retranslate() {
    modeAction_->setToolTip(tr("Tabs or windows in the work area"));
    preferencesAction_->setText(tr("Preferences"));
    preferencesAction_->setToolTip(tr("Preferences"));
}
