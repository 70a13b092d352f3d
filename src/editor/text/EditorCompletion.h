// SPDX-License-Identifier: GPL-3.0-or-later
// Offers words while a program is typed: reserved words, the dictionary's entities, and the
// variables of one of them.
#pragma once

#include <QObject>
#include <QStringList>
#include <QTextBlock>

class EditorHost;
class KelvoraCompleter;
class QKeyEvent;
class QPlainTextEdit;
class QTextCursor;

/// The editor tells it of each key, before and after its own work.
class EditorCompletion : public QObject {
    Q_OBJECT

public:
    /// host may be null: then no entity has variables.
    EditorCompletion(QPlainTextEdit& editor, const EditorHost* host);

    KelvoraCompleter* completer() const { return completer_; }
    void setEntities(const QStringList& names) { entities_ = names; }
    /// Whether the names are in lower case.
    void setLowerCase(bool lower) { lowerCase_ = lower; }

    /// Whether the key is for the list of words that is open.
    bool takes(const QKeyEvent& event) const;
    /// Chooses the words that the key asks for; the key is not in the text yet.
    void beforeKey(const QKeyEvent& event);
    /// Opens, narrows or closes the list.
    void afterKey(const QKeyEvent& event);
    void offerReservedWords();
    void offerWordsOfPlace(); ///< whatever was typed last, and wherever
    /// Adds what the word at the cursor lacks of the completion.
    void insert(const QString& completion);
    void followLook(); ///< font and colours of the editor

private:
    enum class Trigger { None, Blank, Comma, Dot };

    static Trigger triggerOf(const QKeyEvent& event);
    void offer(const QStringList& words);
    void forgetReplacedText(int position, int removed, int added);
    static bool typesWord(const QKeyEvent& event);
    bool lookUpEntity(const QString& word);
    QStringList variablesOf(const QString& entity) const;
    bool offersAfter(Trigger trigger);
    bool offersForWord(const QKeyEvent& event) const;
    bool inProse() const;
    void open(const QString& prefix);
    void hide();

    QPlainTextEdit& editor_;
    const EditorHost* host_;
    KelvoraCompleter* completer_;
    QStringList reserved_;
    QStringList entities_;
    bool lowerCase_ = false;
    QTextBlock offeredIn_;        ///< the line for which the words were chosen
    bool afterEntityDot_ = false; ///< the last "." followed the name of an entity
};
