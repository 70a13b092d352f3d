// SPDX-License-Identifier: GPL-3.0-or-later
// Tells whether an XML file can be read at all. It holds the schema that such files follow, but
// does not hold them to it: a well-formed file that breaks a rule of the schema is fit to be
// opened.
#pragma once

#include <QDomDocument>
#include <QUrl>

class QIODevice;

/// After construction any thread may use it, one at a time.
class XmlSchemaValidator {
public:
    /// The scheme "qrc" means a resource, anything else a local file. A schema that cannot be read
    /// is logged; then no document is valid.
    explicit XmlSchemaValidator(const QUrl& schema);

    bool isLoaded() const { return loaded_; }
    /// True for well-formed XML. The device must be open; it is back at its start afterwards. Stops
    /// early, with false, where an interruption of the thread is requested.
    bool validate(QIODevice* file, const QUrl& url) const;

private:
    void load(const QString& path);

    QDomDocument schema_;
    bool loaded_ = false;
};
