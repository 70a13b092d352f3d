// SPDX-License-Identifier: GPL-3.0-or-later
// A window with docks, the small database open in it, and the messages that were shown.
#pragma once

#include "app/messages/Messages.h"
#include "app/shell/Shell.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QStringList>
#include <QTemporaryDir>
#include <QTranslator>

#include <memory>

class TKelDictionary;
class TKpEntity;
class TKpVariable;

/// A main window that has docks and nothing else.
class DockShell : public Shell {
public:
    void showStatus(const QString&, bool) override {}
    void addDockLeft(QDockWidget* dock) override;
    void addDockRight(QDockWidget* dock) override;
    QDockWidget* dock(const QString& name) const override;
    bool dockExists(const QString& name) const override { return dock(name) != nullptr; }
    void closeDock(const QString& name) override { delete dock(name); }
    QMdiSubWindow* addWindow(QWidget*) override { return nullptr; }
    bool hasWindows() const override { return false; }
    void runProgram(const QString&) override {}
    QStringList showResults(const std::vector<TKelOutput*>&, const std::shared_ptr<TKelSession>&,
                            const QString&) override {
        return {};
    }
    QStringList writeDirectOutputs(const std::vector<TKelOutput*>&) override { return {}; }
    QWidget* window() override { return &window_; }

private:
    QMainWindow window_;
};

/// A language that is the source's in capitals.
class Capitals : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override {
        return QString::fromUtf8(text).toUpper();
    }
};

/// Starts the engine, writes the database and opens it anew for each test.
class PropertiesFixture {
public:
    PropertiesFixture();
    ~PropertiesFixture();
    PropertiesFixture(const PropertiesFixture&) = delete;
    PropertiesFixture& operator=(const PropertiesFixture&) = delete;

    void open(const QString& path = {}); ///< the database as it was written; a path: that file
    void rebuild();                      ///< another mirror of the same dictionary
    QString save();                      ///< under another name, which it returns
    TKpEntity* entity(const QString& name) const;
    TKpVariable* variable(const QString& fullName) const;

    std::shared_ptr<TKelDictionary> dictionary;
    std::shared_ptr<TKpEntity> root;
    QStringList messages;           ///< shown since the opening
    Choice answer = Choice::Cancel; ///< to the questions

private:
    QTemporaryDir folder_;
};
