// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/language/QUtils.h"

#include "kel.h"

QStringList QUtils::reservedWords() {
    QStringList words;
    for (const std::string& word : kel::reservedWords())
        words += QString::fromStdString(word);
    return words;
}
