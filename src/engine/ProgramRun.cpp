// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/ProgramRun.h"

#include "engine/TKelSpcErrorsListenerImpl.h"
#include "kel.h"

#include <exception>

ProgramRun runProgram(const std::shared_ptr<TKelDictionary>& dictionary, const QString& program) {
    ProgramRun run;
    TKelSpcErrorsListenerImpl listener;
    try {
        run.session = kel::makeDefaultSession(dictionary);
        run.session->setErrorsListener(&listener);
        run.seconds =
            kel::measureTime([&] { run.session->executeText(program.toStdString(), nullptr); });
        run.outputs = run.session->outputs();
        run.succeeded = true;
    } catch (const std::exception& fault) {
        run.failure = QString::fromStdString(fault.what());
    }
    // The listener ends here, the session lives on with its outputs.
    if (run.session)
        run.session->setErrorsListener(nullptr);
    run.messages = listener.lines();
    return run;
}
