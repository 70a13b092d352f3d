// SPDX-License-Identifier: GPL-3.0-or-later
// The seven pages of the main window's ribbon, in their order, and what their buttons ask of it in
// one place.
#pragma once

#include <QObject>
#include <QString>

class DictionaryToolBar;
class ProjectToolBar;
class QMdiArea;
struct RibbonState;

namespace tt {
class TabToolbar;
}

namespace ribbon {

/// Where the pages stand.
enum PageIndex {
    ProjectPage,
    DictionaryPage,
    FilePage,
    StatisticsPage,
    IndicatorsPage,
    WindowPage,
    GeneralPage
};

} // namespace ribbon

/// Owned by the ribbon whose pages it makes. A ribbon that is replaced while one of its buttons is
/// being clicked must go by deleteLater().
class RibbonPages : public QObject {
    Q_OBJECT

public:
    /// The work area must outlive the ribbon.
    RibbonPages(tt::TabToolbar& toolbar, const RibbonState& state, QMdiArea& workArea);

    DictionaryToolBar* dictionary() const { return dictionary_; }
    /// Sets the titles of the pages anew, in the language of now.
    void retitle();

public slots:
    void enableSaveDictionary(bool enable);

signals:
    void projectFile(const QString& path, bool fromDictionary);
    void readingDictionary(const QString& path, const QString& extension);
    void dictionaryFile(const QString& path); ///< of the recent ones
    void saveDictionary();
    void saveAsDictionary();
    void locateDictionary();
    void checkDictionary();
    void printDictionary();
    void closeAllDictionary();
    void newProgram(bool execute);
    void programFile(const QString& path, bool execute);
    void preferences();
    void showResults();

private:
    void connectDictionary();

    tt::TabToolbar& toolbar_;
    DictionaryToolBar* dictionary_ = nullptr;
};
