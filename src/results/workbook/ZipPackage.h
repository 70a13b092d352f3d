// SPDX-License-Identifier: GPL-3.0-or-later
// The parts of a workbook file. Parts that nobody changes stay as they are, byte for byte.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <functional>
#include <list>
#include <memory>

struct zip;

/// Throws WorkbookError. Part names have no slash in front.
class ZipPackage {
public:
    using TakePiece = std::function<void(QByteArrayView)>;

    explicit ZipPackage(const QString& path);
    ~ZipPackage(); ///< without close() the file is as it was
    ZipPackage(const ZipPackage&) = delete;
    ZipPackage& operator=(const ZipPackage&) = delete;

    bool contains(const QString& name) const;  ///< in capitals or not, as names of parts go
    QHash<QString, quint32> checksums() const; ///< of the parts, by name
    /// All of a part; an error where it is larger than the limit, whatever the archive says.
    QByteArray read(const QString& name, qint64 limit) const;
    void readInPieces(const QString& name, const TakePiece& take) const;

    void replace(const QString& name, const QByteArray& content);
    void addFile(const QString& name, const QString& path); ///< the file must live until close()
    /// Writes the changes. goOn is asked now and then; false throws WritingCancelled.
    void close(const std::function<bool()>& goOn);

private:
    struct Discard {
        void operator()(zip* archive) const;
    };

    qint64 indexOf(const QString& name) const; ///< -1 where there is none

    std::unique_ptr<zip, Discard> archive_;
    std::list<QByteArray> contents_; ///< of replaced parts, until they are written
};

/// Cells of a sheet that this program wrote; -1 where the sheet has no end. goOn is asked now and
/// then; false throws WritingCancelled.
qint64 countCells(const ZipPackage& package, const QString& sheet,
                  const std::function<bool()>& goOn);
