// SPDX-License-Identifier: GPL-3.0-or-later
// Offers the commands of the language at the cursor, and puts the chosen one in.
#pragma once

#include <QObject>
#include <QPointer>

class Editor;
class KelvoraCompleter;
class QKeyEvent;
class QWidget;

class SyntaxClue : public QObject {
    Q_OBJECT

public:
    explicit SyntaxClue(QObject* parent);

    void offer(Editor& editor);
    void close();
    QWidget& list() const;

signals:
    void inserted(QString line);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void insert(const QString& line);
    void chooseCurrent();
    void passOn(QKeyEvent& event);

    KelvoraCompleter* completer_;
    QPointer<Editor> editor_;
};

/// Replaces the line that stands before the cursor by the template that it names, if it names one.
void expandClue(Editor& editor, const QString& line);
