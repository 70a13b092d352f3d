// SPDX-License-Identifier: GPL-3.0-or-later
// Compiles and runs the text of an editor, or the block selected in it, and lists what comes of it.
#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class Editor;
class ErrorList;
class ProcessExecuter;
class Shell;
class TKelSpcErrorsListenerImpl;

/// Does nothing while a program runs.
class ProgramRunner : public QObject {
    Q_OBJECT

public:
    enum class Work { Compile, Run };
    using Listener = std::shared_ptr<TKelSpcErrorsListenerImpl>;
    /// What runs a text: faults that end it go into the list.
    using RunText = std::function<void(const QString& program, const Listener& listener)>;

    /// language: of the interface, "en".
    ProgramRunner(Shell& shell, const QString& language, ErrorList& errors, QObject* parent);

    void runWith(RunText runText) { runText_ = std::move(runText); }
    void start(Work work, Editor& editor); ///< of the selection where there is one
    void startBlock(Work work, Editor& editor);
    void cancel();

signals:
    void busyChanged(bool busy);
    void listed(bool faults); ///< the list is complete; faults: it has more than notes

private:
    void process(Work work, Editor& editor, const QString& program, std::optional<int> firstLine);
    void callEngine(Work work, const QString& text, const Listener& listener,
                    const QString& shownText);
    void refuse(const QString& fault);
    void listMessages(Work work, const Listener& listener, std::optional<int> firstLine);

    ErrorList& errors_;
    ProcessExecuter* executer_;
    RunText runText_;
};
