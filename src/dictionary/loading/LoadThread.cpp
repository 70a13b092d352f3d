// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/loading/LoadThread.h"

#include "kel.h"
#include "projects/TfrmProject.h"

#include <exception>

LoadThread::LoadThread(QObject* parent)
    : QThread(parent), path_(TfrmProject::instance().openingPath()) {}

void LoadThread::run() {
    try {
        TfrmProject::instance().stageDictionary(
            kel::readDictionary(path_.toStdString(), nullptr, true));
        emit signalDictionaryLoaded();
    } catch (const std::exception& fault) {
        emit signalError(QString::fromStdString(fault.what()));
    } catch (...) {
        emit signalError(QStringLiteral("KELENGINE:\nUNKNOWN ERROR READING DICTIONARY."));
    }
}
