// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps the main window's ribbon: builds it, and builds it anew where what it shows has changed.
#pragma once

#include "app/ribbon/RibbonPages.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

class KelSystem;
class QAction;
class QMainWindow;
class WorkArea;

namespace tt {
class TabToolbar;
}

/// Its signals are those of the ribbon's pages, whichever ribbon is up.
class RibbonHost : public QObject {
    Q_OBJECT

public:
    /// What the ribbon says of the dictionary.
    struct State {
        bool dictionaryOpen = false;
        bool dictionaryDirty = false;
        bool loading = false;
        QStringList recentDictionaries;
    };

    RibbonHost(QMainWindow& window, WorkArea& workArea, KelSystem& system);

    /// Builds the ribbon on the page that was shown, minimised if it was.
    void rebuild(const State& state);
    void select(RibbonPageIndex page);
    void setDirty(bool dirty);
    void retitle();
    /// Lets the user choose a dictionary, as the button does.
    void chooseDictionary();

signals:
    void readingDictionary(const QString& path, const QString& extension);
    void dictionaryFile(const QString& path);
    void projectFile(const QString& path, bool fromDictionary);
    void saveDictionary();
    void saveAsDictionary();
    void locateDictionary();
    void closeAllDictionary();
    void preferences();

private:
    void connectPages();
    QAction* makeCornerAction(const QString& name);
    void makeCornerActions();
    void retranslate();

    QMainWindow& window_;
    WorkArea& workArea_;
    KelSystem& system_;
    QPointer<tt::TabToolbar> toolbar_;
    QPointer<RibbonPages> pages_;
    QAction* modeAction_;
    QAction* preferencesAction_;
};
