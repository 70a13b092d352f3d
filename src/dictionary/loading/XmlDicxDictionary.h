// SPDX-License-Identifier: GPL-3.0-or-later
// Checks one .dicx file before anything else touches it: that it can be read, and that its data
// files are there or that the user can do without them.
#pragma once

#include "dictionary/loading/XmlDicxFileItem.h"
#include "dictionary/loading/XmlSchemaValidator.h"

#include <QFile>
#include <QList>
#include <QObject>
#include <QUrl>

#include <memory>

class QWidget;

/// check() is scan() and then settle(): a large file is scanned on another thread, the questions
/// are asked on the GUI thread.
class XmlDicxDictionary : public QObject {
    Q_OBJECT

public:
    XmlDicxDictionary(QWidget* parent, const QUrl& schema, const QString& path);

    /// True when the file is well formed and its data files can be accounted for.
    bool check();

    /// Reads the file and looks for the data files; shows nothing. Any thread.
    void scan();
    /// After scan(): shows what is wrong, asks about each missing file once, and gives the result
    /// of the check. The last item decides, as the user's answers stand for the files before it.
    bool settle();
    bool isReadable() const { return readable_; } ///< after scan()
    /// After scan(): false where the file is no XML, which settle() does not tell the user.
    bool isWellFormed() const { return wellFormed_; }
    /// After scan(): true where settle() will show something.
    bool needsUser() const { return !readable_ || (wellFormed_ && !missing_.isEmpty()); }
    /// Data files that scan() did not find, each once, with the first item that names it and the
    /// number of the others.
    const QList<XmlDicxFileItem>& missing() const { return missing_; }

    const XmlSchemaValidator& schemaValidator() const { return validator_; }
    std::unique_ptr<QFile> openFile() const; ///< a new, closed file on the path

private:
    enum class Answer { Found, Lacking, Stop };

    void findFiles(QFile& file);
    Answer ask(const XmlDicxFileItem& item, bool& sameForTheRest) const;
    Answer askAll() const;

    XmlSchemaValidator validator_;
    QString path_;
    bool readable_ = false;
    bool wellFormed_ = false;
    bool lastFound_ = true;
    QList<XmlDicxFileItem> missing_;
};
