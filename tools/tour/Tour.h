// SPDX-License-Identifier: GPL-3.0-or-later
// The main job of the workbench, done in the real window, with a picture of each step.
#pragma once

#include <QString>

#include <functional>

class Editor;
class MainWindow;
class ProcessProgramSPC;
class QAbstractItemView;
class QPixmap;

/// Throws std::runtime_error where a step does not do what a user expects.
class Tour {
public:
    Tour(MainWindow& window, QString folder) : window_(window), folder_(std::move(folder)) {}

    void run(const QString& dictionary);
    /// Opens the dictionary and makes a first table, without pictures.
    void firstTable(const QString& dictionary);
    int pictures() const { return pictures_; }

private:
    void open(const QString& dictionary);
    void waitForDictionary(const QString& dictionary);
    void selectEntity(const QString& name);
    void selectVariable(const QString& name);
    void filter(const QString& text);
    void ribbonPages();
    void properties();
    void quickViews();
    void menus();
    void showMenu(QAbstractItemView* view);
    void frequency();
    void results();
    void shootResult(const QString& program, const QString& name, bool report);
    void exports(const QString& folder);
    void programs();
    void completion();
    void compileError();
    void colourSchemes();
    void findPanel();
    void executeWindow();
    void progress();
    void recovery();
    /// The programs beside the dictionary open from the ribbon and run.
    void samplePrograms();
    void programIn(const QString& language); ///< with its menus of that language
    void programFromRibbon(const char* button, const QString& entry);
    void type(const QString& text); ///< with the keys of a user
    void dialogs();
    void shootModal(const QString& name, const std::function<void()>& ask);
    void preferences();
    void languages();
    void styles();
    ProcessProgramSPC& program() const; ///< the window in front
    Editor& editor() const;

    void shoot(const QString& name);       ///< the window, as NN-name.png
    void shootScreen(const QString& name); ///< with menus
    void saveScreen(const QString& name);  ///< the same at once
    void save(const QPixmap& picture, const QString& name);

    MainWindow& window_;
    QString folder_;
    int pictures_ = 0;
};
