// SPDX-License-Identifier: GPL-3.0-or-later
// The single top-level window: a shell over the dictionary browser, the results and the actions.
#pragma once

#include <QMainWindow>
#include <QStringList>

class DictionaryBrowser;
class DictionaryLoader;
class FrequencyView;
class MainActions;
class QDockWidget;
class QLabel;
class QProgressBar;
class TKpVariable;

class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    /// The one window; made with that parent where there is none yet.
    static MainWindow* instance(QWidget* parent = nullptr);

    /// Busy: the wait cursor until the next call that is not. Not busy: the text for 2000 ms.
    void showStatus(const QString& text, bool busy);
    /// Begins to open a file of any kind; the extension tells which.
    void openFile(const QString& path, const QString& extension);
    /// Reopens the last file where the settings ask for it.
    void loadLastOpened();
    /// Runs a frequency of ENTITY.VARIABLE and shows it.
    void runFrequency(const QString& fullName);
    bool isLoading() const;

signals:
    void signalDictIsDirty(bool dirty);

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void setupWorkArea();
    void setupToolbar();
    void setupResults();
    void setupStatusBar();
    void connectActions();
    void connectLoader();
    void chooseDictionary();
    void updateActions();
    void dropViews();
    void showLoaded(const QStringList& missing);
    void showLoadFailure(const QString& message);
    void showAbout();
    void askSaveDictionary();
    bool endLoading(); ///< false where an open question must go first
    void retranslate();

    DictionaryBrowser* browser_ = nullptr;
    DictionaryLoader* loader_ = nullptr;
    MainActions* actions_ = nullptr;
    QDockWidget* resultDock_ = nullptr;
    FrequencyView* frequencyView_ = nullptr;
    QLabel* dictionaryLabel_ = nullptr;
    QProgressBar* progress_ = nullptr;
    bool busy_ = false;
    bool engineEnded_ = false;
};
