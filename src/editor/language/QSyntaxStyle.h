// SPDX-License-Identifier: GPL-3.0-or-later
// A colour scheme of the editors: a text format for each name ("Keyword", "Comment", ...).
#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QTextCharFormat>

class QWidget;

/// Read from a style-scheme document: untrusted, and it may end anywhere.
class QSyntaxStyle : public QObject {
    Q_OBJECT

public:
    explicit QSyntaxStyle(QObject* parent = nullptr);

    /// Reads a whole document; false at the first XML error, with what came before it kept.
    bool load(const QString& xml);
    bool isLoaded() const { return loaded_; }
    QString name() const { return name_; }
    /// An empty format for a name that the scheme lacks.
    QTextCharFormat getFormat(const QString& name) const;

    /// The scheme of the resources, one for the process.
    static QSyntaxStyle* defaultStyle();

private:
    QString name_;
    QHash<QString, QTextCharFormat> formats_;
    bool loaded_ = false;
};
