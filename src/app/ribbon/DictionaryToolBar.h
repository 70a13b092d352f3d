// SPDX-License-Identifier: GPL-3.0-or-later
// The page DICTIONARY: opening, saving and closing the dictionary. It asks for files and tells what
// the user wants; the main window does it.
#pragma once

#include "app/ribbon/RibbonPage.h"

struct RibbonState;

class DictionaryToolBar : public RibbonPage {
    Q_OBJECT

public:
    DictionaryToolBar(tt::TabToolbar& toolbar, const RibbonState& state);

public slots:
    void on_dictionaryFile(const QString& path); ///< a recent one
    void on_readingDictionary();                 ///< asks which
    void on_saveOpenDictionary();
    void on_saveAsOpenDictionary();
    void on_consistencyDictionary();
    void on_printDictionary();
    void on_closeAllDictionary();
    void on_locateFile();
    void on_enableSaveButton(bool enable);

signals:
    /// extension: of the file's name, without the dot.
    void readingDictionary(const QString& path, const QString& extension);
    void dictionaryFile(const QString& path);
    void saveDictionary();
    void saveAsDictionary();
    void locateDictionary();
    void checkDictionary(); ///< its data files against it
    void printDictionary();
    void closeAllDictionary();

private:
    void makeOpenButton(tt::Group& group, const RibbonState& state);

    bool canSave_; ///< where there is something to save
    bool canCheck_;
    QAction* save_ = nullptr;
};
