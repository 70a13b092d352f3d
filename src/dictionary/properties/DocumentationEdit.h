// SPDX-License-Identifier: GPL-3.0-or-later
// The box in which a text of documentation is written; Tab leaves it.
#pragma once

#include <QFocusEvent>
#include <QPlainTextEdit>

class DocumentationEdit : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit DocumentationEdit(QWidget* parent = nullptr) : QPlainTextEdit(parent) {
        setTabChangesFocus(true);
    }

signals:
    void editingFinished(); ///< the focus went elsewhere

protected:
    void focusOutEvent(QFocusEvent* event) override {
        QPlainTextEdit::focusOutEvent(event);
        if (event->reason() != Qt::PopupFocusReason)
            emit editingFinished();
    }
};
