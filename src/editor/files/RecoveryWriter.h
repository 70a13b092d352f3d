// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps the recovery copy of one document current: a moment after it was changed, and gone once the
// text is safe elsewhere.
#pragma once

#include <QFutureWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>
#include <optional>

class QPlainTextEdit;
class RecoveryStore;
struct RecoveryCopy;

/// One a document, as its child. The copy goes when the document is closed by the user (discard())
/// or written (written()), or when undoing brings back the text that is safe; not when the object
/// dies, nor when the document is called unmodified after a save that failed.
class RecoveryWriter : public QObject {
    Q_OBJECT

public:
    RecoveryWriter(RecoveryStore& store, QPlainTextEdit& document, bool executeMode);
    /// What the copy says of its origin.
    void setOrigin(const QString& filePath, const QString& name);
    /// Takes over the copy that the text was restored from.
    /// basis, here and below: fingerprint of what the file holds, or held as the text was read.
    void adopt(const QString& id, const QByteArray& basis = {});
    /// The text as it stands was read from its file, or written to it. Best before the document is
    /// called unmodified.
    void written(const QByteArray& basis = {});
    /// The file holds something else now, or is gone.
    void lostFile(const QByteArray& basis);
    void discard(); ///< the user wants none of the text; not before the tab is sure to close
    void flush();   ///< writes now what is due, and waits for it
    void hurry();   ///< begins now to write what is due, and does not wait
    /// quiet: after the last change; longest: after the first one that is not kept yet.
    void setDelays(std::chrono::milliseconds quiet, std::chrono::milliseconds longest);

private:
    /// Enough of a text to know it again.
    struct Mark {
        qsizetype length = 0;
        size_t hash = 0;
        bool operator==(const Mark&) const = default;
    };
    static Mark markOf(const QString& text);

    bool isDue() const;
    RecoveryCopy copyOf(const QString& text);
    void noticeChange();
    void noticeModification(bool modified);
    void keepWhenFree();
    void keepSoon();
    void endKeeping();
    void forget();
    void stopWaiting();

    RecoveryStore& store_;
    QPlainTextEdit& document_;
    bool executeMode_;
    QString filePath_;
    QString name_;
    QByteArray basis_;
    QString id_;
    bool hasCopy_ = false;
    bool due_ = false;           ///< to be written once the disk is done with the one before
    std::optional<Mark> safe_;   ///< the text that stands in a file; at first the empty one
    std::optional<Mark> kept_;   ///< the text of the copy
    std::optional<Mark> inWork_; ///< the text that is being written
    QFutureWatcher<bool> writing_;
    QTimer quiet_;
    QTimer longest_;
};
