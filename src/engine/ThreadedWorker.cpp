// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/ThreadedWorker.h"

#include "kel.h"

#include <QDateTime>
#include <QDebug>

#include <cstdio>
#include <exception>
#include <iostream>
#include <typeinfo>
#include <utility>

namespace {

void logTime(const char* what) {
    qDebug().noquote() << what << QDateTime::currentDateTime().toString("yyyy/MM/dd hh:mm:ss,zzz");
}

} // namespace

void ThreadedWorker::setValidation(Validator validator, std::unique_ptr<QFile> file) {
    delete file_;
    validator_ = std::move(validator);
    file_ = file.release();
    if (file_ != nullptr)
        file_->setParent(this);
}

void ThreadedWorker::setProgram(std::shared_ptr<TKelSession> session, std::string program) {
    session_ = std::move(session);
    program_ = std::move(program);
}

void ThreadedWorker::quit() {
    running_ = false;
}

void ThreadedWorker::process() {
    if (running_.exchange(true))
        return;
    try {
        runProgram();
    } catch (const std::exception& fault) {
        qDebug() << typeid(fault).name();
        emit status(100);
        emit finishedError(this);
        emit finishedError(QString::fromStdString(fault.what()));
    }
}

void ThreadedWorker::runProgram() {
    if (!session_)
        throw std::runtime_error("There is no session to run the program in.");
    progress_ = [this](void*, int& expected, int& elapsed, int& percent, void*) {
        return tellProgress(expected, elapsed, percent);
    };
    session_->setTimerCallback(progress_);
    logTime("Inicio:");
    kel::measureTime([this] { session_->executeText(program_, nullptr); });
    logTime("Fin:");
    emit status(100);
    emit finished(this);
    qDebug() << "Hasta 1";
    emit finished();
    qDebug() << "Hasta 2";
}

/// The engine takes true for a wish to stop, which nobody can express here.
bool ThreadedWorker::tellProgress(int expected, int elapsed, int percent) {
    emit status(percent);
    emit labelProgress(expected, elapsed);
    std::fflush(stdout);
    return false;
}

void ThreadedWorker::validateDictionary() {
    if (running_.exchange(true))
        return;
    try {
        emit validated(validate());
    } catch (const std::exception& fault) {
        emit finishedError(QString::fromStdString(fault.what()));
    }
}

bool ThreadedWorker::validate() {
    if (file_ == nullptr || !file_->open(QIODevice::ReadOnly)) {
        std::cerr << "Error while loading file" << std::endl;
        return false;
    }
    const bool valid = validator_(file_, QUrl(file_->fileName()));
    file_->close();
    return valid;
}
