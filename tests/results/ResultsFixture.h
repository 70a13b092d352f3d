// SPDX-License-Identifier: GPL-3.0-or-later
// The window of results as a test drives it, over the small database of support/SmallDatabase.h.
#pragma once

#include "app/messages/Messages.h"
#include "results/ResultsManager.h"

#include <QModelIndex>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

class QDialog;
class QMenu;
class QTableView;
class QTreeView;
class TKelDictionary;
class TKelSession;

class ResultsFixture {
public:
    /// Starts the engine, opens the database and shows the empty window.
    ResultsFixture();
    ~ResultsFixture();
    ResultsFixture(const ResultsFixture&) = delete;
    ResultsFixture& operator=(const ResultsFixture&) = delete;

    /// Runs a program and hands its outputs to the window. Gives the lines to tell.
    QStringList run(const QString& program, const QString& stylePath = {}) const;
    std::shared_ptr<TKelSession> session(const QString& program) const;
    QString path(const QString& name) const { return folder_.filePath(name); }
    QString write(const QString& name, const QByteArray& text) const; ///< gives its path
    static QByteArray read(const QString& path);
    void letGoOfDictionary() { dictionary_.reset(); }
    TKelDictionary& dictionary() const { return *dictionary_; }

    ResultsManager& window() const { return *window_; }
    template <typename Child>
    Child* find(const char* name) const {
        return window_->findChild<Child*>(QLatin1String(name));
    }
    QTreeView& tree() const;
    QTableView& grid() const;
    QTableView& report() const;
    QModelIndex place(int process, int table = -1) const;
    void click(const QModelIndex& place, Qt::KeyboardModifiers keys = {}) const;
    void clickBox(const QModelIndex& place) const; ///< the check box of a table
    QStringList selected() const;                  ///< texts of the tree, sorted
    void trigger(const char* action) const;        ///< by a click on its button
    /// Opens a context menu; null where none appears.
    QMenu* menu(QWidget& viewport, QPoint place) const;
    void choose(QMenu& menu, const char* action) const;
    /// The next file dialog gets the path typed into it, and Enter.
    static void answerFileDialog(const QString& path, QStringList* seen = nullptr);

    /// Cells joined by "|", as shown.
    static QStringList rows(const QTableView& view, int role = Qt::DisplayRole);
    QString status() const;

    QStringList messages; ///< shown since the test cleared them
    QStringList tables;   ///< names of those shown since then

private:
    QTemporaryDir folder_;
    std::shared_ptr<TKelDictionary> dictionary_;
    std::unique_ptr<ResultsManager> window_;
};
