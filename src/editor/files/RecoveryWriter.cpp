// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/files/RecoveryWriter.h"

#include "editor/files/RecoveryStore.h"
#include "editor/files/TextFile.h"

#include <QLoggingCategory>
#include <QPlainTextEdit>

namespace {

Q_LOGGING_CATEGORY(recoveryLog, "KelvoraX.recovery", QtInfoMsg)

constexpr std::chrono::milliseconds usualQuiet{1500};
constexpr std::chrono::milliseconds usualLongest{10000};

} // namespace

RecoveryWriter::RecoveryWriter(RecoveryStore& store, QPlainTextEdit& document, bool executeMode)
    : QObject(&document), store_(store), document_(document), executeMode_(executeMode),
      safe_(markOf({})) {
    quiet_.setSingleShot(true);
    longest_.setSingleShot(true);
    setDelays(usualQuiet, usualLongest);
    connect(&quiet_, &QTimer::timeout, this, &RecoveryWriter::keepWhenFree);
    connect(&longest_, &QTimer::timeout, this, &RecoveryWriter::keepWhenFree);
    connect(&document, &QPlainTextEdit::textChanged, this, &RecoveryWriter::noticeChange);
    connect(&document, &QPlainTextEdit::modificationChanged, this,
            &RecoveryWriter::noticeModification);
    connect(&writing_, &QFutureWatcher<bool>::finished, this, &RecoveryWriter::endKeeping);
}

void RecoveryWriter::setDelays(std::chrono::milliseconds quiet, std::chrono::milliseconds longest) {
    quiet_.setInterval(quiet);
    longest_.setInterval(longest);
}

RecoveryWriter::Mark RecoveryWriter::markOf(const QString& text) {
    return {text.size(), qHash(text)};
}

void RecoveryWriter::setOrigin(const QString& filePath, const QString& name) {
    if (filePath == filePath_ && name == name_)
        return;
    if (filePath != filePath_)
        basis_.clear();
    filePath_ = filePath;
    name_ = name;
    if (!hasCopy_)
        return;
    kept_.reset();
    inWork_.reset();
    noticeChange();
}

void RecoveryWriter::adopt(const QString& id, const QByteArray& basis) {
    if (id != id_)
        forget();
    stopWaiting();
    store_.take(id);
    id_ = id;
    hasCopy_ = true;
    basis_ = basis;
    safe_.reset();
    kept_ = markOf(textOf(*document_.document()));
}

void RecoveryWriter::written(const QByteArray& basis) {
    basis_ = basis;
    safe_ = markOf(textOf(*document_.document()));
    forget();
}

void RecoveryWriter::lostFile(const QByteArray& basis) {
    basis_ = basis;
    safe_.reset();
    kept_.reset();
    noticeChange();
}

void RecoveryWriter::discard() {
    forget();
}

void RecoveryWriter::forget() {
    stopWaiting();
    kept_.reset();
    inWork_.reset();
    if (hasCopy_)
        store_.drop(id_);
    hasCopy_ = false;
}

void RecoveryWriter::stopWaiting() {
    quiet_.stop();
    longest_.stop();
    due_ = false;
}

void RecoveryWriter::noticeChange() {
    quiet_.start();
    if (!longest_.isActive())
        longest_.start();
}

/// A save that failed calls the document unmodified too: what counts is whether its text is safe.
void RecoveryWriter::noticeModification(bool modified) {
    if (!modified)
        keepSoon();
}

void RecoveryWriter::keepWhenFree() {
    stopWaiting();
    if (inWork_)
        due_ = true;
    else if (document_.document()->isModified())
        keepSoon();
}

RecoveryCopy RecoveryWriter::copyOf(const QString& text) {
    if (id_.isEmpty())
        id_ = store_.newId();
    hasCopy_ = true;
    return {id_, filePath_, name_, executeMode_, QDateTime::currentDateTimeUtc(), text, basis_};
}

/// An empty text is no loss; closing does not ask about it either.
void RecoveryWriter::keepSoon() {
    stopWaiting();
    const QString text = textOf(*document_.document());
    const Mark mark = markOf(text);
    if (mark == safe_ || text.isEmpty()) {
        forget();
    } else if (mark != (inWork_ ? inWork_ : kept_)) {
        inWork_ = mark;
        writing_.setFuture(store_.keepSoon(copyOf(text)));
    }
}

void RecoveryWriter::endKeeping() {
    if (!inWork_)
        return;
    const bool kept = writing_.result();
    if (kept)
        kept_ = inWork_;
    inWork_.reset();
    if (!kept) {
        qCWarning(recoveryLog) << "No recovery copy of" << name_ << "could be written";
        longest_.start();
    } else if (due_) {
        keepWhenFree();
    }
}

bool RecoveryWriter::isDue() const {
    return quiet_.isActive() || longest_.isActive() || due_;
}

void RecoveryWriter::hurry() {
    if (isDue() && document_.document()->isModified())
        keepSoon();
}

void RecoveryWriter::flush() {
    if (!isDue() && !inWork_)
        return;
    if (document_.document()->isModified())
        keepSoon();
    if (!inWork_)
        return;
    writing_.waitForFinished();
    endKeeping();
}
