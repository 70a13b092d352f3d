// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps the recovery copy of one document current: a moment after it was changed, and gone once the
// text is safe elsewhere.
#pragma once

#include <QObject>
#include <QString>

class QPlainTextEdit;
class RecoveryStore;

/// One a document, as its child. The copy goes when the document is closed by the user (discard())
/// or written (written()), not when the object dies.
class RecoveryWriter : public QObject {
    Q_OBJECT

public:
    RecoveryWriter(RecoveryStore& store, QPlainTextEdit& document, bool executeMode);
    /// What the copy says of its origin.
    void setOrigin(const QString& filePath, const QString& name);
    void adopt(const QString& id); ///< takes over the copy that the text was restored from
    void written();
    void discard();
    void flush(); ///< writes now what is due
};
