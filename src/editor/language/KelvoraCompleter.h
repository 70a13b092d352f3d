// SPDX-License-Identifier: GPL-3.0-or-later
// The completer of the editor that programs are typed in: a sorted list of words that the editor
// exchanges as the text demands.
#pragma once

#include <QCompleter>
#include <QStringList>

class KelvoraCompleter : public QCompleter {
    Q_OBJECT

public:
    /// Offers the reserved words of the language.
    explicit KelvoraCompleter(QObject* parent = nullptr);
    KelvoraCompleter(const QStringList& words, bool wrap, QObject* parent = nullptr);

    QStringList words() const { return words_; }
    void setWords(const QStringList& words); ///< sorts them without regard to case
    /// A word a line, UTF-8; a file that cannot be read leaves no words.
    void loadFromFile(const QString& path);

private:
    QStringList words_;
};
