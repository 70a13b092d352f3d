// SPDX-License-Identifier: GPL-3.0-or-later
// Tells the user that an open file was changed or removed by another program, and does what he
// wants with its document.
#pragma once

#include <QObject>
#include <QSet>
#include <QString>
#include <QTimer>

#include <functional>

class FileWatch;
class QPlainTextEdit;

/// A question waits until the program is in front, no other dialog is open, and the window allows
/// it. Reloading can be undone in the document.
class FileChangeNotice : public QObject {
    Q_OBJECT

public:
    /// The editor that shows the file; null where none does.
    using EditorOf = std::function<QPlainTextEdit*(const QString& path)>;
    /// mayAsk: false while the window is busy, as with a run.
    FileChangeNotice(FileWatch& watch, EditorOf editorOf, std::function<bool()> mayAsk,
                     QObject* parent = nullptr);

    /// To be asked before a file is written: false where another program has changed it and the
    /// user does not want to replace that.
    bool maySave(const QString& path);

signals:
    /// The document holds what the file holds, and is unmodified.
    void reloaded(QString path);
    /// The document alone holds its text now, and is modified.
    void kept(QString path);

private:
    bool isFree() const;
    void askWhenPossible();
    void ask(const QString& path);
    bool holdsTheSame(const QString& path, QPlainTextEdit& editor);
    void askAboutChange(const QString& path, const QPlainTextEdit& editor);
    void reload(const QString& path, QPlainTextEdit& editor);
    void keepText(const QString& path, QPlainTextEdit& editor, const QByteArray& seen);
    void tellRemoval(const QString& path, QPlainTextEdit& editor);

    FileWatch& watch_;
    EditorOf editorOf_;
    std::function<bool()> mayAsk_;
    QSet<QString> waiting_; ///< paths
    bool asking_ = false;
    QTimer retry_;
};
