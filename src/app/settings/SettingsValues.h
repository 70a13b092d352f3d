// SPDX-License-Identifier: GPL-3.0-or-later
// What the settings file keeps from one start to the next, as plain fields with the defaults of an
// absent file.
#pragma once

#include <QFont>
#include <QRect>
#include <QSize>
#include <QString>
#include <QStringList>

/// Which key of the file holds which field stands in SettingsKeys.cpp.
struct SettingsValues {
    /// The folder that every file dialog starts from until another one is remembered.
    explicit SettingsValues(const QString& folder);

    QFont screenFont{QStringLiteral("Arial"), 9};
    QString screenBackground;
    QString screenColor;
    QFont printFont{QStringLiteral("Tahoma"), 12};
    QFont printHeaderFont{QStringLiteral("Arial"), 12};
    QFont printFootFont{QStringLiteral("Arial"), 8};
    QFont fixedFont{QStringLiteral("Courier New"), 8};
    QFont editFont{QStringLiteral("Arial"), 9};

    bool autoWeight = true;
    int menuColor = 0;
    bool showSplash = true;
    bool tipOfTheDay = true;
    QString lastOpened; ///< with forward slashes
    bool loadLast = true;
    bool firstUse = true;
    QString language = QStringLiteral("Process_en");
    int decimals = 2;
    int maxLastFiles = 10;
    int tableSeparator = 0;
    QStringList recentProjects;     ///< newest first
    QStringList recentDictionaries; ///< newest first
    QStringList recentPrograms;     ///< newest first
    QStringList recentExecutes;     ///< programs that run others, newest first

    QString defaultFolder;
    QString dictionaryFolder;
    QString dataDictionaryFolder;
    QString mapFolder;
    QString graphFolder;
    QString tableFolder;
    QString selectionFolder;
    QString programFolder;
    QString projectFolder;

    QString csvDelimiter = QStringLiteral(",");
    QString csvEncoding = QStringLiteral("UTF-8");
    bool csvShowHeader = true;
    QString csvArealistHeaderVariable = QStringLiteral("Name");
    QString csvTablistHeaderVariable = QStringLiteral("Name");
    QString tablistHeaderVariable = QStringLiteral("Name");
    QString freqTitle = QStringLiteral("NameAndLabel");

    QRect cmdEditorGeometry{0, 0, 1460, 795};
    bool cmdEditorToolbar = true;
    bool cmdEditorStatusBar = true;
    int editorColorScheme = 0;
    bool gutterVisible = true;
    bool showGutterLineNumbers = true;
    int tabIndentSpaces = 12;

    QSize dictionarySize{250, 800};
    QSize datasetPropertiesSize{640, 480};
    QSize entPropertiesSize{640, 480};
    QSize varPropertiesSize{640, 480};

    // Without a key of their own in the file.
    QSize entitySize{390, 385};
    QFont tableFont{QStringLiteral("Tahoma"), 9};
    QFont smallFont{QStringLiteral("Courier New"), 8};
};
