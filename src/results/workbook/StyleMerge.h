// SPDX-License-Identifier: GPL-3.0-or-later
// Takes the formats of a new workbook into another's, which keeps all of its own.
#pragma once

#include "results/workbook/XmlPart.h"

#include <QHash>
#include <QList>

class StyleMerge {
public:
    /// The two styles.xml. Throws WorkbookError.
    StyleMerge(const QByteArray& ours, const QByteArray& theirs);

    /// Theirs, with what ours needs and theirs had not yet.
    const QByteArray& merged() const { return merged_; }
    /// By number of a cell format of ours: its number in the merged part.
    const QList<int>& formats() const { return formats_; }

private:
    /// A list of theirs (fonts, fills ...) that grows.
    struct Section {
        const char* name;
        const XmlElement* element = nullptr;
        QStringList items;
        qsizetype before = 0; ///< how many theirs had

        int indexOf(const QString& item);
    };

    Section section(const char* name, int startWith) const;
    QString ourItem(const char* section, int index) const;
    QString numberFormat(const QString& ourId);
    QString cellFormat(const XmlElement& ours);
    void write(const Section& section);
    const XmlElement* predecessor(const char* name) const;

    XmlPart ours_;
    XmlPart theirs_;
    QHash<QString, QString> numberFormats_; ///< of theirs: numbers by code
    int lastNumberFormat_ = 163;            ///< those up to it belong to the programs
    Section numbers_;
    Section fonts_;
    Section fills_;
    Section borders_;
    Section cells_;
    QList<int> formats_;
    QByteArray merged_;
};
