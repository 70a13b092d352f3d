// SPDX-License-Identifier: GPL-3.0-or-later
// Draws frames round the places where a selected word occurs. The frames lie over the document and
// are no part of it: text, undo steps, modified flag and clipboard know nothing of them.
#pragma once

#include <QList>
#include <QObject>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextObjectInterface>

class QSyntaxStyle;
class QTextEdit;

class QFramedTextAttribute : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    static constexpr int objectType() { return 101; }
    static constexpr int wordProperty() { return 101; } ///< of the format: what is framed

    explicit QFramedTextAttribute(QObject* parent = nullptr);

    void setSyntaxStyle(const QSyntaxStyle* style) { style_ = style; }

    QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
    /// rect: begins where the text stands on its line, and has the size of the text.
    void drawObject(QPainter* painter, const QRectF& rect, QTextDocument* document, int position,
                    const QTextFormat& format) override;

    void frame(const QTextCursor& occurrence); ///< the cursor selects the word
    void clear() { frames_.clear(); }
    const QList<QTextCursor>& frames() const { return frames_; }
    /// Draws the frames that are in view.
    void paint(QPainter& painter, QTextEdit& editor);

private:
    const QSyntaxStyle* style_ = nullptr;
    QList<QTextCursor> frames_; ///< in the order of the text
};
