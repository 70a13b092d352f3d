// SPDX-License-Identifier: GPL-3.0-or-later
// The user's settings and remembered folders, kept in one JSON file, and the interface language.
#pragma once

#include <QHash>
#include <QJsonObject>
#include <QString>
#include <QTranslator>
#include <QVariant>

#include <functional>

/// GUI thread only. A missing or damaged file gives the defaults.
class KelSystem {
public:
    static KelSystem& instance();
    KelSystem(const KelSystem&) = delete;
    KelSystem& operator=(const KelSystem&) = delete;

    bool firstUse() const { return firstUse_; }
    void setFirstUse(bool firstUse); ///< saves

    QString language() const { return language_; } ///< Process_en, _es, _pt or _fr
    /// First use: takes the language that ask gives, saves, and installs its translator.
    void selectLanguage(const std::function<QString()>& ask);
    /// Numbers follow the language too. False, with the interface in the language of its source,
    /// where there is no such translation.
    bool installTranslator(const QString& language);

    bool loadLast() const { return loadLast_; }
    QString lastOpened() const { return lastOpened_; }
    void setLastOpened(const QString& path); ///< saves

    /// The remembered folder of a kind: PROJECT, MAP, GRAPH, TABLE, PROGRAM, SELECTION, DICTIONARY
    /// or DATADICTIONARY; the default folder for any other word.
    QString directoryFor(const QString& kind) const;
    void setDirectoryFor(const QString& kind, const QString& folder);

    /// One key of the file, opened and parsed anew at each call.
    QVariant readValue(const QString& key, const QString& group,
                       const QVariant& defaultValue) const;
    /// Writes the whole file; false, with the old file untouched, where that fails.
    bool save() const;
    QString filePath() const;

private:
    KelSystem();
    void load();

    bool firstUse_ = true;
    bool loadLast_ = true;
    QString language_;
    QString lastOpened_;
    QString defaultFolder_;
    QHash<QString, QString> folders_; ///< by key in the file
    QTranslator translator_;
    QTranslator toolkitTranslator_; ///< the toolkit's own dialogs and buttons
};
