// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/language/QKelxCompleter.h"

#include "editor/language/QUtils.h"
#include "editor/language/WordModel.h"

QKelxCompleter::QKelxCompleter(QObject* parent) : QCompleter(parent) {
    setWordModel(*this, sortedWords(QUtils::reservedWords()));
    setWrapAround(true);
}
