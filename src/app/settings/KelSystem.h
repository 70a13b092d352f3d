// SPDX-License-Identifier: GPL-3.0-or-later
// The user's settings and remembered folders, kept in one JSON file, and the interface language.
#pragma once

#include "app/settings/SettingsValues.h"

#include <QJsonObject>
#include <QTranslator>
#include <QVariant>

#include <functional>

/// GUI thread only. A missing or damaged file gives the defaults; what is wrong with a damaged one
/// is told once, and a copy of it is kept beside it.
///
/// A setter stores its value and leaves the file alone until save(), unless it says that it saves.
class KelSystem {
public:
    static KelSystem& instance();
    /// A store of its own, in KelProcess.json somewhere below the base folder; the program has
    /// instance() only. Reads the file.
    explicit KelSystem(const QString& base);
    KelSystem(const KelSystem&) = delete;
    KelSystem& operator=(const KelSystem&) = delete;

    QString filePath() const;
    /// Writes the whole file; false, with the old file untouched, where that fails.
    bool save() const;
    /// Writes the whole file as save() does. The value reaches it only where the store has a field
    /// for the key and that was set before.
    bool writeValue(const QString& key, const QVariant& value, const QString& group) const;

    // The file as it stands now, read anew at each call. A group is the name of a top-level object,
    // or names with slashes for one inside.
    void readValue(QVariant& out, const QString& key, const QString& group,
                   const QVariant& defaultValue) const;
    /// The text under the key of each object in the array that has it.
    void readList(QStringList& out, const QString& key, const QString& arrayName,
                  const QString& group) const;
    void readFont(QFont& out, const QString& key, const QString& group,
                  const QFont& defaultFont) const;

    /// What the program starts with when installed, first use apart. Does not save.
    void resetToDefaults();

    bool firstUse() const { return values_.firstUse; }
    void setFirstUse(bool firstUse); ///< saves

    QString language() const { return values_.language; } ///< Process_en, _es, _pt or _fr
    void setLanguage(const QString& key) { values_.language = key; }
    QString shortLanguage() const; ///< en, es, pt or fr
    /// First use: takes the language that ask gives, saves, and installs its translator.
    void selectLanguage(const std::function<QString()>& ask);
    /// Replaces the language of the interface, of the toolkit's own texts, and of numbers. False,
    /// with the interface in the language of its source, where there is no such translation.
    bool installTranslator(const QString& language);

    /// Newest first, at most maxLastFiles() of them. The dictionaries were there at the start.
    QStringList recentDictionaries() const;
    QStringList recentProjects() const;
    /// The path becomes the newest, and its folder the one remembered for its kind. They save.
    void addRecentDictionary(const QString& path);
    void addRecentProject(const QString& path);
    void removeRecentDictionary(const QString& path); ///< saves
    void removeRecentProject(const QString& path);    ///< saves; either slash will do
    /// Those that are still there. execute: of the programs that run others.
    QStringList recentPrograms(bool execute) const;
    void addRecentProgram(const QString& path, bool execute); ///< the newest; saves
    int maxLastFiles() const { return values_.maxLastFiles; }
    void setMaxLastFiles(int count) { values_.maxLastFiles = count; }
    QString lastOpened() const { return values_.lastOpened; } ///< with forward slashes
    void setLastOpened(const QString& path);                  ///< saves
    bool loadLast() const { return values_.loadLast; }
    void setLoadLast(bool load) { values_.loadLast = load; }

    /// The remembered folder of a kind: PROJECT, MAP, GRAPH, TABLE, PROGRAM, SELECTION, DICTIONARY
    /// or DATADICTIONARY; the default folder for any other word.
    QString directoryFor(const QString& kind) const;
    void setDirectoryFor(const QString& kind, const QString& folder);

    QFont screenFont() const { return values_.screenFont; }
    void setScreenFont(const QFont& font) { values_.screenFont = font; }
    QString screenBackground() const { return values_.screenBackground; }
    void setScreenBackground(const QString& color) { values_.screenBackground = color; }
    QString screenColor() const { return values_.screenColor; }
    void setScreenColor(const QString& color) { values_.screenColor = color; }
    QFont fixedFont() const { return values_.fixedFont; }
    void setFixedFont(const QFont& font) { values_.fixedFont = font; }
    QFont editFont() const { return values_.editFont; }
    void setEditFont(const QFont& font) { values_.editFont = font; }
    QFont printFont() const { return values_.printFont; }
    void setPrintFont(const QFont& font) { values_.printFont = font; }
    QFont printHeaderFont() const { return values_.printHeaderFont; }
    void setPrintHeaderFont(const QFont& font) { values_.printHeaderFont = font; }
    QFont printFootFont() const { return values_.printFootFont; }
    void setPrintFootFont(const QFont& font) { values_.printFootFont = font; }
    QFont tableFont() const { return values_.tableFont; } ///< the same at each start
    QFont smallFont() const { return values_.smallFont; } ///< the same at each start

    bool autoWeight() const { return values_.autoWeight; }
    void setAutoWeight(bool weighted) { values_.autoWeight = weighted; }
    int menuColor() const { return values_.menuColor; } ///< index of a ribbon style
    void setMenuColor(int style) { values_.menuColor = style; }
    bool showSplash() const { return values_.showSplash; }
    void setShowSplash(bool show) { values_.showSplash = show; }
    bool tipOfTheDay() const { return values_.tipOfTheDay; }
    void setTipOfTheDay(bool show) { values_.tipOfTheDay = show; }
    int decimals() const { return values_.decimals; }
    void setDecimals(int count) { values_.decimals = count; }
    int tableSeparator() const { return values_.tableSeparator; } ///< space, apostrophe, comma
    void setTableSeparator(int separator) { values_.tableSeparator = separator; }

    QString csvDelimiter() const { return values_.csvDelimiter; }
    void setCsvDelimiter(const QString& delimiter) { values_.csvDelimiter = delimiter; }
    QString csvEncoding() const { return values_.csvEncoding; }
    void setCsvEncoding(const QString& encoding) { values_.csvEncoding = encoding; }
    bool csvShowHeader() const { return values_.csvShowHeader; }
    void setCsvShowHeader(bool show) { values_.csvShowHeader = show; }
    // Headers and titles: Name, Label, Alias, NameAndLabel, AliasAndLabel, Caption.
    QString csvArealistHeaderVariable() const { return values_.csvArealistHeaderVariable; }
    void setCsvArealistHeaderVariable(const QString& w) { values_.csvArealistHeaderVariable = w; }
    QString csvTablistHeaderVariable() const { return values_.csvTablistHeaderVariable; }
    void setCsvTablistHeaderVariable(const QString& w) { values_.csvTablistHeaderVariable = w; }
    QString tablistHeaderVariable() const { return values_.tablistHeaderVariable; }
    void setTablistHeaderVariable(const QString& what) { values_.tablistHeaderVariable = what; }
    QString freqTitle() const { return values_.freqTitle; }
    void setFreqTitle(const QString& what) { values_.freqTitle = what; }

    bool cmdEditorToolbar() const { return values_.cmdEditorToolbar; }
    void setCmdEditorToolbar(bool show) { values_.cmdEditorToolbar = show; }
    bool cmdEditorStatusBar() const { return values_.cmdEditorStatusBar; } ///< true at each start
    void setCmdEditorStatusBar(bool show) { values_.cmdEditorStatusBar = show; }
    int editorColorScheme() const { return values_.editorColorScheme; }
    void setEditorColorScheme(int scheme) { values_.editorColorScheme = scheme; }
    bool gutterVisible() const { return values_.gutterVisible; }
    void setGutterVisible(bool show) { values_.gutterVisible = show; }
    bool showGutterLineNumbers() const { return values_.showGutterLineNumbers; }
    void setShowGutterLineNumbers(bool show) { values_.showGutterLineNumbers = show; }
    int tabIndentSpaces() const { return values_.tabIndentSpaces; }
    void setTabIndentSpaces(int count) { values_.tabIndentSpaces = count; }

    // Sizes and places of windows, in pixels.
    QRect cmdEditorGeometry() const { return values_.cmdEditorGeometry; }
    void setCmdEditorGeometry(const QRect& place) { values_.cmdEditorGeometry = place; }
    QSize dictionarySize() const { return values_.dictionarySize; }
    void setDictionarySize(const QSize& size) { values_.dictionarySize = size; }
    QSize entitySize() const { return values_.entitySize; } ///< the same at each start
    void setEntitySize(const QSize& size) { values_.entitySize = size; }
    QSize datasetPropertiesSize() const { return values_.datasetPropertiesSize; }
    void setDatasetPropertiesSize(const QSize& size) { values_.datasetPropertiesSize = size; }
    QSize entPropertiesSize() const { return values_.entPropertiesSize; }
    void setEntPropertiesSize(const QSize& size) { values_.entPropertiesSize = size; }
    QSize varPropertiesSize() const { return values_.varPropertiesSize; }
    void setVarPropertiesSize(const QSize& size) { values_.varPropertiesSize = size; }

private:
    void load();
    QJsonObject readDocument() const;
    QJsonObject groupOf(const QString& group) const;
    void keepDamagedFile() const;
    void updateRecentList(QStringList& list, const QString& path) const;

    QString base_;
    SettingsValues values_;
    mutable bool faultTold_ = false;
    QTranslator translator_;
    QTranslator toolkitTranslator_; ///< the toolkit's own dialogs and buttons
};
