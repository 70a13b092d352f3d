// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/TKelUIProviderImpl.h"

#include "engine/UIInvoker.h"

#include <QThread>

#include <stdexcept>

namespace {

using Question = QString (UIInvoker::*)(const QString&);

std::string ask(Question question, const std::string& dbName, const char* refusal) {
    UIInvoker& invoker = UIInvoker::instance();
    const QString name = QString::fromStdString(dbName);
    QString answer;
    if (QThread::currentThread() == invoker.thread())
        answer = (invoker.*question)(name);
    else
        QMetaObject::invokeMethod(
            &invoker, [&] { return (invoker.*question)(name); }, Qt::BlockingQueuedConnection,
            &answer);
    if (answer.isEmpty())
        throw std::runtime_error(refusal);
    return answer.toStdString();
}

} // namespace

std::string TKelUIProviderImpl::promptPassword(const std::string& dbName) {
    return ask(&UIInvoker::promptPassword, dbName, "Missing password.");
}

std::string TKelUIProviderImpl::pickDataDir(const std::string& dbName) {
    return ask(&UIInvoker::pickDataDir, dbName, "Missing data location.");
}
