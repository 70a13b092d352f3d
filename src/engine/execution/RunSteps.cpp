// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/execution/RunSteps.h"

#include "app/messages/Messages.h"
#include "app/shell/Shell.h"
#include "engine/execution/RunGuard.h"
#include "projects/TfrmProject.h"

#include <QCoreApplication>
#include <QListWidget>

#include <iostream>
#include <typeinfo>

namespace {

QString translated(const char* text) {
    return QCoreApplication::translate("ProcessExecuter", text);
}

} // namespace

std::shared_ptr<TKelDictionary> RunSteps::compiling() const {
    if (!isFree())
        return nullptr;
    const auto& dictionary = TfrmProject::instance().dictionary();
    if (!dictionary)
        showAbout(translated(QT_TRANSLATE_NOOP("ProcessExecuter", "Dicctionary Selection")),
                  translated(QT_TRANSLATE_NOOP("ProcessExecuter",
                                               "The <b>Select at least one dictionary</b> ")));
    return dictionary;
}

std::shared_ptr<TKelDictionary> RunSteps::running() const {
    if (!RunGuard::isRunning() && !TfrmProject::instance().isOpen())
        shell_.showStatus(translated(QT_TRANSLATE_NOOP("ProcessExecuter", "Execution Canceled")),
                          false);
    return compiling();
}

/// A box would hold up the run that goes on, so it waits for its end.
bool RunSteps::isFree() const {
    if (!RunGuard::isRunning())
        return true;
    const QString text = translated(QT_TRANSLATE_NOOP(
        "ProcessExecuter", "The program was not run, since another one had not ended."));
    if (errors_ != nullptr)
        errors_->insertItem(0, text);
    else
        RunGuard::afterwards(shell_.window(), [text] { showError(text); });
    return false;
}

void RunSteps::tellTime(double seconds) {
    std::cout << "\n\nTime running spc program: " << seconds << "s\n" << std::flush;
}

void RunSteps::log(const std::exception& fault) {
    std::cout << "Error: " << typeid(fault).name() << ' ' << fault.what() << std::endl;
}

void RunSteps::fail(const std::exception& fault) const {
    shell_.showStatus(translated(QT_TRANSLATE_NOOP("ProcessExecuter", "Execution Failed")), false);
    log(fault);
    const QString text = QString::fromUtf8(fault.what());
    if (errors_ != nullptr)
        errors_->insertItem(0, text);
    else
        showError(text);
}
