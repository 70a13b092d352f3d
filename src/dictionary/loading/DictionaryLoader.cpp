// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/loading/DictionaryLoader.h"

#include "dictionary/loading/LoadThread.h"
#include "dictionary/loading/LoadedDictionary.h"
#include "dictionary/loading/XmlDicxDictionary.h"
#include "engine/ThreadedWorker.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

#include <optional>
#include <utility>

namespace {

std::optional<DictionaryKind> kindOf(const QString& path) {
    if (path.endsWith(QLatin1String(".dicx"), Qt::CaseInsensitive))
        return DictionaryKind::Dicx;
    if (path.endsWith(QLatin1String(".kxdb"), Qt::CaseInsensitive))
        return DictionaryKind::Kxdb;
    return std::nullopt;
}

} // namespace

DictionaryLoader::DictionaryLoader(QObject* parent)
    : DictionaryLoader(QUrl(QStringLiteral("qrc:/schemas/kel7dicwip.xsd")), parent) {}

DictionaryLoader::DictionaryLoader(const QUrl& schema, QObject* parent)
    : QObject(parent), schema_(schema) {}

DictionaryLoader::~DictionaryLoader() {
    finish();
}

bool DictionaryLoader::start(const QString& path) {
    const auto kind = kindOf(path);
    return kind && start(path, *kind);
}

bool DictionaryLoader::start(const QString& path, DictionaryKind kind) {
    const auto form = kindOf(path);
    if (isRunning() || !form)
        return false;
    ending_ = false;
    TfrmProject::instance().beginOpening(path, kind);
    emit loading();
    if (*form == DictionaryKind::Kxdb)
        read();
    else
        scan();
    return true;
}

void DictionaryLoader::finish() {
    ending_ = true;
    if (stage_ == nullptr)
        return;
    stage_->requestInterruption();
    // The thread may be waiting for an answer of the GUI thread; nothing else is let in.
    while (!stage_->wait(20))
        QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    stage_ = nullptr;
    giveUp();
}

bool DictionaryLoader::abandon() {
    ending_ = true;
    if (!isRunning())
        return true;
    if (stage_ != nullptr)
        stage_->requestInterruption();
    if (QWidget* box = settling_ ? QApplication::activeModalWidget() : nullptr)
        box->close();
    return false;
}

void DictionaryLoader::beginStage(QThread* thread) {
    stage_ = thread;
    thread->setParent(this);
    connect(thread, &QThread::finished, thread, &QObject::deleteLater);
}

bool DictionaryLoader::join() {
    if (stage_ == nullptr)
        return false; // a result that was on its way when the load was forgotten
    std::exchange(stage_, nullptr)->wait();
    if (!ending_)
        return true;
    giveUp();
    emit abandoned();
    return false;
}

void DictionaryLoader::scan() {
    check_ = std::make_shared<XmlDicxDictionary>(nullptr, schema_,
                                                 TfrmProject::instance().openingPath());
    beginStage(QThread::create([check = check_.get()] { check->scan(); }));
    connect(stage_, &QThread::finished, this, &DictionaryLoader::onScanned);
    stage_->start();
}

void DictionaryLoader::onScanned() {
    if (!join())
        return;
    const std::shared_ptr<XmlDicxDictionary> check = check_; // outlives a close behind the box
    const QPointer<DictionaryLoader> self(this);
    settling_ = true;
    const bool talks = check->needsUser();
    if (talks)
        emit asking();
    if (!self)
        return;
    const bool accepted = check->settle();
    if (!self)
        return;
    settling_ = false;
    if (ending_) {
        giveUp();
        emit abandoned();
    } else if (accepted) {
        if (talks)
            emit resumed();
        validate();
    } else {
        giveUp();
        const bool silent = check->isReadable() && !check->isWellFormed();
        emit silent ? invalid() : refused();
    }
}

void DictionaryLoader::validate() {
    auto* worker = new ThreadedWorker;
    worker->setValidation(
        [check = check_](QIODevice* file, const QUrl& url) {
            return check->schemaValidator().validate(file, url);
        },
        check_->openFile());
    beginStage(new QThread);
    worker->moveToThread(stage_);
    connect(stage_, &QThread::started, worker, &ThreadedWorker::validateDictionary);
    // Directly: the GUI thread may be waiting for the thread's end.
    connect(worker, qOverload<>(&ThreadedWorker::finished), stage_, &QThread::quit,
            Qt::DirectConnection);
    connect(worker, &ThreadedWorker::validated, stage_, &QThread::quit, Qt::DirectConnection);
    connect(worker, qOverload<QString>(&ThreadedWorker::finishedError), stage_, &QThread::quit,
            Qt::DirectConnection);
    connect(worker, &ThreadedWorker::validated, this, &DictionaryLoader::onValidated);
    connect(worker, qOverload<QString>(&ThreadedWorker::finishedError), this,
            &DictionaryLoader::onValidationFailed);
    connect(stage_, &QThread::finished, worker, &QObject::deleteLater);
    stage_->start(QThread::InheritPriority);
}

void DictionaryLoader::onValidated(bool valid) {
    if (!join())
        return;
    if (valid) {
        read();
        return;
    }
    giveUp();
    emit invalid();
}

void DictionaryLoader::onValidationFailed(const QString& message) {
    if (!join())
        return;
    giveUp();
    emit validationFailed(message);
}

void DictionaryLoader::read() {
    auto* thread = new LoadThread;
    beginStage(thread);
    connect(thread, &LoadThread::signalDictionaryLoaded, this, &DictionaryLoader::onLoaded);
    connect(thread, &LoadThread::signalError, this, &DictionaryLoader::onError);
    thread->start(QThread::HighestPriority);
}

void DictionaryLoader::onLoaded() {
    if (!join())
        return;
    check_.reset();
    const LoadedDictionary result = adoptLoadedDictionary();
    emit loaded(result.missing, result.clean);
}

void DictionaryLoader::onError(const QString& message) {
    if (!join())
        return;
    giveUp();
    emit failed(message);
}

void DictionaryLoader::giveUp() {
    check_.reset();
    TfrmProject::instance().abandonOpening();
}
