// SPDX-License-Identifier: GPL-3.0-or-later
// The bond between an editor and its file: reads and writes it, follows it on disk, and keeps a
// copy of what is not written yet.
#pragma once

#include "editor/files/TextFile.h"

#include <QObject>
#include <QPointer>

class Editor;
class FileWatch;
class RecoveryWriter;
struct RecoveryCopy;

/// One an editor, as its child.
class ProgramDocument : public QObject {
    Q_OBJECT

public:
    ProgramDocument(Editor& editor, FileWatch& watch);
    ~ProgramDocument() override;

    static ProgramDocument* of(const Editor& editor); ///< null for an editor without one

    /// Takes over what was read from the path; the document is unmodified.
    void show(const QString& path, const TextFileResult& file);
    /// Gives the device's words, empty after a success. The document is unmodified after a failure
    /// as well; only its copy stays.
    QString write(const QString& path);
    bool hasFailedToWrite() const { return failed_; }
    /// Its text, modified. A file that has changed since is not replaced unasked.
    void restore(const RecoveryCopy& copy);
    void nameUntitled(const QString& name);
    void noticeReload(); ///< the editor holds what the file holds
    void noticeLoss();   ///< the file holds something else, or is gone, and the text stays
    void keepCopy();     ///< begins to write the copy where it is due
    void discard();      ///< the user closes it and keeps no changes

private:
    void bind(const QString& path);
    QByteArray basis() const;

    Editor& editor_;
    QPointer<FileWatch> watch_;
    RecoveryWriter* copy_;
    bool failed_ = false;
};
