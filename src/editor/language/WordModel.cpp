// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/language/WordModel.h"

#include <QCompleter>
#include <QStringListModel>

#include <algorithm>

QStringList sortedWords(QStringList words) {
    std::stable_sort(words.begin(), words.end(), [](const QString& a, const QString& b) {
        return a.compare(b, Qt::CaseInsensitive) < 0;
    });
    return words;
}

void setWordModel(QCompleter& completer, const QStringList& sorted) {
    if (auto* model = qobject_cast<QStringListModel*>(completer.model()))
        model->setStringList(sorted);
    else
        completer.setModel(new QStringListModel(sorted, &completer));
    completer.setCompletionColumn(0);
    completer.setModelSorting(QCompleter::CaseInsensitivelySortedModel);
    completer.setCaseSensitivity(Qt::CaseInsensitive);
}
