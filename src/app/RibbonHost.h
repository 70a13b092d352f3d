// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps the main window's ribbon: builds it, and builds it anew where what it shows has changed.
#pragma once

#include "app/ribbon/RibbonPages.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <functional>

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
        bool hasResults = false;
        QStringList recentDictionaries;
        QStringList dictionaryPrograms;
        std::function<QString()> activeProgram; ///< path of the program in front, or empty
    };

    /// state: asked whenever the ribbon is built.
    RibbonHost(QMainWindow& window, WorkArea& workArea, KelSystem& system,
               std::function<State()> state);

    /// Builds the ribbon anew, on the page that is shown, minimised if it is: with the next events
    /// behind a run, and once however often it was asked for.
    void rebuild();
    void select(ribbon::PageIndex page);
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
    void newProgram(bool execute);
    void programFile(const QString& path, bool execute);
    void preferences();
    void showResults();

private:
    void build();
    void connectPages();
    QAction* makeCornerAction(const QString& name);
    void makeCornerActions();
    void retranslate();

    QMainWindow& window_;
    WorkArea& workArea_;
    KelSystem& system_;
    std::function<State()> state_;
    bool rebuilding_ = false; ///< asked for
    QPointer<tt::TabToolbar> toolbar_;
    QPointer<RibbonPages> pages_;
    QAction* modeAction_;
    QAction* preferencesAction_;
};
