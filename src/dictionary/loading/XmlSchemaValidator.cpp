// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/loading/XmlSchemaValidator.h"

#include <QDebug>
#include <QFile>
#include <QThread>
#include <QXmlStreamReader>

namespace {

constexpr int tokensBetweenLooks = 4096;

/// Reads to the end or to the first fault. No tree is built, so that a huge or deeply nested
/// document costs neither memory nor stack.
bool readAll(QXmlStreamReader& xml) {
    xml.setNamespaceProcessing(false);
    for (int count = 0; !xml.atEnd(); ++count) {
        xml.readNext();
        if (count % tokensBetweenLooks == 0 && QThread::currentThread()->isInterruptionRequested())
            return false;
    }
    return true;
}

QString schemaPath(const QUrl& schema) {
    if (schema.scheme() == QLatin1String("qrc"))
        return ':' + schema.path();
    return schema.isLocalFile() ? schema.toLocalFile() : schema.path();
}

} // namespace

XmlSchemaValidator::XmlSchemaValidator(const QUrl& schema) {
    load(schemaPath(schema));
}

void XmlSchemaValidator::load(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qDebug() << "XmlSchemaValidator: cannot open schema";
        return;
    }
    QString message;
    int line = 0;
    int column = 0;
    loaded_ = schema_.setContent(&file, &message, &line, &column);
    if (!loaded_)
        qDebug() << "XmlSchemaValidator: schema parse error at line" << line << "col" << column
                 << message;
}

bool XmlSchemaValidator::validate(QIODevice* file, const QUrl& url) const {
    if (!loaded_)
        return false;
    if (file == nullptr || !file->isOpen()) {
        qDebug() << "XmlSchemaValidator::validate - file is null or not open";
        return false;
    }
    file->seek(0);
    QXmlStreamReader xml(file);
    const bool complete = readAll(xml);
    file->seek(0);
    if (xml.hasError())
        qDebug() << "XmlSchemaValidator::validate - document parse error at line"
                 << xml.lineNumber() << "col" << xml.columnNumber() << xml.errorString() << url;
    return complete && !xml.hasError();
}
