// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the XML form of a dictionary from its mirror, the elements in the order of the schema.
#pragma once

#include <QString>
#include <QXmlStreamWriter>

class QIODevice;
class TKelDictionary;
class TKpEntity;
class TKpVariable;

/// Names and texts are the mirror's; what the mirror does not hold comes from the engine's objects.
/// Characters that no XML file can hold are replaced, so that the file can be read again.
class DicxWriter {
public:
    explicit DicxWriter(QIODevice* device);

    bool write(TKelDictionary& dictionary, const TKpEntity& root); ///< false where writing failed

private:
    void writeGeneral(TKelDictionary& dictionary);
    void writeEntity(const QString& element, const TKpEntity& entity);
    void writeVariable(const TKpVariable& variable);
    void writeRanges(const TKpVariable& variable);
    void writeCodes(const TKpVariable& variable);
    void writeValueLabels(const TKpVariable& variable);
    void writeStorage(const TKpVariable& variable);
    void text(const QString& element, const QString& value);
    void textUnlessEmpty(const QString& element, const QString& value);
    void number(const QString& element, int value);
    void trueIf(const QString& element, bool value);

    QXmlStreamWriter xml_;
};
