// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/language/KelvoraCompleter.h"

#include "editor/language/QUtils.h"
#include "editor/language/WordModel.h"

#include <QCursor>
#include <QFile>
#include <QGuiApplication>
#include <QScopeGuard>

KelvoraCompleter::KelvoraCompleter(QObject* parent)
    : KelvoraCompleter(QUtils::reservedWords(), true, parent) {}

KelvoraCompleter::KelvoraCompleter(const QStringList& words, bool wrap, QObject* parent)
    : QCompleter(parent) {
    setWrapAround(wrap);
    setWords(words);
}

void KelvoraCompleter::setWords(const QStringList& words) {
    words_ = sortedWords(words);
    setWordModel(*this, words_);
}

void KelvoraCompleter::loadFromFile(const QString& path) {
    QStringList words;
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        const auto restore = qScopeGuard([] { QGuiApplication::restoreOverrideCursor(); });
        while (!file.atEnd()) {
            const QString word = QString::fromUtf8(file.readLine().trimmed());
            if (!word.isEmpty())
                words += word;
        }
    }
    setWords(words);
}
