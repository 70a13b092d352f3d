// SPDX-License-Identifier: GPL-3.0-or-later
#include "projects/TfrmProject.h"

#include "dictionary/mirror/TKpEntity.h"
#include "kel.h"

#include <utility>

TfrmProject& TfrmProject::instance() {
    static TfrmProject project;
    return project;
}

void TfrmProject::beginOpening(const QString& path, DictionaryKind kind) {
    openingPath_ = path;
    openingKind_ = kind;
    staged_.reset();
}

void TfrmProject::stageDictionary(std::shared_ptr<TKelDictionary> dictionary) {
    staged_ = std::move(dictionary);
    if (staged_)
        staged_->setDirty(false);
}

void TfrmProject::adoptStagedDictionary() {
    close();
    dictionary_ = std::move(staged_);
    dictionaryPath_ = openingPath_;
    kind_ = openingKind_;
    openingPath_.clear();
}

void TfrmProject::abandonOpening() {
    staged_.reset();
    openingPath_.clear();
}

void TfrmProject::close() {
    outputs_.clear();
    outputOwners_.clear();
    session_.reset();
    execute_.reset();
    if (root_)
        setRoot(nullptr);
    dictionary_.reset();
    dictionaryPath_.clear();
    allPathsFound_ = true;
}

void TfrmProject::setRoot(std::shared_ptr<TKpEntity> root) {
    const std::shared_ptr<TKpEntity> before = std::exchange(root_, std::move(root));
    emit mirrorRebuilt();
}

void TfrmProject::setSession(std::shared_ptr<TKelSession> session) {
    session_ = std::move(session);
}

void TfrmProject::setExecute(std::shared_ptr<TKelExecute> execute) {
    execute_ = std::move(execute);
}

void TfrmProject::storeOutputs(bool append) {
    if (!append) {
        outputs_.clear();
        outputOwners_.clear();
    }
    if (!session_)
        return;
    const std::vector<TKelOutput*> made = session_->outputs();
    outputs_.insert(outputs_.end(), made.begin(), made.end());
    outputOwners_.push_back(session_);
}
